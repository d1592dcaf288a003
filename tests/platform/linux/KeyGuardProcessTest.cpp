#include "platform/linux/KeyGuardProcess.h"

#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/RegisteredTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const auto program = QStringLiteral(QUORVEL_KEY_GUARD);

/// Fifteen null commands, key up, clear buffer, host close.
const auto lastWords = QByteArray(15, 0x13) + QByteArray::fromHex("0b000a0003");

/// A program that has the port and a guard, as the application has them, and can be killed.
class Victim {
  public:
    /// `act` is what it does when the guard has started; then it waits for its end. `terminal` is
    /// that from which it was started, if any.
    explicit Victim(const PseudoTerminalPair& line, void (*act)(KeyGuardProcess&, int) = nullptr,
                    const PseudoTerminalPair* terminal = nullptr) {
        int pipe[2] = {};
        if (::pipe(pipe) != 0) {
            qFatal("There is no pipe to be had.");
        }
        _process = ::fork();
        if (_process == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            for (const auto number : {SIGABRT, SIGSEGV, SIGHUP}) {
                ::signal(number, SIG_DFL); // the test framework has something to say to them
            }
            if (terminal != nullptr) {
                takeAsItsOwn(*terminal);
            } else {
                ::setpgid(0, 0);
            }
            ::close(line.farEnd());
            const int port = ::open(qUtf8Printable(line.path()), O_RDWR | O_NOCTTY | O_CLOEXEC);
            ::ioctl(port, TIOCEXCL);
            KeyGuardProcess guard(program, port);
            if (act != nullptr) {
                act(guard, port);
            }
            const auto identifier = guard.processIdentifier();
            static_cast<void>(::write(pipe[1], &identifier, sizeof identifier));
            for (;;) {
                ::pause();
            }
        }
        ::close(pipe[1]);
        if (::read(pipe[0], &_guard, sizeof _guard) != sizeof _guard) {
            qFatal("The guard does not start.");
        }
        ::close(pipe[0]);
    }
    Victim(const Victim&) = delete;
    Victim& operator=(const Victim&) = delete;
    ~Victim() {
        ::kill(_process, SIGKILL);
        ::waitpid(_process, nullptr, 0);
    }

    [[nodiscard]] pid_t process() const { return _process; }
    [[nodiscard]] pid_t guard() const { return _guard; }

  private:
    /// As a shell's window does it; the end of that window then ends the session.
    static void takeAsItsOwn(const PseudoTerminalPair& terminal) {
        ::setsid();
        ::close(terminal.farEnd());
        const int descriptor = ::open(qUtf8Printable(terminal.path()), O_RDWR);
        if (::ioctl(descriptor, TIOCSCTTY, 0) != 0) {
            ::_exit(1);
        }
    }

    pid_t _process = 0;
    pid_t _guard = 0;
};

bool isRunning(pid_t process) {
    QFile file(u"/proc/%1/stat"_s.arg(process));
    return file.open(QIODevice::ReadOnly) && !file.readAll().contains(") Z ");
}

std::optional<GuardEnd> endOf(const QSignalSpy& ends) {
    return ends.first().first().value<std::optional<GuardEnd>>();
}

} // namespace

class KeyGuardProcessTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itLeavesWithTheLink();
    void aLinkThatEndsWhileItTunesLeavesTheKeyerAlone();
    void itLetsGoWhenTheApplicationDies_data();
    void itLetsGoWhenTheApplicationDies();
    void itOutlivesTheProcessGroup();
    void itOutlivesTheTerminal();
    void itLetsGoWhenTheApplicationIsSilentInTune();
    void silenceWithoutTuneIsNone();
    void aTuneThatHasEndedNeedsNoSigns();
    void itLeavesTheFlagsOfASharedPort();
    void itDropsTextThatHasNotLeftTheComputer();
    void anImageOfTheMemoryLeavesTheComputerFirst();
    void aPulledAdapterEndsIt();
    void aPulledAdapterEndsItWhenTheApplicationHangs();
    void itsViolentEndIsReported();
    void aGuardThatIsStoppedDoesNotHoldThePort();
    void thePortIsFreeAtOnce();
    void aProgramThatIsNotThereCannotBeStarted();
    void itRefusesWhatIsNoTerminal();
    void itNeedsLittle();
    void itSleepsWhileAllIsWell();
    void nothingIsLeftOfManyLinks();

  private:
    void openPort();
    [[nodiscard]] QByteArray written() { return _line->read(lastWords.size(), 10s); }

    std::optional<PseudoTerminalPair> _line;
    int _port = -1;
};

