#include "serial/ORSSerialPortManager.h"

#include "tests/serial/ManagerBench.h"
#include "tests/serial/ManagerObserver.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/RecordingDelegate.h"
#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

class ORSSerialPortManagerHotPlugTest : public ManagerBench {
    Q_OBJECT
  private Q_SLOTS:
    void init() { start(); }
    void cleanup() { end(); }

    void appendsArrivals();
    void addsBluetoothThatArrivesLater();
    void tellsOfAnArrivalOnceThePortsAreListed();
    void postsAnArrivalWithoutNews();
    void aSetMayBringOldAndNewPorts();
    void closesARemovedPortBeforeItLeaves();
    void takesOutAllPortsOfASet();
    void postsARemovalOfAPortThatWasNotListed();
    void postsEmptySets();
    void logsAForeignContext_data();
    void logsAForeignContext();
    void followsArrivalsWhenRemovalsCannotBeWatched();
    void aNodeOfAnotherAdapterIsAnotherPort();
    void aNodeOfTheSameAdapterIsTheSamePort();
    void whatComesAndGoesWhileItCannotBeToldIsNotToldOf();
};

void ORSSerialPortManagerHotPlugTest::appendsArrivals() {
    devices().plug(u"z"_s, u"/dev/z"_s);
    QSignalSpy inserted(&manager(), &ORSSerialPortManager::availablePortsInserted);
    devices().plug({FakeDeviceRegistry::device(u"b"_s, u"/dev/b"_s),
                    FakeDeviceRegistry::device(u"a"_s, u"/dev/a"_s)});
    QCOMPARE(available(), QStringList({u"z"_s, u"b"_s, u"a"_s}));
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(inserted[0][0].value<QList<qsizetype>>(), QList<qsizetype>({1, 2}));
}

void ORSSerialPortManagerHotPlugTest::addsBluetoothThatArrivesLater() {
    const auto device = devices().plug(u"Bluetooth-rfcomm0"_s, u"/dev/rfcomm0"_s);
    QCOMPARE(available(), QStringList());
    devices().unplug(device);
    devices().plug(u"Bluetooth-rfcomm0"_s, u"/dev/rfcomm0"_s);
    QCOMPARE(available(), QStringList{u"Bluetooth-rfcomm0"_s});
}

void ORSSerialPortManagerHotPlugTest::tellsOfAnArrivalOnceThePortsAreListed() {
    manager();
    const ManagerObserver observer(notifications());
    devices().plug(u"a"_s, u"/dev/a"_s);
    QCOMPARE(observer.posted, QStringList{ORSSerialPortWasConnectedNotification});
    QCOMPARE(observer.ports.constFirst(), manager().availablePorts().value());
    QCOMPARE(observer.listed.constFirst(), QStringList{u"a"_s});
    QCOMPARE(observer.sender, &manager());
}

void ORSSerialPortManagerHotPlugTest::postsAnArrivalWithoutNews() {
    devices().plug(u"a"_s, u"/dev/a"_s);
    manager();
    const ManagerObserver observer(notifications());
    QSignalSpy inserted(&manager(), &ORSSerialPortManager::availablePortsInserted);
    devices().plug(u"a"_s, u"/dev/a"_s);
    QCOMPARE(available(), QStringList{u"a"_s});
    QCOMPARE(observer.posted, QStringList{ORSSerialPortWasConnectedNotification});
    QVERIFY(observer.ports.constFirst().isEmpty());
    QCOMPARE(inserted.size(), 0);
}

void ORSSerialPortManagerHotPlugTest::aSetMayBringOldAndNewPorts() {
    devices().plug(u"a"_s, u"/dev/a"_s);
    manager();
    const ManagerObserver observer(notifications());
    devices().plug({FakeDeviceRegistry::device(u"a"_s, u"/dev/a"_s),
                    FakeDeviceRegistry::device(u"b"_s, u"/dev/b"_s)});
    QCOMPARE(names(observer.ports.constFirst()), QStringList{u"b"_s});
    QCOMPARE(available(), QStringList({u"a"_s, u"b"_s}));
}

