// A driver that does not answer.

#include "tests/serial/PortBench.h"
#include "tests/support/RegisteredTest.h"

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