void KeyGuardProcessTest::init() {
    _line.emplace();
    openPort();
}

void KeyGuardProcessTest::cleanup() {
    ::close(_port);
    _line.reset();
}

void KeyGuardProcessTest::openPort() {
    _port = ::open(qUtf8Printable(_line->path()), O_RDWR | O_NOCTTY | O_CLOEXEC);
    QVERIFY(_port > 0);
}

void KeyGuardProcessTest::itLeavesWithTheLink() {
    pid_t process = 0;
    {
        const KeyGuardProcess guard(program, _port);
        process = guard.processIdentifier();
        QVERIFY(isRunning(process));
    }
    QCOMPARE(::kill(process, 0), -1);
    QCOMPARE(_line->readAvailable(), QByteArray());
}

void KeyGuardProcessTest::aLinkThatEndsWhileItTunesLeavesTheKeyerAlone() {
    {
        KeyGuardProcess guard(program, _port);
        guard.tell(GuardMessage::Tuning);
    }
    QCOMPARE(_line->readAvailable(), QByteArray());
}

void KeyGuardProcessTest::itLetsGoWhenTheApplicationDies_data() {
    QTest::addColumn<bool>("isTuning");
    QTest::addColumn<int>("signal");
    QTest::newRow("killed in tune") << true << SIGKILL;
    QTest::newRow("killed at rest") << false << SIGKILL;
    QTest::newRow("by an abort in tune") << true << SIGABRT;
    QTest::newRow("by a fault in tune") << true << SIGSEGV;
}

void KeyGuardProcessTest::itLetsGoWhenTheApplicationDies() {
    QFETCH(bool, isTuning);
    QFETCH(int, signal);
    const auto tune = [](KeyGuardProcess& guard, int) { guard.tell(GuardMessage::Tuning); };
    const Victim victim(*_line, isTuning ? +tune : nullptr);
    ::kill(victim.process(), signal);
    QElapsedTimer time;
    time.start();
    QCOMPARE(written(), lastWords);
    QVERIFY(std::chrono::milliseconds(time.elapsed()) < silenceLimit);
    QTRY_VERIFY(!isRunning(victim.guard()));
    // Not even the exclusive mode that the application left is left.
    ::close(_port);
    openPort();
}

/// Neither what ends all of a group or a session, nor what asks a program to end, ends the guard.
void KeyGuardProcessTest::itOutlivesTheProcessGroup() {
    const Victim victim(*_line);
    QTRY_COMPARE(::getsid(victim.guard()), victim.guard());
    for (const auto number : {SIGHUP, SIGINT, SIGTERM, SIGQUIT, SIGPIPE, SIGUSR1}) {
        ::kill(victim.guard(), number);
    }
    ::kill(-victim.process(), SIGKILL);
    QCOMPARE(written(), lastWords);
}

/// What hangs up is told to all of the session, and ends the application.
void KeyGuardProcessTest::itOutlivesTheTerminal() {
    PseudoTerminalPair terminal;
    const auto tune = [](KeyGuardProcess& guard, int) { guard.tell(GuardMessage::Tuning); };
    const Victim victim(*_line, tune, &terminal);
    QVERIFY(isRunning(victim.process()));
    // Some signals of a session can be blocked by nobody.
    QTRY_COMPARE(::getsid(victim.guard()), victim.guard());
    terminal.hangUp();
    QCOMPARE(written(), lastWords);
    QTRY_VERIFY(!isRunning(victim.process()));
    QTRY_VERIFY(!isRunning(victim.guard()));
}

void KeyGuardProcessTest::itLetsGoWhenTheApplicationIsSilentInTune() {
    KeyGuardProcess guard(program, _port);
    QSignalSpy ends(&guard, &KeyGuardProcess::ended);
    QElapsedTimer time;
    for (int i = 0; i < 4; ++i) {
        guard.tell(GuardMessage::Tuning);
        time.start();
        QTest::qWait(1000);
    }
    QCOMPARE(_line->readAvailable(), QByteArray());
    QCOMPARE(written(), lastWords);
    QVERIFY(std::chrono::milliseconds(time.elapsed()) >= silenceLimit);
    QTRY_COMPARE(ends.size(), 1);
    QVERIFY(endOf(ends) == GuardEnd::AfterSilence);
    QCOMPARE(guard.processIdentifier(), 0);
    guard.tell(GuardMessage::Tuning);
}

