#include "tests/support/RegisteredTest.h"
#include "tests/virtualkeyer/program/KeyerProcess.h"
#include "tests/virtualkeyer/program/Port.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <csignal>
#include <memory>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

constexpr char idle = '\xC0';

const QByteArray openCommand("\x00\x02", 2);
const QByteArray serialEchoOn("\x0E\x04", 2);
const QByteArray fortyWpm("\x02\x28", 2);

/// What the keyer echoed among its status bytes.
QByteArray echoesIn(const QByteArray& bytes) {
    QByteArray echoes;
    for (const char byte : bytes) {
        if ((static_cast<unsigned char>(byte) & 0x80U) == 0) {
            echoes += byte;
        }
    }
    return echoes;
}

QStringList linesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

/// CPU time used and times gone to sleep, which a blocked process leaves as they are.
QString effortOf(qint64 process) {
    const QString directory = u"/proc/%1/"_s.arg(process);
    QString effort;
    for (const QString& line : linesOf(directory + u"status"_s)) {
        if (line.contains("ctxt_switches"_L1)) {
            effort += line + u' ';
        }
    }
    const QStringList fields = linesOf(directory + u"stat"_s).value(0).split(u' ');
    return effort + fields.value(13) + u' ' + fields.value(14);
}

} // namespace

class VirtualKeyerProgramTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void itSaysWhereItIsPluggedIn();
    void itSaysThatNoWindowCanBeShownUnlessItIsHeadless();
    void theHostsTextIsKeyedEchoedPrintedAndWrittenDown();
    void theTextIsPrintedAsItIsKeyed();
    void thePotStandsWhereItWasToldTo_data();
    void thePotStandsWhereItWasToldTo();
    void aProfileChangesWhatTheHostSees();
    void thePaddleIsWorkedByStandardInput();
    void aKeyerMayBeOfSeveralKinds();
    void aBootLoaderSwallowsWhatComesInTheFirstMoment();
    void thePortCanBeClosedAndOpenedAgain();
    void itBlocksWhileNothingHappens_data();
    void itBlocksWhileNothingHappens();
    void aSignalEndsItAndPullsThePort_data();
    void aSignalEndsItAndPullsThePort();
    void itCanBePluggedInAgainAfterACrash();
    void aNameInUseIsRefused();
    void twoKeyersWithNamesOfTheirOwnLiveTogether();
    void aReaderOfTheTextThatGoesAwayEndsIt();
    void aTranscriptThatTakesNoMoreEndsIt();
    void theRegistersAreInTheirFileFromTheStart();
    void theRegistersFollowTheHost();
    void aDirectoryOfRegistersThatGoesEndsIt();
    void aMissingRuntimeDirectoryIsAFailure();
    void withoutARuntimeDirectoryQtsPlaceIsUsed();
    void badOptionsAreRefused_data();
    void badOptionsAreRefused();
    void helpListsOptionsAndProfiles();
    void versionIsTheProjects();

  private:
    [[nodiscard]] QString inRuntime(const QString& path) const {
        return _runtime->path() + u'/' + path;
    }

    std::unique_ptr<QTemporaryDir> _runtime;
};

void VirtualKeyerProgramTest::init() {
    _runtime = std::make_unique<QTemporaryDir>();
    QVERIFY(_runtime->isValid());
}

void VirtualKeyerProgramTest::itSaysWhereItIsPluggedIn() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn({u"--headless"_s}));
    QCOMPARE(keyer.errors(), u"Plugged in as usbserial-virtual (%1)\n"_s.arg(keyer.linkPath()));
    QVERIFY(QFileInfo(keyer.linkPath()).isSymLink());
    QVERIFY(QFile::symLinkTarget(keyer.linkPath()).startsWith(u"/dev/pts/"_s));
}

