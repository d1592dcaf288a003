#include "platform/linux/LinuxDeviceRegistry.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// A source whose devices the test decides.
class ScriptedSource final : public DeviceSource {
  public:
    QList<SerialDevice> devices() override { return present; }
    bool has(const SerialDevice& device) override { return present.contains(device); }

    void become(const QList<SerialDevice>& devices) {
        present = devices;
        Q_EMIT changed();
    }

    QList<SerialDevice> present;
};

SerialDevice device(const QString& name, const QString& path) {
    return {.identity = path + u"#0"_s,
            .calloutPath = path,
            .dialinPath = u"/dev/in/"_s + name,
            .baseName = name,
            .suffixes = {QString()}};
}

SerialDevice adapter(const QString& path, const QString& number, const QString& place,
                     int removals = 0) {
    return {.identity = path + u'#' + QString::number(removals),
            .isUsb = true,
            .calloutPath = path,
            .dialinPath = path,
            .baseName = u"usbserial-"_s,
            .suffixes = {number, number + u'-' + place}};
}

/// What a registration was told: a set of names per call, in order, "+" for arrivals.
class Listener final : public QObject {
  public:
    explicit Listener(DeviceRegistry& registry) : _registry(registry) {
        _published = _registry.addMatchingNotification(
            DeviceEvent::Publish,
            [](QObject* context, const QList<DeviceHandle>& devices) {
                static_cast<Listener*>(context)->note(u'+', devices);
            },
            this);
        _terminated = _registry.addMatchingNotification(
            DeviceEvent::Terminate,
            [](QObject* context, const QList<DeviceHandle>& devices) {
                static_cast<Listener*>(context)->note(u'-', devices);
            },
            this);
    }

    [[nodiscard]] quint32 published() const { return _published.value().iterator; }
    [[nodiscard]] QList<DeviceHandle> presentAtStart() const { return _published.value().present; }

    QStringList heard;
    std::function<void(const QList<DeviceHandle>&)> reaction = [](const auto&) {};

  private:
    void note(QChar sign, const QList<DeviceHandle>& devices) {
        QStringList names;
        for (const auto device : devices) {
            names.append(_registry.stringProperty(device, DeviceKey::ttyDevice));
        }
        heard.append(sign + names.join(u' '));
        reaction(devices);
    }

    DeviceRegistry& _registry;
    std::optional<DeviceNotification> _published;
    std::optional<DeviceNotification> _terminated;
};

} // namespace

class LinuxDeviceRegistryTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void init();
    void cleanup() { _registry.reset(); }

    void listsUsbFirstAndEachInNaturalOrder();
    void givesEachPropertyOfADevice();
    void knowsNothingOfOtherDevices();
    void joinsItsSources();
    void announcesArrivalsAndRemovalsAsSets();
    void makesOneSetOfOneMoment();
    void announcesRemovalsFirst();
    void tellsAReplugFromStaying();
    void saysNothingWhenNothingChanged();
    void aTakenNameGetsThePlaceAppended();
    void aNameStaysWithADeviceWhileItIsPresent();
    void aNameIsFreeOnceItsDeviceHasGone();
    void asksItsSourcesWhetherADeviceIsStillThere();
    void aNodeIsListedOnce();
    void theSecondWayToANodeTakesOverWhenTheFirstGoes();
    void aGoneDeviceIsReadableWhileItIsAnnounced();
    void aGoneDeviceIsReadableForGoodOnceRetained();
    void anEndedRegistrationHearsNothing();
    void aRegistrationEndedDuringAnAnnouncementHearsNothing();
    void aContextThatHasGoneHearsNothing();
    void aLateRegistrationHearsOnlyWhatComesLater();
    void heldAnnouncementsComeInOrderAfterwards();
    void whatCameAndWentDuringAHoldIsNotAnnounced();
    void holdsCount();
    void anEventLoopInAHandlerDoesNotOvertakeIt();

  private:
    [[nodiscard]] QStringList names() const;
    [[nodiscard]] DeviceHandle named(const QString& name) const;

    ScriptedSource* _first = nullptr;
    ScriptedSource* _second = nullptr;
    std::unique_ptr<LinuxDeviceRegistry> _registry;
};