void KeyGuardProcessTest::silenceWithoutTuneIsNone() {
    KeyGuardProcess guard(program, _port);
    QSignalSpy ends(&guard, &KeyGuardProcess::ended);
    QVERIFY(!ends.wait(silenceLimit.count() + 1000));
    QCOMPARE(_line->readAvailable(), QByteArray());
}

void KeyGuardProcessTest::aTuneThatHasEndedNeedsNoSigns() {
    KeyGuardProcess guard(program, _port);
    QSignalSpy ends(&guard, &KeyGuardProcess::ended);
    guard.tell(GuardMessage::Tuning);
    guard.tell(GuardMessage::NotTuning);
    QVERIFY(!ends.wait(silenceLimit.count() + 1000));
    QCOMPARE(_line->readAvailable(), QByteArray());
}

/// An application that was silent and is not dead goes on with its port as it was.
void KeyGuardProcessTest::itLeavesTheFlagsOfASharedPort() {
    const int before = ::fcntl(_port, F_GETFL);
    KeyGuardProcess guard(program, _port);
    QSignalSpy ends(&guard, &KeyGuardProcess::ended);
    guard.tell(GuardMessage::Tuning);
    QVERIFY(ends.wait(10000));
    QCOMPARE(::fcntl(_port, F_GETFL), before);
    QCOMPARE(written(), lastWords);
}