void VirtualKeyerProgramTest::itSaysThatNoWindowCanBeShownUnlessItIsHeadless() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn());
    QTRY_COMPARE(keyer.errors(),
                 u"Plugged in as usbserial-virtual (%1)\n"
                 "No window can be shown. What is keyed is printed here, until Ctrl+C.\n"_s.arg(
                     keyer.linkPath()));
}

void VirtualKeyerProgramTest::theHostsTextIsKeyedEchoedPrintedAndWrittenDown() {
    const QString transcript = inRuntime(u"transcript"_s);
    KeyerProcess keyer(*_runtime);
    QVERIFY2(keyer.plugIn({u"--headless"_s, u"--transcript"_s, transcript}),
             qPrintable(keyer.errors()));
    const Port port(keyer.linkPath());
    QVERIFY(port.isOpen());
    port.send(openCommand);
    QCOMPARE(port.read(1), QByteArray("\x17"));
    port.send(fortyWpm + serialEchoOn + "CQ K");
    const QByteArray answer = port.readUntil(idle);
    QVERIFY2(answer.startsWith('\xC4') && answer.endsWith(idle), answer.toHex(' ').constData());
    QCOMPARE(echoesIn(answer), QByteArray("CQ K"));
    QTRY_COMPARE(keyer.output(), u"CQ K"_s);

    const QStringList lines = linesOf(transcript);
    QCOMPARE(lines.filter(u"key down 1"_s).size(), 11);
    QCOMPARE(lines.filter(u"key up 1"_s).size(), 11);
    QVERIFY(lines.value(0).endsWith("host 17"_L1));
    const QRegularExpression form(
        uR"(^(\d+\.\d{3}) (host [0-9A-F]{2}|key (down|up) [12]|ptt (on|off)|tone (\d+|off))$)"_s);
    QCOMPARE(lines.filter(form), lines);
    const QStringList edges = lines.filter(u" key "_s);
    const double firstDah = form.match(edges.value(1)).captured(1).toDouble() -
                            form.match(edges.value(0)).captured(1).toDouble();
    QCOMPARE(qRound(firstDah * 1000), 90'000);
}

void VirtualKeyerProgramTest::theTextIsPrintedAsItIsKeyed() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn());
    const Port port(keyer.linkPath());
    port.send(openCommand + serialEchoOn + "E");
    QVERIFY(port.readUntil('E').endsWith('E'));
    QTRY_COMPARE(keyer.output(), u"E"_s);
}

void VirtualKeyerProgramTest::thePotStandsWhereItWasToldTo_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("potByte");
    QTest::newRow("at 20 wpm by default") << QStringList{} << 0x80 + 20 - 10;
    QTest::newRow("at 15 wpm on request") << QStringList{u"--speed"_s, u"15"_s} << 0x80 + 15 - 10;
}

void VirtualKeyerProgramTest::thePotStandsWhereItWasToldTo() {
    QFETCH(QStringList, arguments);
    QFETCH(int, potByte);
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn(arguments));
    const Port port(keyer.linkPath());
    port.send(openCommand + '\x07');
    QCOMPARE(port.read(2), QByteArray("\x17") + static_cast<char>(potByte));
}

void VirtualKeyerProgramTest::aProfileChangesWhatTheHostSees() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn({u"--profile"_s, u"status-after-open"_s}));
    const Port port(keyer.linkPath());
    port.send(openCommand);
    QCOMPARE(port.read(2), QByteArray("\x17\xC0"));
}