void LinuxDeviceRegistryTest::init() {
    auto first = std::make_unique<ScriptedSource>();
    auto second = std::make_unique<ScriptedSource>();
    _first = first.get();
    _second = second.get();
    LinuxDeviceRegistry::Sources sources;
    sources.push_back(std::move(first));
    sources.push_back(std::move(second));
    _registry = std::make_unique<LinuxDeviceRegistry>(std::move(sources));
}

QStringList LinuxDeviceRegistryTest::names() const {
    QStringList names;
    const auto devices = _registry->matchingDevices().value();
    for (const auto each : devices) {
        names.append(_registry->stringProperty(each, DeviceKey::ttyDevice));
    }
    return names;
}

DeviceHandle LinuxDeviceRegistryTest::named(const QString& name) const {
    return _registry->matchingDevices().value().at(names().indexOf(name));
}

void LinuxDeviceRegistryTest::listsUsbFirstAndEachInNaturalOrder() {
    _first->become({device(u"ttyS10"_s, u"/dev/ttyS10"_s), device(u"ttyS2"_s, u"/dev/ttyS2"_s),
                    adapter(u"/dev/ttyUSB0"_s, u"Z9"_s, u"1-1"_s),
                    adapter(u"/dev/ttyUSB1"_s, u"Z10"_s, u"1-2"_s),
                    device(u"Bluetooth-rfcomm0"_s, u"/dev/rfcomm0"_s)});
    QTRY_COMPARE(names(), QStringList({u"usbserial-Z9"_s, u"usbserial-Z10"_s,
                                       u"Bluetooth-rfcomm0"_s, u"ttyS2"_s, u"ttyS10"_s}));
}

void LinuxDeviceRegistryTest::givesEachPropertyOfADevice() {
    _first->become({adapter(u"/dev/ttyUSB0"_s, u"A1"_s, u"1-1"_s)});
    _second->become({device(u"keyer"_s, u"/dev/pts/3"_s)});
    QTRY_COMPARE(names().size(), 2);
    const auto usb = named(u"usbserial-A1"_s);
    QCOMPARE(_registry->stringProperty(usb, DeviceKey::calloutDevice), u"/dev/ttyUSB0"_s);
    QCOMPARE(_registry->stringProperty(usb, DeviceKey::ttyBaseName), u"usbserial-"_s);
    QCOMPARE(_registry->stringProperty(usb, DeviceKey::ttySuffix), u"A1"_s);
    QCOMPARE(_registry->stringProperty(usb, DeviceKey::clientType), u"IOSerialStream"_s);
    QVERIFY(_registry->stringProperty(usb, u"IOColor"_s).isNull());
    const auto link = named(u"keyer"_s);
    QCOMPARE(_registry->stringProperty(link, DeviceKey::dialinDevice), u"/dev/in/keyer"_s);
    QCOMPARE(_registry->stringProperty(link, DeviceKey::ttySuffix), u""_s);
    QVERIFY(!_registry->stringProperty(link, DeviceKey::ttySuffix).isNull());
}

void LinuxDeviceRegistryTest::knowsNothingOfOtherDevices() {
    QVERIFY(_registry->stringProperty(noDevice, DeviceKey::ttyDevice).isNull());
    QVERIFY(_registry->stringProperty(4711, DeviceKey::ttyDevice).isNull());
    _registry->retain(4711);
    QVERIFY(_registry->stringProperty(4711, DeviceKey::ttyDevice).isNull());
    _registry->removeNotification(4711);
}

void LinuxDeviceRegistryTest::joinsItsSources() {
    _second->become({device(u"b"_s, u"/dev/pts/1"_s)});
    _first->become({device(u"a"_s, u"/dev/ttyS0"_s)});
    QTRY_COMPARE(names(), QStringList({u"a"_s, u"b"_s}));
}

void LinuxDeviceRegistryTest::announcesArrivalsAndRemovalsAsSets() {
    Listener listener(*_registry);
    _first->become({device(u"b"_s, u"/dev/b"_s), device(u"a"_s, u"/dev/a"_s)});
    QTRY_COMPARE(listener.heard, QStringList{u"+a b"_s});
    _first->become({device(u"a"_s, u"/dev/a"_s)});
    QTRY_COMPARE(listener.heard, QStringList({u"+a b"_s, u"-b"_s}));
    QCOMPARE(names(), QStringList{u"a"_s});
}

