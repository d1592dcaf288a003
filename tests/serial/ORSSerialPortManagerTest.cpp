#include "serial/ORSSerialPortManager.h"

#include "tests/serial/ManagerBench.h"
#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>

#include <type_traits>

using namespace Qt::StringLiterals;

static_assert(!std::is_default_constructible_v<ORSSerialPortManager>);
static_assert(!std::is_copy_constructible_v<ORSSerialPortManager>);
static_assert(!std::is_copy_assignable_v<ORSSerialPortManager>);

class ORSSerialPortManagerTest : public ManagerBench {
    Q_OBJECT
  private Q_SLOTS:
    void init() { start(); }
    void cleanup() { end(); }

    void namesItsNotifications();
    void thereIsOneManager();
    void endsWithThePlatform();
    void listsThePortsThatArePresent();
    void thePortsAreThoseThatClientsHold();
    void leavesBluetoothOutAtTheStart_data();
    void leavesBluetoothOutAtTheStart();
    void hasNoListWhenArrivalsCannotBeWatched();
    void keepsItsRegistrations();
    void aNewIteratorEndsTheOldRegistration();
    void endsItsRegistrations();
    void insertsAtIndexes();
    void removesAtIndexes();
    void theListCanBeReplaced();
};

void ORSSerialPortManagerTest::namesItsNotifications() {
    QCOMPARE(QString(ORSSerialPortWasConnectedNotification),
             u"ORSSerialPortWasConnectedNotification"_s);
    QCOMPARE(QString(ORSSerialPortWasDisconnectedNotification),
             u"ORSSerialPortWasDisconnectedNotification"_s);
    QCOMPARE(QString(ORSConnectedSerialPortsKey), u"ORSConnectedSerialPortsKey"_s);
    QCOMPARE(QString(ORSDisconnectedSerialPortsKey), u"ORSDisconnectedSerialPortsKey"_s);
}

void ORSSerialPortManagerTest::thereIsOneManager() {
    QCOMPARE(&manager(), &ORSSerialPortManager::sharedSerialPortManager());
    QVERIFY(manager().portsToReopenAfterSleep().isEmpty());
}

void ORSSerialPortManagerTest::endsWithThePlatform() {
    devices().plug(u"a"_s, u"/dev/a"_s);
    QCOMPARE(available(), QStringList{u"a"_s});
    end();
    start();
    QCOMPARE(available(), QStringList());
}

void ORSSerialPortManagerTest::listsThePortsThatArePresent() {
    devices().plug(u"b"_s, u"/dev/b"_s);
    devices().plug(u"a"_s, u"/dev/a"_s);
    QCOMPARE(available(), QStringList({u"b"_s, u"a"_s}));
    QCOMPARE(manager().countOfAvailablePorts(), 2);
    QCOMPARE(manager().objectInAvailablePortsAtIndex(1)->name(), u"a"_s);
}

void ORSSerialPortManagerTest::thePortsAreThoseThatClientsHold() {
    devices().plug(u"a"_s, u"/dev/a"_s);
    const auto held = ORSSerialPort::serialPortWithPath(u"/dev/a"_s);
    QCOMPARE(manager().availablePorts().value(), Ports{held});
}

void ORSSerialPortManagerTest::leavesBluetoothOutAtTheStart_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("capitalised") << u"Bluetooth-rfcomm0"_s;
    QTest::newRow("in small letters") << u"bluetooth-rfcomm0"_s;
    QTest::newRow("in capitals") << u"BLUETOOTH"_s;
    QTest::newRow("in mixed letters, inside the name") << u"my-bLueTooTh-port"_s;
}

void ORSSerialPortManagerTest::leavesBluetoothOutAtTheStart() {
    QFETCH(QString, name);
    devices().plug(name, u"/dev/rfcomm0"_s);
    devices().plug(u"Bluetoot"_s, u"/dev/a"_s);
    QCOMPARE(available(), QStringList{u"Bluetoot"_s});
}

void ORSSerialPortManagerTest::hasNoListWhenArrivalsCannotBeWatched() {
    devices().plug(u"a"_s, u"/dev/a"_s);
    devices().failNotifications(DeviceEvent::Publish);
    QVERIFY(!manager().availablePorts().has_value());
    QCOMPARE(manager().countOfAvailablePorts(), 0);
    QCOMPARE(manager().objectInAvailablePortsAtIndex(0), nullptr);
    QCOMPARE(manager().portPublishedNotificationIterator(), 0u);
    QCOMPARE(manager().portTerminatedNotificationIterator(), 0u);
    QCOMPARE(devices().registrationCount(DeviceEvent::Terminate), 0);
}