void VirtualKeyerProgramTest::thePaddleIsWorkedByStandardInput() {
    KeyerProcess keyer(*_runtime);
    const auto transcript = inRuntime(u"transcript"_s);
    QVERIFY(keyer.plugIn({u"--paddle"_s, u"--transcript"_s, transcript}));
    const auto timesDown = [&transcript] {
        return linesOf(transcript).filter(u" key down"_s).size();
    };
    keyer.process().write(".");
    QTRY_VERIFY(timesDown() > 0);
    keyer.process().write(" ");
    // A slow machine lets go late.
    QTRY_VERIFY(u"EISH5"_s.contains(keyer.output().trimmed()) && !keyer.output().isEmpty());
    const auto dits = keyer.output().trimmed();
    const auto before = timesDown();
    keyer.process().write("-");
    QTRY_VERIFY(timesDown() > before);
    // The end of the input is no contact that stays closed, and does not end the keyer.
    keyer.process().closeWriteChannel();
    QTRY_VERIFY(keyer.output().trimmed().size() > dits.size());
    QVERIFY(u"TMO0"_s.contains(keyer.output().trimmed().sliced(dits.size()).trimmed().first(1)));
    QCOMPARE(keyer.process().state(), QProcess::Running);
    keyer.end(SIGTERM);
}

void VirtualKeyerProgramTest::aKeyerMayBeOfSeveralKinds() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn({u"--profile"_s, u"status-after-open,late-echo"_s}));
    const Port port(keyer.linkPath());
    port.send(openCommand + serialEchoOn + "#");
    QCOMPARE(port.readUntil('?'), QByteArray("\x17\xC0\xC4?"));
}

void VirtualKeyerProgramTest::aBootLoaderSwallowsWhatComesInTheFirstMoment() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn({u"--profile"_s, u"boot-loader"_s}));
    QElapsedTimer sinceOpening;
    sinceOpening.start();
    const Port port(keyer.linkPath());
    QByteArray answer;
    while (answer.isEmpty() && !sinceOpening.hasExpired(10'000)) {
        port.send(openCommand);
        answer = port.read(1, 100);
    }
    QCOMPARE(answer, QByteArray("\x17"));
    QVERIFY2(sinceOpening.elapsed() >= 1300, qPrintable(QString::number(sinceOpening.elapsed())));
}

void VirtualKeyerProgramTest::thePortCanBeClosedAndOpenedAgain() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn());
    for (int i = 0; i < 3; ++i) {
        const Port port(keyer.linkPath());
        QVERIFY(port.isOpen());
        port.send(openCommand);
        QCOMPARE(port.read(1), QByteArray("\x17"));
    }
}

void VirtualKeyerProgramTest::itBlocksWhileNothingHappens_data() {
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("before the port was ever opened") << QByteArray();
    QTest::newRow("after the port was closed") << QByteArray("\x00\x04U", 3);
}

void VirtualKeyerProgramTest::itBlocksWhileNothingHappens() {
    QFETCH(QByteArray, sent);
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn());
    if (!sent.isEmpty()) {
        const Port port(keyer.linkPath());
        port.send(sent);
        QCOMPARE(port.read(1), sent.last(1));
    }
    // Its way into the wait may still be under way, but then nothing may happen any more.
    const qint64 process = keyer.process().processId();
    QString before;
    int tries = 20;
    do {
        before = effortOf(process);
        QTest::qWait(300);
    } while (effortOf(process) != before && --tries > 0);
    QVERIFY2(tries > 0, qPrintable(before));
}

void VirtualKeyerProgramTest::aSignalEndsItAndPullsThePort_data() {
    QTest::addColumn<int>("signalNumber");
    QTest::addColumn<bool>("isKeying");
    QTest::newRow("SIGTERM") << SIGTERM << false;
    QTest::newRow("SIGINT") << SIGINT << false;
    QTest::newRow("SIGHUP") << SIGHUP << false;
    QTest::newRow("SIGTERM while it is keying") << SIGTERM << true;
}

void VirtualKeyerProgramTest::aSignalEndsItAndPullsThePort() {
    QFETCH(int, signalNumber);
    QFETCH(bool, isKeying);
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn());
    const Port port(keyer.linkPath());
    if (isKeying) {
        port.send(openCommand + "PARIS PARIS");
        QCOMPARE(port.read(2), QByteArray("\x17\xC4"));
    }
    keyer.end(signalNumber);
    QCOMPARE(keyer.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(keyer.process().exitCode(), 0);
    QVERIFY(!QFileInfo(keyer.linkPath()).isSymLink());
}

