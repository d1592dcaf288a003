#include "tests/support/RegisteredTest.h"
#include "tests/virtualkeyer/program/KeyerProcess.h"
#include "tests/virtualkeyer/program/Port.h"
#include "virtualkeyer/NamedProfiles.h"
#include "virtualkeyer/pty/NamedTroubles.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QByteArray echoRequest(char byte) {
    return QByteArray("\0\4", 2) + byte;
}

} // namespace

/// What is wrong with the line, as the program is asked for it.
class LineTroublesProgramTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void aTroubleIsThereFromTheBeginning();
    void aScriptBeginsAndEndsTroubles();
    void theSeedRepeatsARun();
    void otherTroublesAreRefused_data();
    void otherTroublesAreRefused();
    void helpListsEveryKindAndEveryTrouble();

  private:
    [[nodiscard]] QString inRuntime(const QString& name) const {
        return _runtime->path() + u'/' + name;
    }
    [[nodiscard]] QByteArray transcriptOf(const QStringList& arguments);

    std::unique_ptr<QTemporaryDir> _runtime;
};

void LineTroublesProgramTest::init() {
    _runtime = std::make_unique<QTemporaryDir>();
    QVERIFY(_runtime->isValid());
}

void LineTroublesProgramTest::aTroubleIsThereFromTheBeginning() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn({u"--headless"_s, u"--trouble"_s, u"no-echo,delay:0.02"_s}));
    const Port port(keyer.linkPath());
    port.send(echoRequest('U') + QByteArray("\0\2", 2));
    QCOMPARE(port.read(1), QByteArray("\x17"));
}

void LineTroublesProgramTest::aScriptBeginsAndEndsTroubles() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn({u"--headless"_s, u"--script"_s, u"-"_s, u"--trouble"_s, u"lost:1"_s}));
    const Port port(keyer.linkPath());
    port.send(echoRequest('U'));
    QCOMPARE(port.read(1, 300), QByteArray());
    keyer.process().write("trouble none\n");
    QByteArray answer;
    QTRY_VERIFY((port.send(echoRequest('V')), answer = port.read(1, 200), !answer.isEmpty()));
    QCOMPARE(answer, "V"_ba);
}

QByteArray LineTroublesProgramTest::transcriptOf(const QStringList& arguments) {
    QFile script(inRuntime(u"script"_s));
    if (!script.open(QIODevice::WriteOnly)) {
        qFatal("no script");
    }
    script.write(
        "at 1 send 00 02 02 28\nafter 1 send \"PARIS PARIS PARIS PARIS PARIS\"\nafter 60\n");
    script.close();
    KeyerProcess keyer(*_runtime);
    if (keyer.runToEnd(QStringList{u"--fast"_s, u"--script"_s, script.fileName(), u"--transcript"_s,
                                   inRuntime(u"transcript"_s)} +
                       arguments) != 0) {
        qFatal("%s", qPrintable(keyer.errors()));
    }
    QFile transcript(inRuntime(u"transcript"_s));
    return transcript.open(QIODevice::ReadOnly) ? transcript.readAll() : QByteArray();
}

void LineTroublesProgramTest::theSeedRepeatsARun() {
    const QStringList troubles{u"--trouble"_s, u"lost:0.1,noise:0.05,late"_s};
    const auto first = transcriptOf(troubles + QStringList{u"--seed"_s, u"5"_s});
    QVERIFY(first.contains("key down"));
    QCOMPARE(transcriptOf(troubles + QStringList{u"--seed=5"_s}), first);
    QVERIFY(transcriptOf(troubles + QStringList{u"--seed=6"_s}) != first);
    QCOMPARE(transcriptOf(troubles), transcriptOf(troubles + QStringList{u"--seed=1"_s}));
}

void LineTroublesProgramTest::otherTroublesAreRefused_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    QTest::newRow("unknown") << QStringList{u"--trouble"_s, u"lost,gremlins"_s}
                             << u"'lost,gremlins' is no trouble; --help lists them."_s;
    QTest::newRow("too much") << QStringList{u"--trouble"_s, u"lost:2"_s}
                              << u"'lost:2' is no trouble; --help lists them."_s;
    QTest::newRow("a seed") << QStringList{u"--seed"_s, u"-1"_s}
                            << u"'-1' is no seed: a whole number, not below 0."_s;
}

void LineTroublesProgramTest::otherTroublesAreRefused() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    KeyerProcess keyer(*_runtime);
    QCOMPARE(keyer.runToEnd(arguments), 2);
    QCOMPARE(keyer.errors(), u"quorvel-virtual-keyer: %1\n"_s.arg(message));
    QVERIFY(!QDir(inRuntime(u"quorvel"_s)).exists());
}

void LineTroublesProgramTest::helpListsEveryKindAndEveryTrouble() {
    KeyerProcess keyer(*_runtime);
    QCOMPARE(keyer.runToEnd({u"--help"_s}), 0);
    const QString help = keyer.output();
    for (const auto& each : virtualkeyer::namedProfiles()) {
        const auto name = QString::fromUtf8(each.name.data(), qsizetype(each.name.size()));
        QVERIFY2(help.contains(u' ' + name + u": "_s), qPrintable(name));
    }
    for (const auto& each : virtualkeyer::namedTroubles()) {
        const auto name = QString::fromUtf8(each.name.data(), qsizetype(each.name.size()));
        QVERIFY2(help.contains(u' ' + name + u':'), qPrintable(name));
    }
}

static const RegisteredTest<LineTroublesProgramTest> registered;
#include "LineTroublesProgramTest.moc"