void ORSSerialPortManagerTest::keepsItsRegistrations() {
    QVERIFY(manager().portPublishedNotificationIterator() != 0);
    QVERIFY(manager().portTerminatedNotificationIterator() != 0);
    QCOMPARE(devices().registrationCount(DeviceEvent::Publish), 1);
    QCOMPARE(devices().registrationCount(DeviceEvent::Terminate), 1);
}

void ORSSerialPortManagerTest::aNewIteratorEndsTheOldRegistration() {
    const auto published = manager().portPublishedNotificationIterator();
    manager().setPortPublishedNotificationIterator(published);
    QCOMPARE(devices().registrationCount(DeviceEvent::Publish), 1);
    manager().setPortPublishedNotificationIterator(0);
    QCOMPARE(manager().portPublishedNotificationIterator(), 0u);
    QCOMPARE(devices().registrationCount(DeviceEvent::Publish), 0);
    const auto terminated = manager().portTerminatedNotificationIterator();
    manager().setPortTerminatedNotificationIterator(terminated);
    QCOMPARE(devices().registrationCount(DeviceEvent::Terminate), 1);
    manager().setPortTerminatedNotificationIterator(4711);
    QCOMPARE(manager().portTerminatedNotificationIterator(), 4711u);
    QCOMPARE(devices().registrationCount(DeviceEvent::Terminate), 0);
}

void ORSSerialPortManagerTest::endsItsRegistrations() {
    delete &manager();
    QCOMPARE(devices().registrationCount(DeviceEvent::Publish), 0);
    QCOMPARE(devices().registrationCount(DeviceEvent::Terminate), 0);
    post(NSWorkspaceWillSleepNotification);
    devices().plug(u"a"_s, u"/dev/a"_s);
    QCOMPARE(available(), QStringList{u"a"_s});
}

void ORSSerialPortManagerTest::insertsAtIndexes() {
    devices().plug({FakeDeviceRegistry::device(u"a"_s, u"/dev/a"_s),
                    FakeDeviceRegistry::device(u"b"_s, u"/dev/b"_s),
                    FakeDeviceRegistry::device(u"c"_s, u"/dev/c"_s)});
    const auto all = manager().availablePorts().value();
    QSignalSpy inserted(&manager(), &ORSSerialPortManager::availablePortsInserted);
    manager().setAvailablePorts(Ports{all[1]});
    manager().insertAvailablePortsAtIndexes({all[0], all[2]}, {0, 2});
    QCOMPARE(available(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    manager().insertObjectInAvailablePortsAtIndex(all[2], 1);
    QCOMPARE(available(), QStringList({u"a"_s, u"c"_s, u"b"_s, u"c"_s}));
    QCOMPARE(inserted[0][0].value<QList<qsizetype>>(), QList<qsizetype>({0, 2}));
    QCOMPARE(inserted[1][0].value<QList<qsizetype>>(), QList<qsizetype>{1});
    manager().setAvailablePorts(std::nullopt);
    manager().insertObjectInAvailablePortsAtIndex(all[2], 0);
    QVERIFY(!manager().availablePorts().has_value());
    QCOMPARE(inserted.size(), 2);
}

void ORSSerialPortManagerTest::removesAtIndexes() {
    devices().plug({FakeDeviceRegistry::device(u"a"_s, u"/dev/a"_s),
                    FakeDeviceRegistry::device(u"b"_s, u"/dev/b"_s),
                    FakeDeviceRegistry::device(u"c"_s, u"/dev/c"_s),
                    FakeDeviceRegistry::device(u"d"_s, u"/dev/d"_s)});
    QSignalSpy removed(&manager(), &ORSSerialPortManager::availablePortsRemoved);
    manager().removeAvailablePortsAtIndexes({0, 2});
    QCOMPARE(available(), QStringList({u"b"_s, u"d"_s}));
    manager().removeObjectFromAvailablePortsAtIndex(1);
    QCOMPARE(available(), QStringList{u"b"_s});
    QCOMPARE(removed[0][0].value<QList<qsizetype>>(), QList<qsizetype>({0, 2}));
    QCOMPARE(removed[1][0].value<QList<qsizetype>>(), QList<qsizetype>{1});
    manager().setAvailablePorts(std::nullopt);
    manager().removeObjectFromAvailablePortsAtIndex(0);
    QCOMPARE(removed.size(), 2);
}

void ORSSerialPortManagerTest::theListCanBeReplaced() {
    devices().plug(u"a"_s, u"/dev/a"_s);
    QSignalSpy replaced(&manager(), &ORSSerialPortManager::availablePortsReplaced);
    manager().setAvailablePorts(Ports());
    QCOMPARE(manager().countOfAvailablePorts(), 0);
    QVERIFY(manager().availablePorts().has_value());
    QCOMPARE(replaced.size(), 1);
}

static const RegisteredTest<ORSSerialPortManagerTest> registered;
#include "ORSSerialPortManagerTest.moc"