void VirtualKeyerProgramTest::itCanBePluggedInAgainAfterACrash() {
    KeyerProcess crashing(*_runtime);
    QVERIFY(crashing.plugIn());
    crashing.end(SIGKILL);
    KeyerProcess keyer(*_runtime);
    QVERIFY2(keyer.plugIn(), qPrintable(keyer.errors()));
    const Port port(keyer.linkPath());
    port.send(openCommand);
    QCOMPARE(port.read(1), QByteArray("\x17"));
}

void VirtualKeyerProgramTest::aNameInUseIsRefused() {
    KeyerProcess first(*_runtime);
    QVERIFY(first.plugIn());
    KeyerProcess second(*_runtime);
    QCOMPARE(second.runToEnd({}), 1);
    QCOMPARE(second.errors(),
             u"quorvel-virtual-keyer: a running virtual keyer (process %1) "
             "already holds the name usbserial-virtual\n"_s.arg(first.process().processId()));
    const Port port(first.linkPath());
    port.send(openCommand);
    QCOMPARE(port.read(1), QByteArray("\x17"));
}

void VirtualKeyerProgramTest::twoKeyersWithNamesOfTheirOwnLiveTogether() {
    KeyerProcess first(*_runtime);
    QVERIFY(first.plugIn());
    KeyerProcess second(*_runtime);
    QVERIFY(second.plugIn({u"--link"_s, u"other"_s}));
    for (const QString& name : {u"usbserial-virtual"_s, u"other"_s}) {
        const Port port(inRuntime(u"quorvel/ports/"_s + name));
        port.send(openCommand);
        QCOMPARE(port.read(1), QByteArray("\x17"));
    }
}