/// The far end reads nothing until the application is dead.
void KeyGuardProcessTest::itDropsTextThatHasNotLeftTheComputer() {
    const Victim victim(*_line, [](KeyGuardProcess&, int port) {
        ::fcntl(port, F_SETFL, O_NONBLOCK);
        const QByteArray text(100'000, '|');
        static_cast<void>(::write(port, text.constData(), static_cast<size_t>(text.size())));
    });
    ::kill(victim.process(), SIGKILL);
    QTRY_VERIFY(!isRunning(victim.guard()));
    const auto all = _line->readAvailable();
    QVERIFY(all.endsWith(lastWords));
    // What the far end's own buffer holds has left the computer.
    QVERIFY2(all.size() <= 4096 + lastWords.size(), qPrintable(QString::number(all.size())));
}

void KeyGuardProcessTest::anImageOfTheMemoryLeavesTheComputerFirst() {
    const Victim victim(*_line, [](KeyGuardProcess& guard, int port) {
        guard.tell(GuardMessage::LoadingMemory);
        ::fcntl(port, F_SETFL, O_NONBLOCK);
        const QByteArray image(8192, 'i');
        static_cast<void>(::write(port, image.constData(), static_cast<size_t>(image.size())));
    });
    ::kill(victim.process(), SIGKILL);
    QByteArray all;
    QTRY_VERIFY((all += _line->readAvailable()).endsWith(lastWords));
    QCOMPARE(all, QByteArray(8192, 'i') + lastWords);
}

void KeyGuardProcessTest::aPulledAdapterEndsIt() {
    KeyGuardProcess guard(program, _port);
    QSignalSpy ends(&guard, &KeyGuardProcess::ended);
    guard.tell(GuardMessage::Tuning);
    _line->hangUp();
    QTRY_COMPARE(ends.size(), 1);
    QVERIFY(endOf(ends) == GuardEnd::PortLost);
}

void KeyGuardProcessTest::aPulledAdapterEndsItWhenTheApplicationHangs() {
    const Victim victim(*_line);
    ::kill(victim.process(), SIGSTOP);
    QVERIFY(isRunning(victim.guard()));
    _line->hangUp();
    QTRY_VERIFY(!isRunning(victim.guard()));
}

void KeyGuardProcessTest::itsViolentEndIsReported() {
    KeyGuardProcess guard(program, _port);
    QSignalSpy ends(&guard, &KeyGuardProcess::ended);
    ::kill(guard.processIdentifier(), SIGKILL);
    QTRY_COMPARE(ends.size(), 1);
    QVERIFY(!endOf(ends));
    QCOMPARE(_line->readAvailable(), QByteArray());
}

void KeyGuardProcessTest::aGuardThatIsStoppedDoesNotHoldThePort() {
    pid_t process = 0;
    {
        const KeyGuardProcess guard(program, _port);
        process = guard.processIdentifier();
        ::kill(process, SIGSTOP);
    }
    QCOMPARE(::kill(process, 0), -1);
}

void KeyGuardProcessTest::thePortIsFreeAtOnce() {
    QCOMPARE(::flock(_port, LOCK_EX | LOCK_NB), 0);
    { const KeyGuardProcess guard(program, _port); }
    ::close(_port);
    openPort();
    QCOMPARE(::flock(_port, LOCK_EX | LOCK_NB), 0);
}

void KeyGuardProcessTest::aProgramThatIsNotThereCannotBeStarted() {
    QVERIFY_THROWS_EXCEPTION(std::system_error,
                             KeyGuardProcess(u"/nowhere/quorvel-key-guard"_s, _port));
}

void KeyGuardProcessTest::itRefusesWhatIsNoTerminal() {
    QFile file(u"/dev/null"_s);
    QVERIFY(file.open(QIODevice::ReadWrite));
    KeyGuardProcess guard(program, file.handle());
    QSignalSpy ends(&guard, &KeyGuardProcess::ended);
    QTRY_COMPARE(ends.size(), 1);
    QVERIFY(endOf(ends) == GuardEnd::CannotStart);
}

void KeyGuardProcessTest::itNeedsLittle() {
    const KeyGuardProcess guard(program, _port);
    QTRY_COMPARE(::getsid(guard.processIdentifier()), guard.processIdentifier());
    const auto directory = u"/proc/%1/"_s.arg(guard.processIdentifier());
    QTRY_COMPARE(QDir(directory + u"fd"_s).entryList(QDir::System | QDir::Files).size(), 2);
#ifdef QUORVEL_KEY_GUARD_IS_STATIC
    QFile status(directory + u"status"_s);
    QVERIFY(status.open(QIODevice::ReadOnly));
    const auto text = QString::fromLatin1(status.readAll());
    const auto kilobytes =
        text.mid(text.indexOf(u"VmHWM:"_s) + 6, 20).trimmed().section(u' ', 0, 0);
    qInfo("The guard's resident set: %s kB", qPrintable(kilobytes));
    QVERIFY(kilobytes.toInt() > 0 && kilobytes.toInt() < 2048);
#endif
}

/// A process that wakes up, for whatever it is, has given up the processor once more afterwards.
void KeyGuardProcessTest::itSleepsWhileAllIsWell() {
    KeyGuardProcess guard(program, _port);
    QSignalSpy ends(&guard, &KeyGuardProcess::ended);
    guard.tell(GuardMessage::Tuning);
    guard.tell(GuardMessage::NotTuning);
    const auto status = [&guard](const QString& what) {
        QFile file(u"/proc/%1/status"_s.arg(guard.processIdentifier()));
        static_cast<void>(file.open(QIODevice::ReadOnly));
        const auto text = QString::fromLatin1(file.readAll());
        return text.mid(text.indexOf(u'\n' + what) + 1).section(u'\n', 0, 0).section(u'\t', 1);
    };
    const auto sleepsThroughout = [&] {
        const auto before = status(u"voluntary_ctxt_switches:"_s);
        return !ends.wait(silenceLimit.count() + 500) && !before.isEmpty() &&
               status(u"voluntary_ctxt_switches:"_s) == before;
    };
    // A busy machine may be late with its start.
    QVERIFY(sleepsThroughout() || sleepsThroughout());
    QVERIFY2(status(u"State:"_s).startsWith(u'S'), qPrintable(status(u"State:"_s)));
}

/// QUORVEL_SOAK_CYCLES is the number of links.
void KeyGuardProcessTest::nothingIsLeftOfManyLinks() {
    const int cycles = std::max(qEnvironmentVariableIntValue("QUORVEL_SOAK_CYCLES"), 200);
    const auto descriptors = [] {
        return QDir(u"/proc/self/fd"_s).entryList(QDir::System | QDir::Files).size();
    };
    const auto before = descriptors();
    for (int i = 0; i < cycles; ++i) {
        KeyGuardProcess guard(program, _port);
        if (i % 2 == 0) {
            guard.tell(GuardMessage::Tuning);
        }
    }
    QCOMPARE(descriptors(), before);
    // No child is left, running or waiting to be collected.
    QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1);
    QCOMPARE(errno, ECHILD);
    QCOMPARE(_line->readAvailable(), QByteArray());
}

static const RegisteredTest<KeyGuardProcessTest> registered;
#include "KeyGuardProcessTest.moc"
