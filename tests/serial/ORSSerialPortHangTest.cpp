// A driver that does not answer.

#include "tests/serial/PortBench.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSemaphore>

#include <atomic>
#include <memory>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Ends a test that waits for ever.
constexpr int longest = 20'000;

/// Holds up each such call that is not the main thread's, until it is let go of.
class Hang {
  public:
    Hang(SystemCallFaults& faults, SystemCall call) : _faults(faults), _call(call) {
        faults.beforeEach(call, [state = _state, main = std::this_thread::get_id()](int) {
            if (std::this_thread::get_id() != main && !state->isOver) {
                ++state->waiting;
                static_cast<void>(state->mayGoOn.tryAcquire(1, longest));
            }
        });
    }
    Hang(const Hang&) = delete;
    Hang& operator=(const Hang&) = delete;
    ~Hang() {
        end();
        _faults.beforeEach(_call, [](int) {});
    }

    [[nodiscard]] int waiting() const { return _state->waiting; }

    void end() {
        _state->isOver = true;
        _state->mayGoOn.release(1000);
    }

  private:
    struct State {
        std::atomic<bool> isOver = false;
        std::atomic<int> waiting = 0;
        QSemaphore mayGoOn;
    };

    SystemCallFaults& _faults;
    SystemCall _call;
    std::shared_ptr<State> _state = std::make_shared<State>();
};

} // namespace

class ORSSerialPortHangTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void closingDoesNotWaitForADriverThatHangs_data() {
        QTest::addColumn<SystemCall>("call");
        QTest::newRow("in a request of the poller") << SystemCall::Ioctl;
        QTest::newRow("in a read") << SystemCall::Read;
        QTest::newRow("in the line's settings") << SystemCall::TcSetAttr;
        QTest::newRow("in the close") << SystemCall::Close;
    }

    void closingDoesNotWaitForADriverThatHangs() {
        QFETCH(const SystemCall, call);
        PortBench bench;
        QVERIFY(bench.open());
        Hang hang(bench.faults, call);
        if (call == SystemCall::Read) {
            QVERIFY(bench.line.write("x"));
        }
        if (call == SystemCall::Read || call == SystemCall::Ioctl) {
            QTRY_VERIFY(hang.waiting() > 0);
        }
        QElapsedTimer time;
        time.start();
        QVERIFY(bench.port->close());
        QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
        QVERIFY(!bench.port->isOpen());
        QCOMPARE(bench.delegate.count(u"closed"_s), 1);
        // It stays taken until the driver answers.
        bench.port->open();
        QVERIFY(!bench.port->isOpen());
        hang.end();
        QTRY_VERIFY((bench.port->open(), bench.port->isOpen()));
        QVERIFY(bench.line.write("y"));
        QTRY_VERIFY(bench.delegate.received().endsWith('y'));
        QCOMPARE(bench.delegate.received(), "y"_ba);
    }

    /// Of drivers that rest when they close.
    void openingWaitsForADeviceThatTakesItsTime() {
        PortBench bench;
        QVERIFY(bench.open());
        Hang hang(bench.faults, SystemCall::TcSetAttr);
        QVERIFY(bench.port->close());
        const std::jthread later([&hang] {
            std::this_thread::sleep_for(200ms);
            hang.end();
        });
        bench.port->open();
        QVERIFY(bench.port->isOpen());
    }

    /// A driver that is asked while it closes answers when it has closed, if ever.
    void aDeviceThatIsNotLetGoOfIsWaitedForOnceAndNotAsked() {
        PortBench bench;
        QVERIFY(bench.open());
        Hang hang(bench.faults, SystemCall::TcSetAttr);
        QVERIFY(bench.port->close());
        const int opens = bench.faults.count(SystemCall::Open);
        bench.port->open();
        QVERIFY(!bench.port->isOpen());
        const LogKeeper log;
        QElapsedTimer time;
        time.start();
        for (int attempt = 0; attempt < 5; ++attempt) {
            bench.port->open();
            QVERIFY(!bench.port->isOpen());
        }
        QVERIFY2(time.elapsed() < 1000, qPrintable(QString::number(time.elapsed())));
        QCOMPARE(log.lines(), QStringList(5, u"The driver of line has not let go of it yet"_s));
        QCOMPARE(bench.faults.count(SystemCall::Open), opens);
        QTRY_COMPARE(bench.delegate.count(u"error"_s), 6);
        hang.end();
        QTRY_VERIFY((bench.port->open(), bench.port->isOpen()));
    }

    void openingDoesNotWaitForADriverThatHangs_data() {
        QTest::addColumn<SystemCall>("call");
        QTest::newRow("in the open") << SystemCall::Open;
        QTest::newRow("in the lock") << SystemCall::Flock;
        QTest::newRow("in the open for input") << SystemCall::OpenAt;
        QTest::newRow("in a request") << SystemCall::Ioctl;
    }

    void openingDoesNotWaitForADriverThatHangs() {
        QFETCH(const SystemCall, call);
        PortBench bench;
        const LogKeeper log;
        Hang hang(bench.faults, call);
        QElapsedTimer time;
        time.start();
        bench.port->open();
        QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
        QVERIFY(!bench.port->isOpen());
        QCOMPARE(hang.waiting(), 1);
        QTRY_COMPARE(bench.delegate.events(), QStringList{u"error"_s});
        // Who tries again does not wait again.
        time.restart();
        bench.port->open();
        QVERIFY2(time.elapsed() < 1000, qPrintable(QString::number(time.elapsed())));
        QVERIFY(!bench.port->isOpen());
        QCOMPARE(hang.waiting(), 1);
        QCOMPARE(log.lines(), (QStringList{u"The driver of line does not answer"_s,
                                           u"The driver of line has not let go of it yet"_s}));
        hang.end();
        // What came of it too late has been given back.
        QTRY_VERIFY((bench.port->open(), bench.port->isOpen()));
        QVERIFY(bench.line.write("y"));
        QTRY_COMPARE(bench.delegate.received(), "y"_ba);
    }

    void aPortThatIsLeftWhileItsDriverHangsEndsAtOnce() {
        const auto descriptors = QDir(u"/proc/self/fd"_s).count();
        {
            PortBench bench;
            Hang hang(bench.faults, SystemCall::Flock);
            const std::weak_ptr<ORSSerialPort> watched = bench.port;
            bench.port->open();
            QVERIFY(!bench.port->isOpen());
            QTRY_COMPARE(bench.delegate.events(), QStringList{u"error"_s});
            bench.port.reset();
            QVERIFY(watched.expired());
            hang.end();
            bench.port = ORSSerialPort::serialPortWithDevice(bench.device);
        }
        QTRY_COMPARE(QDir(u"/proc/self/fd"_s).count(), descriptors);
    }

    /// Though the thread that waits for the driver is the last one to know it.
    void aPortEndsOnTheMainThread() {
        PortBench bench;
        QVERIFY(bench.open());
        std::atomic<bool> hasEnded = false;
        std::atomic<bool> isElsewhere = false;
        connect(
            bench.port.get(), &QObject::destroyed, bench.port.get(),
            [&, main = std::this_thread::get_id()] {
                isElsewhere = std::this_thread::get_id() != main;
                hasEnded = true;
            },
            Qt::DirectConnection);
        {
            Hang hang(bench.faults, SystemCall::Ioctl);
            QTRY_VERIFY(hang.waiting() > 0);
            QVERIFY(bench.port->close());
            bench.port.reset();
            QVERIFY(!hasEnded);
        }
        QTRY_VERIFY(hasEnded);
        QVERIFY(!isElsewhere);
        bench.port = ORSSerialPort::serialPortWithDevice(bench.device);
    }
};

static const RegisteredTest<ORSSerialPortHangTest> registered;
#include "ORSSerialPortHangTest.moc"