void LinuxDeviceRegistryTest::makesOneSetOfOneMoment() {
    Listener listener(*_registry);
    _first->become({device(u"a"_s, u"/dev/a"_s)});
    _second->become({device(u"b"_s, u"/dev/b"_s)});
    _first->become({device(u"a"_s, u"/dev/a"_s), device(u"c"_s, u"/dev/c"_s)});
    QTRY_COMPARE(listener.heard, QStringList{u"+a b c"_s});
}

void LinuxDeviceRegistryTest::announcesRemovalsFirst() {
    _first->become({device(u"a"_s, u"/dev/a"_s)});
    QTRY_COMPARE(names().size(), 1);
    Listener listener(*_registry);
    _first->become({device(u"b"_s, u"/dev/b"_s)});
    QTRY_COMPARE(listener.heard, QStringList({u"-a"_s, u"+b"_s}));
}

void LinuxDeviceRegistryTest::tellsAReplugFromStaying() {
    _first->become({adapter(u"/dev/ttyUSB0"_s, u"A1"_s, u"1-1"_s, 0)});
    QTRY_COMPARE(names().size(), 1);
    const auto before = named(u"usbserial-A1"_s);
    Listener listener(*_registry);
    _first->become({adapter(u"/dev/ttyUSB0"_s, u"A1"_s, u"1-1"_s, 1)});
    QTRY_COMPARE(listener.heard, QStringList({u"-usbserial-A1"_s, u"+usbserial-A1"_s}));
    QVERIFY(named(u"usbserial-A1"_s) != before);
}

void LinuxDeviceRegistryTest::saysNothingWhenNothingChanged() {
    _first->become({device(u"a"_s, u"/dev/a"_s)});
    QTRY_COMPARE(names().size(), 1);
    Listener listener(*_registry);
    const auto before = named(u"a"_s);
    _first->become({device(u"a"_s, u"/dev/a"_s)});
    _second->become({device(u"b"_s, u"/dev/b"_s)});
    QTRY_COMPARE(listener.heard, QStringList{u"+b"_s});
    QCOMPARE(named(u"a"_s), before);
}

void LinuxDeviceRegistryTest::aTakenNameGetsThePlaceAppended() {
    _first->become({adapter(u"/dev/ttyUSB0"_s, u"A1"_s, u"1-1"_s),
                    adapter(u"/dev/ttyUSB1"_s, u"A1"_s, u"1-2"_s)});
    QTRY_COMPARE(names(), QStringList({u"usbserial-A1"_s, u"usbserial-A1-1-2"_s}));
    QCOMPARE(_registry->stringProperty(named(u"usbserial-A1-1-2"_s), DeviceKey::ttySuffix),
             u"A1-1-2"_s);
}

void LinuxDeviceRegistryTest::aNameStaysWithADeviceWhileItIsPresent() {
    _first->become({adapter(u"/dev/ttyUSB0"_s, u"A1"_s, u"1-1"_s),
                    adapter(u"/dev/ttyUSB1"_s, u"A1"_s, u"1-2"_s)});
    QTRY_COMPARE(names().size(), 2);
    Listener listener(*_registry);
    _first->become({adapter(u"/dev/ttyUSB1"_s, u"A1"_s, u"1-2"_s)});
    QTRY_COMPARE(listener.heard, QStringList{u"-usbserial-A1"_s});
    QCOMPARE(names(), QStringList{u"usbserial-A1-1-2"_s});
}

void LinuxDeviceRegistryTest::aNameIsFreeOnceItsDeviceHasGone() {
    _first->become({adapter(u"/dev/ttyUSB0"_s, u"A1"_s, u"1-1"_s)});
    QTRY_COMPARE(names().size(), 1);
    Listener listener(*_registry);
    _first->become({adapter(u"/dev/ttyUSB1"_s, u"A1"_s, u"1-2"_s)});
    QTRY_COMPARE(listener.heard, QStringList({u"-usbserial-A1"_s, u"+usbserial-A1"_s}));
}

