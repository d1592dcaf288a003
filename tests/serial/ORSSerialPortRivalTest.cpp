// Another program on the same line, which takes what was meant for this one.

#include "tests/serial/PortBench.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"

#include <QFile>

#include <array>
#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <sys/wait.h>
#include <termios.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The line as another program has it that opened it first. It does not block.
class Rival {
  public:
    explicit Rival(const PseudoTerminalPair& line)
        : _descriptor(::open(line.path().toLocal8Bit().constData(),
                             O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {}
    Rival(const Rival&) = delete;
    Rival& operator=(const Rival&) = delete;
    ~Rival() { ::close(_descriptor); }

    [[nodiscard]] bool isOpen() const { return _descriptor >= 0; }

    /// Has everything that waits to be read vanish.
    void takeAll() const { ::tcflush(_descriptor, TCIFLUSH); }

  private:
    int _descriptor;
};

/// Another process, which does what it is made for and then sleeps until it is killed.
class OtherProgram {
  public:
    explicit OtherProgram(const std::function<void()>& action) {
        std::array<int, 2> ready{};
        if (::pipe(ready.data()) != 0) {
            qFatal("no pipe");
        }
        _process = ::fork();
        if (_process == 0) {
            action();
            [[maybe_unused]] const auto size = ::write(ready[1], "x", 1);
            for (;;) {
                ::pause();
            }
        }
        ::close(ready[1]);
        char byte = 0;
        [[maybe_unused]] const auto size = ::read(ready[0], &byte, 1);
        ::close(ready[0]);
    }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    ~OtherProgram() {
        ::kill(_process, SIGKILL);
        ::waitpid(_process, nullptr, 0);
    }

    [[nodiscard]] QString description() const {
        QFile name(u"/proc/%1/comm"_s.arg(_process));
        static_cast<void>(name.open(QIODevice::ReadOnly));
        return u"%1 (process %2)"_s.arg(QString::fromLocal8Bit(name.readAll()).trimmed())
            .arg(_process);
    }

  private:
    pid_t _process;
};

/// Ends a wait for bytes that would last for ever, by sending some, and remembers that it had to.
class Watchdog {
  public:
    explicit Watchdog(const PseudoTerminalPair& line)
        : _thread([this, &line](const std::stop_token& stop) {
              const auto limit = std::chrono::steady_clock::now() + 5s;
              while (!stop.stop_requested()) {
                  if (std::chrono::steady_clock::now() > limit) {
                      _hasBitten = true;
                      static_cast<void>(line.write("x"));
                  }
                  std::this_thread::sleep_for(10ms);
              }
          }) {}

    [[nodiscard]] bool hasBitten() const { return _hasBitten; }

  private:
    std::atomic<bool> _hasBitten = false;
    std::jthread _thread;
};

} // namespace

class ORSSerialPortRivalTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void aLineThatAnotherProgramHasOpenIsRefused() {
        PortBench bench;
        const auto path = bench.line.path().toLocal8Bit();
        {
            const OtherProgram other([&] {
                ::close(bench.line.farEnd());
                ::open(path.constData(), O_RDWR | O_NOCTTY);
            });
            const LogKeeper log;
            bench.port->open();
            QVERIFY(!bench.port->isOpen());
            QCOMPARE(log.lines(), QStringList{u"line is in use by "_s + other.description()});
            QTRY_COMPARE(bench.delegate.events(), QStringList{u"error"_s});
        }
        bench.port->open();
        QVERIFY(bench.port->isOpen());
    }

    void whoeverOnlyLooksAtTheNodeIsNoRival() {
        PortBench bench;
        const auto path = bench.line.path().toLocal8Bit();
        const OtherProgram other([&] {
            ::close(bench.line.farEnd());
            ::open(path.constData(), O_PATH);
        });
        bench.port->open();
        QVERIFY(bench.port->isOpen());
    }

    /// Between the look at who has it and the moment from which nobody else can.
    void aProgramThatOpensTheLineMeanwhileIsNotShutIn() {
        PortBench bench;
        const auto path = bench.line.path().toLocal8Bit();
        std::unique_ptr<OtherProgram> other;
        std::atomic<bool> hasCome = false;
        bench.faults.beforeEach(SystemCall::Open, [&](int) {
            if (!hasCome.exchange(true)) {
                other = std::make_unique<OtherProgram>([&] {
                    ::close(bench.line.farEnd());
                    ::open(path.constData(), O_RDWR | O_NOCTTY);
                });
            }
        });
        const LogKeeper log;
        bench.port->open();
        QVERIFY(hasCome);
        QVERIFY(!bench.port->isOpen());
        QCOMPARE(log.lines(), QStringList{u"line is in use by "_s + other->description()});
        QTRY_COMPARE(bench.delegate.events(), QStringList{u"error"_s});
        const Rival third(bench.line);
        QVERIFY(third.isOpen());
        other.reset();
    }

    void theFarEndMayHoldTheNearEndToo() {
        PortBench bench;
        const auto path = bench.line.path().toLocal8Bit();
        // A copy of this process has the far end as well.
        const OtherProgram keyer([&] { ::open(path.constData(), O_RDWR | O_NOCTTY); });
        bench.port->open();
        QVERIFY(bench.port->isOpen());
    }

    void closingDoesNotWaitForBytesThatSomebodyElseTook() {
        PortBench bench;
        const Rival rival(bench.line);
        QVERIFY(bench.open());
        bench.faults.beforeEach(SystemCall::Read, [&](int) { rival.takeAll(); });
        QVERIFY(bench.line.write("stolen"));
        QTRY_VERIFY(bench.faults.count(SystemCall::Read) > 0);
        const Watchdog watchdog(bench.line);
        QVERIFY(bench.port->close());
        QVERIFY(!watchdog.hasBitten());
        QCOMPARE(bench.delegate.received(), QByteArray());
    }

    void whatSomebodyElseLeavesIsReceived() {
        PortBench bench;
        const Rival rival(bench.line);
        QVERIFY(bench.open());
        std::atomic<bool> isStealing = true;
        bench.faults.beforeEach(SystemCall::Read, [&](int) {
            if (isStealing.exchange(false)) {
                rival.takeAll();
            }
        });
        QVERIFY(bench.line.write("stolen"));
        QTRY_VERIFY(!isStealing);
        QVERIFY(bench.line.write("left"));
        QTRY_COMPARE(bench.delegate.received(), "left"_ba);
    }
};

static const RegisteredTest<ORSSerialPortRivalTest> registered;
#include "ORSSerialPortRivalTest.moc"