void VirtualKeyerProgramTest::aReaderOfTheTextThatGoesAwayEndsIt() {
    const QString pipe = inRuntime(u"pipe"_s);
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    auto reader = std::make_unique<Port>(pipe);
    QVERIFY(reader->isOpen());
    KeyerProcess keyer(*_runtime);
    keyer.process().setStandardOutputFile(pipe);
    QVERIFY(keyer.plugIn());
    reader.reset();
    const Port port(keyer.linkPath());
    port.send(openCommand + "E");
    QVERIFY(keyer.process().waitForFinished(10'000));
    QCOMPARE(keyer.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(keyer.process().exitCode(), 1);
    QVERIFY(keyer.errors().endsWith(
        u"quorvel-virtual-keyer: cannot print the keyed text: Broken pipe\n"_s));
    QVERIFY(!QFileInfo(keyer.linkPath()).isSymLink());
}

void VirtualKeyerProgramTest::aTranscriptThatTakesNoMoreEndsIt() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn({u"--transcript"_s, u"/dev/full"_s}));
    const Port port(keyer.linkPath());
    port.send(openCommand);
    QVERIFY(keyer.process().waitForFinished(10'000));
    QCOMPARE(keyer.process().exitCode(), 1);
    QVERIFY(keyer.errors().endsWith(u"quorvel-virtual-keyer: cannot write the transcript "
                                    "/dev/full: No space left on device\n"_s));
}

void VirtualKeyerProgramTest::theRegistersAreInTheirFileFromTheStart() {
    const QString registers = inRuntime(u"registers"_s);
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn({u"--registers"_s, registers}));
    QCOMPARE(linesOf(registers).value(0), u"mode 0"_s);
    QVERIFY(linesOf(registers).contains(u"weighting 50"_s));
}

void VirtualKeyerProgramTest::theRegistersFollowTheHost() {
    const QString registers = inRuntime(u"registers"_s);
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn({u"--registers"_s, registers}));
    const Port port(keyer.linkPath());
    port.send(openCommand + fortyWpm + serialEchoOn);
    QTRY_VERIFY(linesOf(registers).contains(u"mode 4"_s));
    QVERIFY(linesOf(registers).contains(u"speed 40"_s));
    QVERIFY(linesOf(registers).contains(u"wpm 40"_s));
    QCOMPARE(QDir(_runtime->path()).entryList({u"registers*"_s}), {u"registers"_s});
}

void VirtualKeyerProgramTest::aDirectoryOfRegistersThatGoesEndsIt() {
    QDir(_runtime->path()).mkdir(u"gone"_s);
    KeyerProcess keyer(*_runtime);
    QVERIFY(keyer.plugIn({u"--registers"_s, inRuntime(u"gone/registers"_s)}));
    QVERIFY(QDir(inRuntime(u"gone"_s)).removeRecursively());
    const Port port(keyer.linkPath());
    port.send(openCommand + fortyWpm);
    QVERIFY(keyer.process().waitForFinished(10'000));
    QCOMPARE(keyer.process().exitCode(), 1);
    QVERIFY(keyer.errors().endsWith(
        u"quorvel-virtual-keyer: cannot write the registers "
        "%1/gone/registers: No such file or directory\n"_s.arg(_runtime->path())));
}

void VirtualKeyerProgramTest::aMissingRuntimeDirectoryIsAFailure() {
    KeyerProcess keyer(*_runtime);
    QVERIFY(_runtime->remove());
    QCOMPARE(keyer.runToEnd({}), 1);
    QCOMPARE(keyer.errors(), u"quorvel-virtual-keyer: cannot make the directory %1/quorvel: "
                             "No such file or directory\n"_s.arg(_runtime->path()));
}

void VirtualKeyerProgramTest::withoutARuntimeDirectoryQtsPlaceIsUsed() {
    KeyerProcess keyer(*_runtime);
    auto environment = keyer.process().processEnvironment();
    environment.remove(u"XDG_RUNTIME_DIR"_s);
    environment.insert(u"TMPDIR"_s, _runtime->path());
    keyer.process().setProcessEnvironment(environment);
    keyer.process().start(QStringLiteral(KEYER_PROGRAM), QStringList());
    QTRY_VERIFY_WITH_TIMEOUT(keyer.errors().contains(u"Plugged in as"_s), 10'000);
    const QStringList places =
        QDir(_runtime->path()).entryList({u"runtime-*"_s}, QDir::Dirs | QDir::NoDotAndDotDot);
    QCOMPARE(places.size(), 1);
    QVERIFY(
        QFileInfo(inRuntime(places.first() + u"/quorvel/ports/usbserial-virtual"_s)).isSymLink());
}

void VirtualKeyerProgramTest::badOptionsAreRefused_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const QStringList& arguments, const QString& message) {
        QTest::newRow(name) << arguments << message;
    };
    row("an unknown option", {u"--volume"_s}, u"Unknown option 'volume'."_s);
    row("an argument that is no option", {u"ttyUSB0"_s}, u"Unexpected argument 'ttyUSB0'."_s);
    row("an option without its value", {u"--speed"_s}, u"Missing value after '--speed'."_s);
    const QString speed = u"The speed is 5 to 99 words per minute, not '%1'."_s;
    row("a speed below the range", {u"--speed"_s, u"4"_s}, speed.arg(u"4"_s));
    row("a speed above the range", {u"--speed"_s, u"100"_s}, speed.arg(u"100"_s));
    row("a speed that is no number", {u"--speed"_s, u"fast"_s}, speed.arg(u"fast"_s));
    row("a speed with a fraction", {u"--speed=20.5"_s}, speed.arg(u"20.5"_s));
    row("an unknown profile", {u"--profile"_s, u"perfect"_s},
        u"Unknown profile 'perfect'; --help lists them."_s);
    row("an unknown one among known profiles", {u"--profile"_s, u"late-echo,perfect"_s},
        u"Unknown profile 'perfect'; --help lists them."_s);
    const QString name = u"'%1' cannot name a serial port: a name has 1 to 200 characters, no "
                         "slash, and does not begin with a dot."_s;
    row("a name with a slash", {u"--link"_s, u"../keyer"_s}, name.arg(u"../keyer"_s));
    row("an empty name", {u"--link="_s}, name.arg(QString()));
    row("a script without a name", {u"--script="_s}, u"The script needs a file name."_s);
    row("a script that is missing", {u"--script"_s, u"/nowhere/at/all"_s},
        u"cannot read the script /nowhere/at/all: No such file or directory"_s);
    row("a sound without a name", {u"--wav="_s}, u"The sound needs a file name."_s);
    row("a sound that is a directory", {u"--wav"_s, u"/"_s},
        u"cannot write the sound /: Is a directory"_s);
    row("fast time without a script", {u"--fast"_s}, u"Only a script can be fast."_s);
    row("two for standard input", {u"--paddle"_s, u"--script"_s, u"-"_s},
        u"Standard input is either the script or the paddle."_s);
    row("a transcript without a name", {u"--transcript="_s},
        u"The transcript needs a file name."_s);
    row("registers without a name", {u"--registers="_s}, u"The registers need a file name."_s);
    row("registers in a directory that is missing", {u"--registers"_s, u"/nowhere/at/all"_s},
        u"cannot write the registers /nowhere/at/all: No such file or directory"_s);
    row("a transcript in a directory that is missing", {u"--transcript"_s, u"/nowhere/at/all"_s},
        u"cannot write the transcript /nowhere/at/all: No such file or directory"_s);
    row("a transcript that is a directory", {u"--transcript"_s, u"/"_s},
        u"cannot write the transcript /: Is a directory"_s);
}

void VirtualKeyerProgramTest::badOptionsAreRefused() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    KeyerProcess keyer(*_runtime);
    QCOMPARE(keyer.runToEnd(arguments), 2);
    QCOMPARE(keyer.errors(), u"quorvel-virtual-keyer: %1\n"_s.arg(message));
    QCOMPARE(keyer.output(), QString());
    QVERIFY(!QDir(inRuntime(u"quorvel"_s)).exists());
}

void VirtualKeyerProgramTest::helpListsOptionsAndProfiles() {
    KeyerProcess keyer(*_runtime);
    QCOMPARE(keyer.runToEnd({u"--help"_s}), 0);
    const QString help = keyer.output();
    for (const QString& word : {u"--headless"_s,         u"--transcript <FILE>"_s,
                                u"--registers <FILE>"_s, u"--speed <WPM>"_s,
                                u"--profile <NAMES>"_s,  u"--link <NAME>"_s,
                                u"--version"_s,          u"default: a version 2 keyer"_s,
                                u"late-echo:"_s,         u"no-echo:"_s,
                                u"status-after-open:"_s, u"echo-then-idle:"_s,
                                u"idle-then-echo:"_s,    u"early-xoff:"_s,
                                u"abrupt-clear:"_s,      u"boot-loader:"_s,
                                u"start-beep:"_s,        u"no-memory-load:"_s,
                                u"single-break-in:"_s,   u"late-break-in:"_s,
                                u"repeat-after-pause:"_s}) {
        QVERIFY2(help.contains(word), qPrintable(word));
    }
    QCOMPARE(keyer.errors(), QString());
}

void VirtualKeyerProgramTest::versionIsTheProjects() {
    KeyerProcess keyer(*_runtime);
    QCOMPARE(keyer.runToEnd({u"--version"_s}), 0);
    QCOMPARE(keyer.output(), u"quorvel-virtual-keyer " KEYER_VERSION "\n"_s);
}

static const RegisteredTest<VirtualKeyerProgramTest> registered;
#include "VirtualKeyerProgramTest.moc"
