#include "serial/ORSSerialPortManager.h"

#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/RecordingDelegate.h"
#include "tests/support/TestPlatform.h"

#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <type_traits>

using namespace Qt::StringLiterals;

static_assert(!std::is_default_constructible_v<ORSSerialPortManager>);
static_assert(!std::is_copy_constructible_v<ORSSerialPortManager>);
static_assert(!std::is_copy_assignable_v<ORSSerialPortManager>);

namespace {

using Ports = ORSSerialPortManager::Ports;

QStringList loggedLines;

void keepLine(QtMsgType, const QMessageLogContext&, const QString& line) {
    loggedLines.append(line);
}

/// Keeps what is written to the log while it lives.
class LogKeeper {
  public:
    LogKeeper() : _previous(qInstallMessageHandler(&keepLine)) { loggedLines.clear(); }
    LogKeeper(const LogKeeper&) = delete;
    LogKeeper& operator=(const LogKeeper&) = delete;
    ~LogKeeper() { qInstallMessageHandler(_previous); }

  private:
    QtMessageHandler _previous;
};

QStringList names(const Ports& ports) {
    QStringList names;
    for (const auto& port : ports) {
        names.append(port->name());
    }
    return names;
}

} // namespace

class ORSSerialPortManagerTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void init() { _platform.emplace(); }
    void cleanup() { _platform.reset(); }

    void namesItsNotifications();
    void thereIsOneManager();
    void endsWithThePlatform();
    void listsThePortsThatArePresent();
    void thePortsAreThoseThatClientsHold();
    void leavesBluetoothOutAtTheStart_data();
    void leavesBluetoothOutAtTheStart();
    void addsBluetoothThatArrivesLater();
    void appendsArrivals();
    void tellsOfAnArrivalOnceThePortsAreListed();
    void postsAnArrivalWithoutNews();
    void aSetMayBringOldAndNewPorts();
    void closesARemovedPortBeforeItLeaves();
    void takesOutAllPortsOfASet();
    void postsARemovalOfAPortThatWasNotListed();
    void postsEmptySets();
    void logsAForeignContext_data();
    void logsAForeignContext();
    void hasNoListWhenArrivalsCannotBeWatched();
    void followsArrivalsWhenRemovalsCannotBeWatched();
    void keepsItsRegistrations();
    void aNewIteratorEndsTheOldRegistration();
    void endsItsRegistrations();
    void closesTheOpenPortForSleep();
    void forgetsAPortThatDoesNotReopen();
    void hearsOfSleepFromAnySender();
    void cleansEveryPortUpAtTheEnd();
    void runsOnWithoutAListAfterTheEnd();
    void sleepsWithoutAList();
    void insertsAtIndexes();
    void removesAtIndexes();
    void theListCanBeReplaced();

  private:
    [[nodiscard]] FakeDeviceRegistry& devices() const { return _platform->devices(); }
    static ORSSerialPortManager& manager() {
        return ORSSerialPortManager::sharedSerialPortManager();
    }
    [[nodiscard]] static QStringList available() {
        return names(manager().availablePorts().value());
    }
    void post(QLatin1StringView name) { _platform->notifications().post(name, this); }

    std::optional<TestPlatform> _platform;
};

namespace {

/// Writes down each of the manager's notifications, and what was listed when it came.
class Observer final : public QObject {
  public:
    explicit Observer(NotificationCenter& center) {
        center.addObserver(
            this, ORSSerialPortWasConnectedNotification,
            [this](const Notification& each) { note(each, ORSConnectedSerialPortsKey); });
        center.addObserver(
            this, ORSSerialPortWasDisconnectedNotification,
            [this](const Notification& each) { note(each, ORSDisconnectedSerialPortsKey); });
    }

    QStringList posted;
    QList<Ports> ports;
    QList<QStringList> listed;
    QObject* sender = nullptr;

  private:
    void note(const Notification& notification, QLatin1StringView key) {
        posted.append(notification.name);
        QVERIFY(notification.userInfo.value(key).canConvert<Ports>());
        QCOMPARE(notification.userInfo.size(), 1);
        ports.append(notification.userInfo.value(key).value<Ports>());
        listed.append(names(
            ORSSerialPortManager::sharedSerialPortManager().availablePorts().value_or(Ports())));
        sender = notification.object;
    }
};

} // namespace

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
    _platform.reset();
    _platform.emplace();
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