void ORSSerialPortManagerHotPlugTest::closesARemovedPortBeforeItLeaves() {
    const PseudoTerminalPair line;
    const auto device = devices().plug(u"a"_s, line.path());
    const auto port = manager().objectInAvailablePortsAtIndex(0);
    const ManagerObserver observer(notifications());
    RecordingDelegate delegate;
    QStringList story;
    delegate.setReaction([&](ORSSerialPort& each, const QString& event) {
        // A pseudo-terminal has no modem lines, and the port says so.
        if (event == u"error") {
            return;
        }
        story.append(event + (each.isOpen() ? u" open"_s : u" shut"_s) + u' ' +
                     QString::number(manager().countOfAvailablePorts()) +
                     QString::number(observer.posted.size()));
    });
    connect(&manager(), &ORSSerialPortManager::availablePortsRemoved, this,
            [&](const QList<qsizetype>& indexes) {
                QCOMPARE(indexes, QList<qsizetype>{0});
                story.append(u"left "_s + QString::number(observer.posted.size()));
            });
    port->setDelegate(&delegate);
    port->open();
    QTRY_COMPARE(story, QStringList{u"opened open 10"_s});
    devices().unplug(device);
    QCOMPARE(story, QStringList({u"opened open 10"_s, u"closing open 10"_s, u"closed shut 10"_s,
                                 u"removed shut 10"_s, u"left 0"_s}));
    QCOMPARE(observer.posted, QStringList{ORSSerialPortWasDisconnectedNotification});
    QCOMPARE(observer.ports.constFirst(), Ports{port});
    QVERIFY(observer.listed.constFirst().isEmpty());
    QCOMPARE(observer.sender, &manager());
    disconnect(&manager(), nullptr, this, nullptr);
    port->setDelegate(nullptr);
}

void ORSSerialPortManagerHotPlugTest::takesOutAllPortsOfASet() {
    const auto gone = devices().plug({FakeDeviceRegistry::device(u"a"_s, u"/dev/a"_s),
                                      FakeDeviceRegistry::device(u"b"_s, u"/dev/b"_s),
                                      FakeDeviceRegistry::device(u"c"_s, u"/dev/c"_s)});
    QSignalSpy removed(&manager(), &ORSSerialPortManager::availablePortsRemoved);
    devices().unplug({gone[2], gone[0]});
    QCOMPARE(available(), QStringList{u"b"_s});
    QCOMPARE(removed.size(), 1);
    QCOMPARE(removed[0][0].value<QList<qsizetype>>(), QList<qsizetype>({0, 2}));
}

void ORSSerialPortManagerHotPlugTest::postsARemovalOfAPortThatWasNotListed() {
    const auto hidden = devices().plug(u"Bluetooth"_s, u"/dev/rfcomm0"_s);
    devices().plug(u"a"_s, u"/dev/a"_s);
    QSignalSpy removed(&manager(), &ORSSerialPortManager::availablePortsRemoved);
    const ManagerObserver observer(notifications());
    devices().unplug(hidden);
    QCOMPARE(observer.posted, QStringList{ORSSerialPortWasDisconnectedNotification});
    QCOMPARE(names(observer.ports.constFirst()), QStringList{u"Bluetooth"_s});
    QCOMPARE(available(), QStringList{u"a"_s});
    QCOMPARE(removed.size(), 0);
}

void ORSSerialPortManagerHotPlugTest::postsEmptySets() {
    manager();
    const ManagerObserver observer(notifications());
    manager().serialPortsWerePublished({});
    manager().serialPortsWereTerminated({});
    QCOMPARE(observer.posted, QStringList({ORSSerialPortWasConnectedNotification,
                                           ORSSerialPortWasDisconnectedNotification}));
    QVERIFY(observer.ports[0].isEmpty());
    QVERIFY(observer.ports[1].isEmpty());
}

void ORSSerialPortManagerHotPlugTest::logsAForeignContext_data() {
    QTest::addColumn<bool>("isArrival");
    QTest::addColumn<bool>("isNothing");
    QTest::addColumn<QString>("end");
    const auto published = u" in void ORSSerialPortManagerPortsPublishedNotificationCallback("
                           "void *, io_iterator_t). Context object should be an instance of "
                           "ORSSerialPortManager"_s;
    const auto terminated = u" in void ORSSerialPortManagerPortsTerminatedNotificationCallback("
                            "void *, io_iterator_t). Context object should be an instance of "
                            "ORSSerialPortManager"_s;
    QTest::newRow("arrival, another object") << true << false << published;
    QTest::newRow("arrival, no object") << true << true << published;
    QTest::newRow("removal, another object") << false << false << terminated;
    QTest::newRow("removal, no object") << false << true << terminated;
}

