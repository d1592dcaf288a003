#include "serial/ORSSerialPortManager.h"

#include "serial/ExclusiveDevice.h"
#include "tests/serial/ManagerBench.h"
#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/RecordingDelegate.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/SystemCallFaults.h"

#include <QSemaphore>

#include <cerrno>
#include <optional>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// A device that has not taken all that was written when the machine goes to sleep, and the wake
/// after it.
class ORSSerialPortManagerWakeTest : public ManagerBench {
    Q_OBJECT
  private Q_SLOTS:
    void init();
    void cleanup();

    void theSleepWaitsForADeviceThatIsAboutToBeThrough();
    void aPortIsOpenedOnceItsDeviceHasTakenAll();
    void aDeviceThatTakesNothingIsGivenUpAndReported();
    void asleepAgainThePortStaysClosedUntilTheNextWake();
    void aPortThatGoesMeanwhileStaysClosed();

  private:
    void takeAll() { _taken.release(1000); }
    /// Whether anybody may open the device. It is let go of again, or it would stay locked.
    [[nodiscard]] bool isFree() const {
        const auto device = ExclusiveDevice::open(_line->path());
        return device.isValid() && ExclusiveDevice::release(device.descriptor);
    }
    void pass(Clock::Duration duration) { clock().advance(duration); }

    QSemaphore _taken;
    std::optional<SystemCallFaults> _faults;
    std::optional<PseudoTerminalPair> _line;
    DeviceHandle _device = noDevice;
    std::optional<RecordingDelegate> _delegate;
    std::shared_ptr<ORSSerialPort> _port;
};

/// The port is open, and its device takes its time.
void ORSSerialPortManagerWakeTest::init() {
    start();
    _line.emplace();
    _device = devices().plug(u"a"_s, _line->path());
    _port = manager().objectInAvailablePortsAtIndex(0);
    _delegate.emplace();
    _port->setDelegate(&*_delegate);
    _faults.emplace();
    _faults->setModemWord(0);
    _faults->setOutputWaiting(1);
    _port->open();
    QTRY_COMPARE(_delegate->count(u"opened"_s), 1);
    _faults->beforeEach(SystemCall::TcSetAttr, [this, main = std::this_thread::get_id()](int) {
        if (std::this_thread::get_id() != main) {
            _taken.acquire();
        }
    });
}

void ORSSerialPortManagerWakeTest::cleanup() {
    takeAll();
    _port->setDelegate(nullptr);
    QVERIFY(_port->close());
    QTRY_VERIFY(isFree());
    _port.reset();
    _faults.reset();
    _taken.acquire(_taken.available());
    _line.reset();
    end();
}

/// It would else take the rest of a block along, which the line then breaks off.
void ORSSerialPortManagerWakeTest::theSleepWaitsForADeviceThatIsAboutToBeThrough() {
    std::jthread device([this] {
        std::this_thread::sleep_for(300ms);
        takeAll();
    });
    post(NSWorkspaceWillSleepNotification);
    QVERIFY(isFree());
    post(NSWorkspaceDidWakeNotification);
    QVERIFY(_port->isOpen());
}

void ORSSerialPortManagerWakeTest::aPortIsOpenedOnceItsDeviceHasTakenAll() {
    post(NSWorkspaceWillSleepNotification);
    QVERIFY(!_port->isOpen());
    post(NSWorkspaceDidWakeNotification);
    QVERIFY(!_port->isOpen());
    pass(5s);
    QVERIFY(!_port->isOpen());
    QCOMPARE(_delegate->errors().size(), 0);
    takeAll();
    QTRY_VERIFY((pass(100ms), _port->isOpen()));
    QTRY_COMPARE(_delegate->count(u"opened"_s), 2);
    QVERIFY(manager().portsToReopenAfterSleep().isEmpty());
    pass(1h);
    QCOMPARE(_delegate->count(u"opened"_s), 2);
    QCOMPARE(_delegate->errors().size(), 0);
}

void ORSSerialPortManagerWakeTest::aDeviceThatTakesNothingIsGivenUpAndReported() {
    post(NSWorkspaceWillSleepNotification);
    post(NSWorkspaceDidWakeNotification);
    pass(9s);
    QCOMPARE(manager().portsToReopenAfterSleep(), Ports{_port});
    pass(1s);
    QVERIFY(manager().portsToReopenAfterSleep().isEmpty());
    QTRY_COMPARE(_delegate->errors().size(), 1);
    takeAll();
    pass(1h);
    QVERIFY(!_port->isOpen());
}

void ORSSerialPortManagerWakeTest::asleepAgainThePortStaysClosedUntilTheNextWake() {
    post(NSWorkspaceWillSleepNotification);
    post(NSWorkspaceDidWakeNotification);
    pass(1s);
    takeAll();
    post(NSWorkspaceWillSleepNotification);
    QCOMPARE(manager().portsToReopenAfterSleep(), Ports{_port});
    pass(1h);
    QVERIFY(!_port->isOpen());
    QTRY_VERIFY(isFree());
    post(NSWorkspaceDidWakeNotification);
    QVERIFY(_port->isOpen());
    QCOMPARE(_delegate->errors().size(), 0);
}

void ORSSerialPortManagerWakeTest::aPortThatGoesMeanwhileStaysClosed() {
    post(NSWorkspaceWillSleepNotification);
    post(NSWorkspaceDidWakeNotification);
    devices().unplug(_device);
    takeAll();
    QTRY_VERIFY(isFree());
    pass(1h);
    QVERIFY(!_port->isOpen());
    QCOMPARE(_delegate->errors().size(), 0);
}

static const RegisteredTest<ORSSerialPortManagerWakeTest> registered;
#include "ORSSerialPortManagerWakeTest.moc"