void LinuxDeviceRegistryTest::asksItsSourcesWhetherADeviceIsStillThere() {
    _first->become({adapter(u"/dev/ttyUSB0"_s, u"A1"_s, u"1-1"_s)});
    _second->become({device(u"a"_s, u"/dev/pts/1"_s)});
    QTRY_COMPARE(names(), QStringList({u"usbserial-A1"_s, u"a"_s}));
    const auto usb = named(u"usbserial-A1"_s);
    const auto link = named(u"a"_s);
    QVERIFY(_registry->isThere(usb));
    QVERIFY(_registry->isThere(link));
    _first->present.clear();
    QVERIFY(!_registry->isThere(usb));
    QVERIFY(_registry->isThere(link));
    _second->present = {device(u"b"_s, u"/dev/pts/2"_s)};
    QVERIFY(!_registry->isThere(link));
    QCOMPARE(names(), QStringList({u"usbserial-A1"_s, u"a"_s}));
    QVERIFY(!_registry->isThere(noDevice));
}

void LinuxDeviceRegistryTest::aNodeIsListedOnce() {
    _second->become({device(u"link"_s, u"/dev/ttyUSB0"_s), device(u"also"_s, u"/dev/pts/1"_s),
                     device(u"again"_s, u"/dev/pts/1"_s)});
    _first->become({adapter(u"/dev/ttyUSB0"_s, u"A1"_s, u"1-1"_s)});
    QTRY_COMPARE(names(), QStringList({u"usbserial-A1"_s, u"also"_s}));
}

void LinuxDeviceRegistryTest::theSecondWayToANodeTakesOverWhenTheFirstGoes() {
    auto second = device(u"b"_s, u"/dev/pts/1"_s);
    second.identity = u"other"_s;
    _first->become({device(u"a"_s, u"/dev/pts/1"_s), second});
    QTRY_COMPARE(names(), QStringList{u"a"_s});
    Listener listener(*_registry);
    _first->become({second});
    QTRY_COMPARE(listener.heard, QStringList({u"-a"_s, u"+b"_s}));
    _first->become({device(u"a"_s, u"/dev/pts/1"_s), second});
    _second->become({device(u"c"_s, u"/dev/c"_s)});
    QTRY_COMPARE(listener.heard, QStringList({u"-a"_s, u"+b"_s, u"+c"_s}));
}

void LinuxDeviceRegistryTest::aGoneDeviceIsReadableWhileItIsAnnounced() {
    _first->become({device(u"a"_s, u"/dev/a"_s)});
    QTRY_COMPARE(names().size(), 1);
    const auto gone = named(u"a"_s);
    Listener listener(*_registry);
    QString path;
    listener.reaction = [&](const QList<DeviceHandle>& devices) {
        path = _registry->stringProperty(devices.constFirst(), DeviceKey::calloutDevice);
    };
    _first->become({});
    QTRY_COMPARE(listener.heard, QStringList{u"-a"_s});
    QCOMPARE(path, u"/dev/a"_s);
    QTRY_VERIFY(_registry->stringProperty(gone, DeviceKey::calloutDevice).isNull());
}

void LinuxDeviceRegistryTest::aGoneDeviceIsReadableForGoodOnceRetained() {
    _first->become({device(u"a"_s, u"/dev/a"_s), device(u"b"_s, u"/dev/b"_s)});
    QTRY_COMPARE(names().size(), 2);
    const auto kept = named(u"a"_s);
    const auto forgotten = named(u"b"_s);
    _registry->retain(kept);
    Listener listener(*_registry);
    _first->become({});
    QTRY_COMPARE(listener.heard, QStringList{u"-a b"_s});
    QTRY_VERIFY(_registry->stringProperty(forgotten, DeviceKey::ttyDevice).isNull());
    QCOMPARE(_registry->stringProperty(kept, DeviceKey::ttyDevice), u"a"_s);
}

void LinuxDeviceRegistryTest::anEndedRegistrationHearsNothing() {
    Listener listener(*_registry);
    _registry->removeNotification(listener.published());
    _first->become({device(u"a"_s, u"/dev/a"_s)});
    QTRY_COMPARE(names().size(), 1);
    _first->become({});
    QTRY_COMPARE(listener.heard, QStringList{u"-a"_s});
}

void LinuxDeviceRegistryTest::aRegistrationEndedDuringAnAnnouncementHearsNothing() {
    Listener first(*_registry);
    Listener second(*_registry);
    first.reaction = [&](const auto&) { _registry->removeNotification(second.published()); };
    _first->become({device(u"a"_s, u"/dev/a"_s)});
    QTRY_COMPARE(first.heard, QStringList{u"+a"_s});
    QVERIFY(second.heard.isEmpty());
}