void ORSSerialPortManagerTest::addsBluetoothThatArrivesLater() {
    const auto device = devices().plug(u"Bluetooth-rfcomm0"_s, u"/dev/rfcomm0"_s);
    QCOMPARE(available(), QStringList());
    devices().unplug(device);
    devices().plug(u"Bluetooth-rfcomm0"_s, u"/dev/rfcomm0"_s);
    QCOMPARE(available(), QStringList{u"Bluetooth-rfcomm0"_s});
}

void ORSSerialPortManagerTest::appendsArrivals() {
    devices().plug(u"z"_s, u"/dev/z"_s);
    QSignalSpy inserted(&manager(), &ORSSerialPortManager::availablePortsInserted);
    devices().plug({FakeDeviceRegistry::device(u"b"_s, u"/dev/b"_s),
                    FakeDeviceRegistry::device(u"a"_s, u"/dev/a"_s)});
    QCOMPARE(available(), QStringList({u"z"_s, u"b"_s, u"a"_s}));
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(inserted[0][0].value<QList<qsizetype>>(), QList<qsizetype>({1, 2}));
}

void ORSSerialPortManagerTest::tellsOfAnArrivalOnceThePortsAreListed() {
    manager();
    const Observer observer(_platform->notifications());
    devices().plug(u"a"_s, u"/dev/a"_s);
    QCOMPARE(observer.posted, QStringList{ORSSerialPortWasConnectedNotification});
    QCOMPARE(observer.ports.constFirst(), manager().availablePorts().value());
    QCOMPARE(observer.listed.constFirst(), QStringList{u"a"_s});
    QCOMPARE(observer.sender, &manager());
}

void ORSSerialPortManagerTest::postsAnArrivalWithoutNews() {
    devices().plug(u"a"_s, u"/dev/a"_s);
    manager();
    const Observer observer(_platform->notifications());
    QSignalSpy inserted(&manager(), &ORSSerialPortManager::availablePortsInserted);
    devices().plug(u"a"_s, u"/dev/a"_s);
    QCOMPARE(available(), QStringList{u"a"_s});
    QCOMPARE(observer.posted, QStringList{ORSSerialPortWasConnectedNotification});
    QVERIFY(observer.ports.constFirst().isEmpty());
    QCOMPARE(inserted.size(), 0);
}

void ORSSerialPortManagerTest::aSetMayBringOldAndNewPorts() {
    devices().plug(u"a"_s, u"/dev/a"_s);
    manager();
    const Observer observer(_platform->notifications());
    devices().plug({FakeDeviceRegistry::device(u"a"_s, u"/dev/a"_s),
                    FakeDeviceRegistry::device(u"b"_s, u"/dev/b"_s)});
    QCOMPARE(names(observer.ports.constFirst()), QStringList{u"b"_s});
    QCOMPARE(available(), QStringList({u"a"_s, u"b"_s}));
}

void ORSSerialPortManagerTest::closesARemovedPortBeforeItLeaves() {
    const PseudoTerminalPair line;
    const auto device = devices().plug(u"a"_s, line.path());
    const auto port = manager().objectInAvailablePortsAtIndex(0);
    const Observer observer(_platform->notifications());
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
    QCOMPARE(story, QStringList({u"opened open 10"_s, u"closed shut 10"_s, u"removed shut 10"_s,
                                 u"left 0"_s}));
    QCOMPARE(observer.posted, QStringList{ORSSerialPortWasDisconnectedNotification});
    QCOMPARE(observer.ports.constFirst(), Ports{port});
    QVERIFY(observer.listed.constFirst().isEmpty());
    QCOMPARE(observer.sender, &manager());
    disconnect(&manager(), nullptr, this, nullptr);
    port->setDelegate(nullptr);
}

void ORSSerialPortManagerTest::takesOutAllPortsOfASet() {
    const auto gone = devices().plug({FakeDeviceRegistry::device(u"a"_s, u"/dev/a"_s),
                                      FakeDeviceRegistry::device(u"b"_s, u"/dev/b"_s),
                                      FakeDeviceRegistry::device(u"c"_s, u"/dev/c"_s)});
    QSignalSpy removed(&manager(), &ORSSerialPortManager::availablePortsRemoved);
    devices().unplug({gone[2], gone[0]});
    QCOMPARE(available(), QStringList{u"b"_s});
    QCOMPARE(removed.size(), 1);
    QCOMPARE(removed[0][0].value<QList<qsizetype>>(), QList<qsizetype>({0, 2}));
}