void ORSSerialPortManagerHotPlugTest::logsAForeignContext() {
    QFETCH(bool, isArrival);
    QFETCH(bool, isNothing);
    QFETCH(QString, end);
    devices().plug(u"a"_s, u"/dev/a"_s);
    manager();
    const ManagerObserver observer(notifications());
    const auto present = devices().matchingDevices().value();
    QStringList loggedLines;
    {
        const LogKeeper log;
        auto* const callback = isArrival ? &ORSSerialPortManagerPortsPublishedNotificationCallback
                                         : &ORSSerialPortManagerPortsTerminatedNotificationCallback;
        callback(isNothing ? nullptr : this, present);
        loggedLines = log.lines();
    }
    QCOMPARE(loggedLines.size(), 1);
    const auto start = isNothing
                           ? u"Unexpected context object (null)"_s
                           : u"Unexpected context object <ORSSerialPortManagerHotPlugTest: 0x"_s;
    QVERIFY2(loggedLines[0].startsWith(start), qPrintable(loggedLines[0]));
    QVERIFY2(loggedLines[0].endsWith(end), qPrintable(loggedLines[0]));
    QVERIFY(observer.posted.isEmpty());
    QCOMPARE(available(), QStringList{u"a"_s});
}

void ORSSerialPortManagerHotPlugTest::aNodeOfAnotherAdapterIsAnotherPort() {
    const auto first = devices().plug(u"usbserial-A"_s, u"/dev/ttyUSB0"_s);
    const auto held = manager().objectInAvailablePortsAtIndex(0);
    devices().unplug(first);
    devices().plug(u"usbserial-B"_s, u"/dev/ttyUSB0"_s);
    QCOMPARE(available(), QStringList{u"usbserial-B"_s});
    QCOMPARE(held->name(), u"usbserial-A"_s);
    QVERIFY(!manager().isPresent(*held));
    QVERIFY(manager().isPresent(*manager().objectInAvailablePortsAtIndex(0)));
}

void ORSSerialPortManagerHotPlugTest::aNodeOfTheSameAdapterIsTheSamePort() {
    const auto first = devices().plug(u"usbserial-A"_s, u"/dev/ttyUSB0"_s);
    const auto held = manager().objectInAvailablePortsAtIndex(0);
    devices().unplug(first);
    devices().plug(u"usbserial-A"_s, u"/dev/ttyUSB0"_s);
    QCOMPARE(manager().objectInAvailablePortsAtIndex(0), held);
    QVERIFY(manager().isPresent(*held));
}

void ORSSerialPortManagerHotPlugTest::whatComesAndGoesWhileItCannotBeToldIsNotToldOf() {
    const auto old = devices().plug(u"old"_s, u"/dev/old"_s);
    manager();
    const ManagerObserver observer(notifications());
    devices().holdAnnouncements();
    devices().unplug(old);
    for (int cycle = 0; cycle < 1000; ++cycle) {
        devices().unplug(devices().plug(u"usbserial-A"_s, u"/dev/ttyUSB0"_s));
    }
    devices().plug(u"usbserial-A"_s, u"/dev/ttyUSB0"_s);
    devices().resumeAnnouncements();
    QTRY_COMPARE(observer.posted, QStringList({ORSSerialPortWasDisconnectedNotification,
                                               ORSSerialPortWasConnectedNotification}));
    QCOMPARE(names(observer.ports[0]), QStringList{u"old"_s});
    QCOMPARE(available(), QStringList{u"usbserial-A"_s});
}

void ORSSerialPortManagerHotPlugTest::followsArrivalsWhenRemovalsCannotBeWatched() {
    const auto device = devices().plug(u"a"_s, u"/dev/a"_s);
    devices().failNotifications(DeviceEvent::Terminate);
    QCOMPARE(available(), QStringList{u"a"_s});
    QCOMPARE(manager().portTerminatedNotificationIterator(), 0u);
    devices().plug(u"b"_s, u"/dev/b"_s);
    devices().unplug(device);
    QCOMPARE(available(), QStringList({u"a"_s, u"b"_s}));
}

static const RegisteredTest<ORSSerialPortManagerHotPlugTest> registered;
#include "ORSSerialPortManagerHotPlugTest.moc"