void LinuxDeviceRegistryTest::aContextThatHasGoneHearsNothing() {
    Listener survivor(*_registry);
    { const Listener gone(*_registry); }
    _first->become({device(u"a"_s, u"/dev/a"_s)});
    QTRY_COMPARE(survivor.heard, QStringList{u"+a"_s});
}

void LinuxDeviceRegistryTest::aLateRegistrationHearsOnlyWhatComesLater() {
    Listener early(*_registry);
    _registry->holdAnnouncements();
    _first->become({device(u"a"_s, u"/dev/a"_s)});
    QTRY_COMPARE(names().size(), 1);
    Listener late(*_registry);
    QCOMPARE(late.presentAtStart(), QList{named(u"a"_s)});
    _registry->resumeAnnouncements();
    _first->become({device(u"a"_s, u"/dev/a"_s), device(u"b"_s, u"/dev/b"_s)});
    QTRY_COMPARE(early.heard, QStringList({u"+a"_s, u"+b"_s}));
    QCOMPARE(late.heard, QStringList{u"+b"_s});
}

void LinuxDeviceRegistryTest::heldAnnouncementsComeInOrderAfterwards() {
    _first->become({device(u"a"_s, u"/dev/a"_s)});
    QTRY_COMPARE(names().size(), 1);
    Listener listener(*_registry);
    _registry->holdAnnouncements();
    _first->become({});
    QTRY_COMPARE(names().size(), 0);
    _first->become({device(u"b"_s, u"/dev/b"_s)});
    QTRY_COMPARE(names().size(), 1);
    _first->become({device(u"b"_s, u"/dev/b"_s), device(u"a"_s, u"/dev/a"_s)});
    QTRY_COMPARE(names().size(), 2);
    QVERIFY(listener.heard.isEmpty());
    _registry->resumeAnnouncements();
    QVERIFY(listener.heard.isEmpty());
    QTRY_COMPARE(listener.heard, QStringList({u"-a"_s, u"+b"_s, u"+a"_s}));
}

/// Whoever would be told of it could do nothing but ask about a device that has gone.
void LinuxDeviceRegistryTest::whatCameAndWentDuringAHoldIsNotAnnounced() {
    _first->become({device(u"a"_s, u"/dev/a"_s)});
    QTRY_COMPARE(names().size(), 1);
    Listener listener(*_registry);
    _registry->holdAnnouncements();
    for (int i = 0; i < 3; ++i) {
        _first->become({});
        QTRY_COMPARE(names().size(), 0);
        _first->become({device(u"a"_s, u"/dev/a"_s), device(u"b"_s, u"/dev/b"_s)});
        QTRY_COMPARE(names().size(), 2);
    }
    _first->become({device(u"b"_s, u"/dev/b"_s)});
    QTRY_COMPARE(names().size(), 1);
    _registry->resumeAnnouncements();
    QTRY_COMPARE(listener.heard, QStringList({u"-a"_s, u"+b"_s}));
}

void LinuxDeviceRegistryTest::holdsCount() {
    Listener listener(*_registry);
    _registry->holdAnnouncements();
    _registry->holdAnnouncements();
    _registry->resumeAnnouncements();
    _first->become({device(u"a"_s, u"/dev/a"_s)});
    QTRY_COMPARE(names().size(), 1);
    QVERIFY(listener.heard.isEmpty());
    _registry->resumeAnnouncements();
    QTRY_COMPARE(listener.heard, QStringList{u"+a"_s});
}

void LinuxDeviceRegistryTest::anEventLoopInAHandlerDoesNotOvertakeIt() {
    Listener listener(*_registry);
    QStringList heardInHandler;
    listener.reaction = [&](const auto&) {
        if (!heardInHandler.isEmpty()) {
            return;
        }
        _first->become({});
        QTRY_VERIFY(names().isEmpty());
        heardInHandler = listener.heard;
    };
    _first->become({device(u"a"_s, u"/dev/a"_s)});
    QTRY_COMPARE(listener.heard, QStringList({u"+a"_s, u"-a"_s}));
    QCOMPARE(heardInHandler, QStringList{u"+a"_s});
}

static const RegisteredTest<LinuxDeviceRegistryTest> registered;
#include "LinuxDeviceRegistryTest.moc"