void ORSSerialPortManagerTest::postsARemovalOfAPortThatWasNotListed() {
    const auto hidden = devices().plug(u"Bluetooth"_s, u"/dev/rfcomm0"_s);
    devices().plug(u"a"_s, u"/dev/a"_s);
    QSignalSpy removed(&manager(), &ORSSerialPortManager::availablePortsRemoved);
    const Observer observer(_platform->notifications());
    devices().unplug(hidden);
    QCOMPARE(observer.posted, QStringList{ORSSerialPortWasDisconnectedNotification});
    QCOMPARE(names(observer.ports.constFirst()), QStringList{u"Bluetooth"_s});
    QCOMPARE(available(), QStringList{u"a"_s});
    QCOMPARE(removed.size(), 0);
}

void ORSSerialPortManagerTest::postsEmptySets() {
    manager();
    const Observer observer(_platform->notifications());
    manager().serialPortsWerePublished({});
    manager().serialPortsWereTerminated({});
    QCOMPARE(observer.posted, QStringList({ORSSerialPortWasConnectedNotification,
                                           ORSSerialPortWasDisconnectedNotification}));
    QVERIFY(observer.ports[0].isEmpty());
    QVERIFY(observer.ports[1].isEmpty());
}

void ORSSerialPortManagerTest::logsAForeignContext_data() {
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

void ORSSerialPortManagerTest::logsAForeignContext() {
    QFETCH(bool, isArrival);
    QFETCH(bool, isNothing);
    QFETCH(QString, end);
    devices().plug(u"a"_s, u"/dev/a"_s);
    manager();
    const Observer observer(_platform->notifications());
    const auto present = devices().matchingDevices().value();
    {
        const LogKeeper keeper;
        auto* const callback = isArrival ? &ORSSerialPortManagerPortsPublishedNotificationCallback
                                         : &ORSSerialPortManagerPortsTerminatedNotificationCallback;
        callback(isNothing ? nullptr : this, present);
    }
    QCOMPARE(loggedLines.size(), 1);
    const auto start = isNothing ? u"Unexpected context object (null)"_s
                                 : u"Unexpected context object <ORSSerialPortManagerTest: 0x"_s;
    QVERIFY2(loggedLines[0].startsWith(start), qPrintable(loggedLines[0]));
    QVERIFY2(loggedLines[0].endsWith(end), qPrintable(loggedLines[0]));
    QVERIFY(observer.posted.isEmpty());
    QCOMPARE(available(), QStringList{u"a"_s});
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

void ORSSerialPortManagerTest::followsArrivalsWhenRemovalsCannotBeWatched() {
    const auto device = devices().plug(u"a"_s, u"/dev/a"_s);
    devices().failNotifications(DeviceEvent::Terminate);
    QCOMPARE(available(), QStringList{u"a"_s});
    QCOMPARE(manager().portTerminatedNotificationIterator(), 0u);
    devices().plug(u"b"_s, u"/dev/b"_s);
    devices().unplug(device);
    QCOMPARE(available(), QStringList({u"a"_s, u"b"_s}));
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

void ORSSerialPortManagerTest::closesTheOpenPortForSleep() {
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

void ORSSerialPortManagerTest::forgetsAPortThatDoesNotReopen() {
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

void ORSSerialPortManagerTest::hearsOfSleepFromAnySender() {
    const PseudoTerminalPair line;
    devices().plug(u"a"_s, line.path());
    const auto port = manager().objectInAvailablePortsAtIndex(0);
    port->open();
    _platform->notifications().post(NSWorkspaceWillSleepNotification, nullptr);
    QVERIFY(!port->isOpen());
    _platform->notifications().post(NSWorkspaceDidWakeNotification, nullptr);
    QVERIFY(port->isOpen());
    port->close();
}

void ORSSerialPortManagerTest::cleansEveryPortUpAtTheEnd() {
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

void ORSSerialPortManagerTest::runsOnWithoutAListAfterTheEnd() {
    const auto device = devices().plug(u"a"_s, u"/dev/a"_s);
    manager();
    const Observer observer(_platform->notifications());
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

void ORSSerialPortManagerTest::sleepsWithoutAList() {
    devices().failNotifications(DeviceEvent::Publish);
    manager();
    post(NSWorkspaceWillSleepNotification);
    post(NSWorkspaceDidWakeNotification);
    QVERIFY(manager().portsToReopenAfterSleep().isEmpty());
    QVERIFY(!manager().availablePorts().has_value());
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

QTEST_GUILESS_MAIN(ORSSerialPortManagerTest)
#include "ORSSerialPortManagerTest.moc"
