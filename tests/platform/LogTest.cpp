#include "platform/Log.h"

#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// What others name themselves can be in a line.
class LogTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void aLineIsWrittenAsItStands() {
        const LogKeeper log;
        logLine(u"Gr\u00FC\u00DFe, \"\u6771\u4EAC\" \U0001F600 %1 \\"_s);
        QCOMPARE(log.lines(), QStringList{u"Gr\u00FC\u00DFe, \"\u6771\u4EAC\" \U0001F600 %1 \\"_s});
    }

    void whatNobodySeesIsWrittenOut_data() {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("written");
        QTest::newRow("a line's end") << u"a\nb"_s << u"a\\u000ab"_s;
        QTest::newRow("a terminal's command") << u"a\x1B[2Jb"_s << u"a\\u001b[2Jb"_s;
        QTest::newRow("one of eight bits") << u"a\u009B2Jb"_s << u"a\\u009b2Jb"_s;
        QTest::newRow("the other direction") << u"a\u202Eb"_s << u"a\\u202eb"_s;
        QTest::newRow("a paragraph's end") << u"a\u2029b"_s << u"a\\u2029b"_s;
        QTest::newRow("nothing but a null") << QString(QChar(u'\0')) << u"\\u0000"_s;
    }

    void whatNobodySeesIsWrittenOut() {
        QFETCH(const QString, line);
        QFETCH(const QString, written);
        const LogKeeper log;
        logLine(line);
        QCOMPARE(log.lines(), QStringList{written});
    }
};

static const RegisteredTest<LogTest> registered;
#include "LogTest.moc"
