#include "serial/ORSSerialPortManager.h"

#include "tests/serial/ManagerBench.h"
#include "tests/serial/ManagerObserver.h"
#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/RecordingDelegate.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/SystemCallFaults.h"

#include <QSignalSpy>

#include <algorithm>
#include <cerrno>

using namespace Qt::StringLiterals;

class ORSSerialPortManagerPowerTest : public ManagerBench {
    Q_OBJECT
  private Q_SLOTS:
    void init() { start(); }
    void cleanup() { end(); }

    void closesTheOpenPortForSleep();
    void doesNotRememberAPortThatStaysOpen();
    void forgetsAPortThatDoesNotReopen();
    void hearsOfSleepFromAnySender();
    void cleansEveryPortUpAtTheEnd();
    void runsOnWithoutAListAfterTheEnd();
    void sleepsWithoutAList();
};

void ORSSerialPortManagerPowerTest::closesTheOpenPortForSleep() {
    const PseudoTerminalPair first;
    const PseudoTerminalPair second;
    devices().plug(u"a"_s, first.path());
    devices().plug(u"b"_s, second.path());
    const auto open = manager().objectInAvailablePortsAtIndex(0);
    const auto closed = manager().objectInAvailablePortsAtIndex(1);
    open->open();
    QVERIFY(open->isOpen());
    post(NSWorkspaceWillSleepNotification);
    QVERIFY(!open->isOpen());
    QCOMPARE(manager().portsToReopenAfterSleep(), Ports{open});
    QCOMPARE(available(), QStringList({u"a"_s, u"b"_s}));
    post(NSWorkspaceWillSleepNotification);
    QCOMPARE(manager().portsToReopenAfterSleep(), Ports{open});
    post(NSWorkspaceDidWakeNotification);
    QVERIFY(open->isOpen());
    QVERIFY(!closed->isOpen());
    QVERIFY(manager().portsToReopenAfterSleep().isEmpty());
    open->close();
}

void ORSSerialPortManagerPowerTest::doesNotRememberAPortThatStaysOpen() {
    const PseudoTerminalPair line;
    devices().plug(u"a"_s, line.path());
    const auto port = manager().objectInAvailablePortsAtIndex(0);
    port->open();
    {
        SystemCallFaults faults;
        faults.fail(SystemCall::Close, EIO);
        post(NSWorkspaceWillSleepNotification);
    }
    QVERIFY(port->isOpen());
    QVERIFY(manager().portsToReopenAfterSleep().isEmpty());
    QVERIFY(port->close());
}

void ORSSerialPortManagerPowerTest::forgetsAPortThatDoesNotReopen() {
    PseudoTerminalPair line;
    devices().plug(u"a"_s, line.path());
    const auto port = manager().objectInAvailablePortsAtIndex(0);
    RecordingDelegate delegate;
    port->open();
    QVERIFY(port->isOpen());
    post(NSWorkspaceWillSleepNotification);
    line.hangUp();
    port->setDelegate(&delegate);
    post(NSWorkspaceDidWakeNotification);
    QVERIFY(!port->isOpen());
    QVERIFY(manager().portsToReopenAfterSleep().isEmpty());
    QTRY_VERIFY(std::any_of(delegate.errors().begin(), delegate.errors().end(),
                            [](const Error& error) { return error.code == ENOENT; }));
    port->setDelegate(nullptr);
}

void ORSSerialPortManagerPowerTest::hearsOfSleepFromAnySender() {
    const PseudoTerminalPair line;
    devices().plug(u"a"_s, line.path());
    const auto port = manager().objectInAvailablePortsAtIndex(0);
    port->open();
    notifications().post(NSWorkspaceWillSleepNotification, nullptr);
    QVERIFY(!port->isOpen());
    notifications().post(NSWorkspaceDidWakeNotification, nullptr);
    QVERIFY(port->isOpen());
    port->close();
}

void ORSSerialPortManagerPowerTest::cleansEveryPortUpAtTheEnd() {
    const PseudoTerminalPair line;
    devices().plug(u"a"_s, line.path());
    devices().plug(u"b"_s, u"/dev/b"_s);
    const auto open = manager().objectInAvailablePortsAtIndex(0);
    const auto closed = manager().objectInAvailablePortsAtIndex(1);
    QSignalSpy replaced(&manager(), &ORSSerialPortManager::availablePortsReplaced);
    RecordingDelegate first;
    RecordingDelegate second;
    open->setDelegate(&first);
    closed->setDelegate(&second);
    open->open();
    QTRY_COMPARE(first.count(u"opened"_s), 1);
    post(NSApplicationWillTerminateNotification);
    QVERIFY(!open->isOpen());
    QCOMPARE(first.events().last(2), QStringList({u"closed"_s, u"removed"_s}));
    QCOMPARE(second.count(u"removed"_s), 1);
    QVERIFY(!manager().availablePorts().has_value());
    QCOMPARE(replaced.size(), 1);
    open->setDelegate(nullptr);
    closed->setDelegate(nullptr);
}

void ORSSerialPortManagerPowerTest::runsOnWithoutAListAfterTheEnd() {
    const auto device = devices().plug(u"a"_s, u"/dev/a"_s);
    manager();
    const ManagerObserver observer(notifications());
    post(NSApplicationWillTerminateNotification);
    devices().plug(u"b"_s, u"/dev/b"_s);
    devices().unplug(device);
    QVERIFY(!manager().availablePorts().has_value());
    QCOMPARE(observer.posted, QStringList({ORSSerialPortWasConnectedNotification,
                                           ORSSerialPortWasDisconnectedNotification}));
    QCOMPARE(names(observer.ports[0]), QStringList{u"b"_s});
    QCOMPARE(names(observer.ports[1]), QStringList{u"a"_s});
    post(NSApplicationWillTerminateNotification);
    QVERIFY(!manager().availablePorts().has_value());
}

void ORSSerialPortManagerPowerTest::sleepsWithoutAList() {
    devices().failNotifications(DeviceEvent::Publish);
    manager();
    post(NSWorkspaceWillSleepNotification);
    post(NSWorkspaceDidWakeNotification);
    QVERIFY(manager().portsToReopenAfterSleep().isEmpty());
    QVERIFY(!manager().availablePorts().has_value());
}

static const RegisteredTest<ORSSerialPortManagerPowerTest> registered;
#include "ORSSerialPortManagerPowerTest.moc"
