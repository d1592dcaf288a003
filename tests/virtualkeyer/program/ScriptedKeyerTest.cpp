#include "tests/support/RegisteredTest.h"
#include "tests/virtualkeyer/program/KeyerProcess.h"
#include "tests/virtualkeyer/program/Port.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <csignal>
#include <memory>

using namespace Qt::StringLiterals;

class ScriptedKeyerTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void aScriptThatIsMetEndsWell();
    void anExpectationThatIsNotMetEndsBadly();
    void aScriptWithAMistakeIsNotBegun();
    void aMistakeInWhatIsTypedEndsIt();
    void whatIsTypedIsDone();
    void theHostsTextMeetsTheScript();
    void thePortComesAndGoesWithThePlug();
    void aSignalBeforeTheEndEndsBadly();
    void fastTimeNeedsNoPort();

  private:
    [[nodiscard]] QString write(const QByteArray& script) const {
        QFile file(_runtime->path() + u"/script"_s);
        if (!file.open(QIODevice::WriteOnly) || file.write(script) != script.size()) {
            qFatal("no script");
        }
        return file.fileName();
    }

    std::unique_ptr<QTemporaryDir> _runtime;
};

void ScriptedKeyerTest::init() {
    _runtime = std::make_unique<QTemporaryDir>();
    QVERIFY(_runtime->isValid());
}

void ScriptedKeyerTest::aScriptThatIsMetEndsWell() {
    KeyerProcess keyer(*_runtime);
    QCOMPARE(keyer.runToEnd({u"--headless"_s, u"--script"_s,
                             write("at 0.1 paddle dit down\nafter 0.02 paddle dit up\n"
                                   "within 20 expect keyed \"E\"\n")}),
             0);
    QCOMPARE(keyer.output(), u"E"_s);
    QVERIFY(!QFileInfo(keyer.linkPath()).isSymLink());
}

void ScriptedKeyerTest::anExpectationThatIsNotMetEndsBadly() {
    KeyerProcess keyer(*_runtime);
    const QString script = write("\nat 0.1 expect key down\n");
    QCOMPARE(keyer.runToEnd({u"--headless"_s, u"--script"_s, script}), 3);
    QVERIFY2(
        keyer.errors().endsWith(
            u"quorvel-virtual-keyer: %1:2: expected key down, but it is key up\n"_s.arg(script)),
        qPrintable(keyer.errors()));
}

void ScriptedKeyerTest::aScriptWithAMistakeIsNotBegun() {
    KeyerProcess keyer(*_runtime);
    const QString script = write("at 0.1 paddle dit down\nnob 28");
    QCOMPARE(keyer.runToEnd({u"--script"_s, script}), 2);
    QVERIFY(keyer.errors().startsWith(
        u"quorvel-virtual-keyer: %1:2: \"nob 28\" is not understood; possible is: "_s.arg(script)));
    QVERIFY(!QDir(_runtime->path() + u"/quorvel"_s).exists());
}

void ScriptedKeyerTest::aMistakeInWhatIsTypedEndsIt() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn({u"--headless"_s, u"--script"_s, u"-"_s}));
    keyer.process().write("knob 20\nknob\n");
    QVERIFY(keyer.process().waitForFinished(10'000));
    QCOMPARE(keyer.process().exitCode(), 2);
    QVERIFY(
        keyer.errors().endsWith(u"-:2: \"knob\" is not understood; possible is: knob 5...99\n"_s));
}

void ScriptedKeyerTest::whatIsTypedIsDone() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn({u"--headless"_s, u"--script"_s, u"-"_s}));
    keyer.process().write("paddle dah down\nafter 0.02 paddle dah up\n");
    QTRY_COMPARE_WITH_TIMEOUT(keyer.output().trimmed(), u"T"_s, 10'000);
    keyer.process().write("expect keyed \"T\"\n");
    keyer.process().closeWriteChannel();
    QVERIFY(keyer.process().waitForFinished(10'000));
    QCOMPARE(keyer.process().exitCode(), 0);
}

void ScriptedKeyerTest::theHostsTextMeetsTheScript() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(
        keyer.plugIn({u"--headless"_s, u"--script"_s, write("within 60 expect keyed \"ET\"\n")}));
    const Port port(keyer.linkPath());
    port.send(QByteArray("\0\2\x02\x28\x45\x54", 6));
    QVERIFY(keyer.process().waitForFinished(60'000));
    QCOMPARE(keyer.process().exitCode(), 0);
}

void ScriptedKeyerTest::thePortComesAndGoesWithThePlug() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn({u"--headless"_s, u"--script"_s, u"-"_s}));
    const QString first = QFile::symLinkTarget(keyer.linkPath());
    const Port pulled(keyer.linkPath());
    keyer.process().write("pull\n");
    QTRY_VERIFY_WITH_TIMEOUT(!QFileInfo(keyer.linkPath()).isSymLink(), 10'000);
    QCOMPARE(pulled.read(1), QByteArray());
    keyer.process().write("plug\n");
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(keyer.linkPath()).isSymLink(), 10'000);
    const Port port(keyer.linkPath());
    port.send(QByteArray("\0\4U", 3));
    QCOMPARE(port.read(1), QByteArray("U"));
    keyer.process().closeWriteChannel();
    QVERIFY(keyer.process().waitForFinished(10'000));
    QCOMPARE(keyer.process().exitCode(), 0);
}

void ScriptedKeyerTest::aSignalBeforeTheEndEndsBadly() {
    KeyerProcess keyer(*_runtime);
    const QString script = write("at 600 expect key up\n");
    QVERIFY(keyer.plugIn({u"--headless"_s, u"--script"_s, script}));
    keyer.end(SIGTERM);
    QCOMPARE(keyer.process().exitCode(), 3);
    QVERIFY(keyer.errors().endsWith(u"%1:1: not done before the end\n"_s.arg(script)));
}

void ScriptedKeyerTest::fastTimeNeedsNoPort() {
    KeyerProcess keyer(*_runtime);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(keyer.runToEnd({u"--fast"_s, u"--script"_s,
                             write("send 00 02 02 14 \"PARIS PARIS\"\n"
                                   "within 60 expect keyed \"PARIS PARIS\"\n"
                                   "at 3600 expect key up\n")}),
             0);
    QVERIFY(timer.elapsed() < 60'000);
    QCOMPARE(keyer.output().trimmed(), u"PARIS PARIS"_s);
    QCOMPARE(keyer.errors(), QString());
    QVERIFY(!QDir(_runtime->path() + u"/quorvel"_s).exists());
}

static const RegisteredTest<ScriptedKeyerTest> registered;
#include "ScriptedKeyerTest.moc"
