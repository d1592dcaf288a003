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
    void whoUsesAPortMayWriteBeforeItIsClosed_data();
    void whoUsesAPortMayWriteBeforeItIsClosed();
    void doesNotRememberAPortThatStaysOpen();
    void forgetsAPortThatDoesNotReopen();
    void hearsOfSleepFromAnySender();
    void cleansEveryPortUpAtTheEnd();
    void runsOnWithoutAListAfterTheEnd();
    void sleepsWithoutAList();
    void aPortThatGoesDuringSleepStaysClosed();
    void aPortWhoseGoingIsYetToBeAnnouncedStaysClosed();
    void aPortWhoseGoingNobodyHasToldOfStaysClosed();
    void noPortIsOpenedAfterTheEnd();
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

void ORSSerialPortManagerPowerTest::whoUsesAPortMayWriteBeforeItIsClosed_data() {
    QTest::addColumn<QString>("notification");
    QTest::newRow("for sleep") << QString(NSWorkspaceWillSleepNotification);
    QTest::newRow("at the end") << QString(NSApplicationWillTerminateNotification);
    QTest::newRow("as its device goes") << QString();
}

void ORSSerialPortManagerPowerTest::whoUsesAPortMayWriteBeforeItIsClosed() {
    QFETCH(QString, notification);
    const PseudoTerminalPair line;
    const auto device = devices().plug(u"a"_s, line.path());
    const auto closed = devices().plug(u"b"_s, u"/dev/b"_s);
    const auto port = manager().objectInAvailablePortsAtIndex(0);
    const auto closedPort = manager().objectInAvailablePortsAtIndex(1);
    RecordingDelegate delegate;
    RecordingDelegate closedDelegate;
    port->setDelegate(&delegate);
    closedPort->setDelegate(&closedDelegate);
    delegate.setReaction([](ORSSerialPort& told, const QString& event) {
        if (event == u"closing") {
            static_cast<void>(told.sendData("up"));
        }
    });
    port->open();
    QTRY_COMPARE(delegate.count(u"opened"_s), 1);
    const auto before = delegate.events().size();
    if (notification.isNull()) {
        devices().unplug(device);
        devices().unplug(closed);
    } else {
        notifications().post(notification, this);
    }
    QVERIFY(!port->isOpen());
    QCOMPARE(delegate.events().mid(before, 2), QStringList({u"closing"_s, u"closed"_s}));
    QCOMPARE(closedDelegate.count(u"closing"_s), 0);
    QCOMPARE(line.read(2), QByteArray("up"));
    port->setDelegate(nullptr);
    closedPort->setDelegate(nullptr);
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

void ORSSerialPortManagerPowerTest::aPortThatGoesDuringSleepStaysClosed() {
    const PseudoTerminalPair line;
    const auto device = devices().plug(u"a"_s, line.path());
    const auto port = manager().objectInAvailablePortsAtIndex(0);
    port->open();
    post(NSWorkspaceWillSleepNotification);
    devices().unplug(device);
    QVERIFY(manager().portsToReopenAfterSleep().isEmpty());
    post(NSWorkspaceDidWakeNotification);
    QVERIFY(!port->isOpen());
}

/// As while an alert is up.
void ORSSerialPortManagerPowerTest::aPortWhoseGoingIsYetToBeAnnouncedStaysClosed() {
    const PseudoTerminalPair line;
    const auto device = devices().plug(u"a"_s, line.path());
    const auto port = manager().objectInAvailablePortsAtIndex(0);
    port->open();
    post(NSWorkspaceWillSleepNotification);
    devices().holdAnnouncements();
    devices().unplug(device);
    QVERIFY(!manager().isPresent(*port));
    post(NSWorkspaceDidWakeNotification);
    QVERIFY(!port->isOpen());
    QVERIFY(manager().portsToReopenAfterSleep().isEmpty());
    devices().resumeAnnouncements();
}

/// A machine that wakes up tells of it before it tells of the adapter that was pulled meanwhile.
void ORSSerialPortManagerPowerTest::aPortWhoseGoingNobodyHasToldOfStaysClosed() {
    const PseudoTerminalPair line;
    const auto device = devices().plug(u"a"_s, line.path());
    const auto port = manager().objectInAvailablePortsAtIndex(0);
    port->open();
    post(NSWorkspaceWillSleepNotification);
    devices().vanish(device);
    post(NSWorkspaceDidWakeNotification);
    QVERIFY(!port->isOpen());
    QVERIFY(manager().portsToReopenAfterSleep().isEmpty());
}

void ORSSerialPortManagerPowerTest::noPortIsOpenedAfterTheEnd() {
    const PseudoTerminalPair line;
    devices().plug(u"a"_s, line.path());
    const auto port = manager().objectInAvailablePortsAtIndex(0);
    port->open();
    post(NSWorkspaceWillSleepNotification);
    post(NSApplicationWillTerminateNotification);
    post(NSWorkspaceDidWakeNotification);
    QVERIFY(!port->isOpen());
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
