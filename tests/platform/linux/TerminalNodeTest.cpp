#include "platform/linux/TerminalNode.h"

#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/RegisteredTest.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TerminalNodeTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void aPseudoTerminalIsATerminal();
    void aHungUpPseudoTerminalIsNone();
    void isNoTerminal_data();
    void isNoTerminal();
};

void TerminalNodeTest::aPseudoTerminalIsATerminal() {
    const PseudoTerminalPair line;
    QVERIFY(TerminalNode::isTerminal(line.path()));
    const QTemporaryDir directory;
    const auto link = directory.filePath(u"link"_s);
    QVERIFY(QFile::link(line.path(), link));
    QVERIFY(TerminalNode::isTerminal(link));
}

void TerminalNodeTest::aHungUpPseudoTerminalIsNone() {
    PseudoTerminalPair line;
    line.hangUp();
    QVERIFY(!TerminalNode::isTerminal(line.path()));
}

void TerminalNodeTest::isNoTerminal_data() {
    QTest::addColumn<QString>("path");
    QTest::newRow("nothing") << QString();
    QTest::newRow("a path that leads nowhere") << u"/dev/does-not-exist"_s;
    QTest::newRow("a directory") << u"/dev"_s;
    QTest::newRow("a file") << u"/etc/passwd"_s;
    QTest::newRow("another character device") << u"/dev/null"_s;
    QTest::newRow("what makes pseudo-terminals") << u"/dev/ptmx"_s;
    QTest::newRow("what stands for the own terminal") << u"/dev/tty"_s;
}

void TerminalNodeTest::isNoTerminal() {
    QFETCH(QString, path);
    QVERIFY(!TerminalNode::isTerminal(path));
}

static const RegisteredTest<TerminalNodeTest> registered;
#include "TerminalNodeTest.moc"
