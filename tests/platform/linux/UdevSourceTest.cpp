#include "platform/linux/UdevSource.h"

#include "platform/linux/LinuxDeviceRegistry.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/UdevTestbed.h"

#include <QTest>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

class UdevSourceTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void init() { _machine.emplace(); }
    void cleanup();

    void namesAnAdapterByItsSerialNumber();
    void asksTheAdapterWhereUdevDoesNotKnow();
    void namesAnAdapterWithoutANumberByItsPlace();
    void tellsEqualNumbersApart();
    void namesAModemSo();
    void listsOnlyUartsThatExist();
    void listsBluetooth();
    void passesOverConsoles();
    void findsTheStableLink();
    void usesTheOtherLinkWhereAnAdapterLostTheFirst();
    void listsAMachineWithoutDevices();
    void seesAnArrivalAndARemoval();
    void aLaterArrivalHasTheSameName();
    void aReplugUnderAnotherNodeKeepsTheName();
    void aReplugUnderTheSameNodeIsARemovalAndAnArrival();
    void aBurstIsOneSet();
    void knowsOfARemovalAheadOfUdev();
    void knowsOfAReplacementAheadOfUdev();
    void writesOutWhatNobodySeesOfANumber();

  private:
    void start();
    [[nodiscard]] QStringList names() const;
    [[nodiscard]] QString property(const QString& name, QLatin1StringView key) const;
    void hear(QChar sign, const QList<DeviceHandle>& devices);

    std::optional<UdevTestbed> _machine;
    std::unique_ptr<LinuxDeviceRegistry> _registry;
    QStringList _heard;
};

void UdevSourceTest::cleanup() {
    _registry.reset();
    _machine.reset();
    _heard.clear();
}

void UdevSourceTest::start() {
    LinuxDeviceRegistry::Sources sources;
    sources.push_back(std::make_unique<UdevSource>());
    _registry = std::make_unique<LinuxDeviceRegistry>(std::move(sources));
    const auto published = _registry->addMatchingNotification(
        DeviceEvent::Publish,
        [](QObject* context, const QList<DeviceHandle>& devices) {
            static_cast<UdevSourceTest*>(context)->hear(u'+', devices);
        },
        this);
    const auto terminated = _registry->addMatchingNotification(
        DeviceEvent::Terminate,
        [](QObject* context, const QList<DeviceHandle>& devices) {
            static_cast<UdevSourceTest*>(context)->hear(u'-', devices);
        },
        this);
    QVERIFY(published && terminated);
}

QStringList UdevSourceTest::names() const {
    QStringList names;
    const auto devices = _registry->matchingDevices().value();
    for (const auto device : devices) {
        names.append(_registry->stringProperty(device, DeviceKey::ttyDevice));
    }
    return names;
}

QString UdevSourceTest::property(const QString& name, QLatin1StringView key) const {
    const auto index = names().indexOf(name);
    return index < 0 ? u"(not listed)"_s
                     : _registry->stringProperty(_registry->matchingDevices().value()[index], key);
}

void UdevSourceTest::hear(QChar sign, const QList<DeviceHandle>& devices) {
    QStringList set;
    for (const auto device : devices) {
        set.append(_registry->stringProperty(device, DeviceKey::ttyDevice) + u'@' +
                   _registry->stringProperty(device, DeviceKey::calloutDevice));
    }
    _heard.append(sign + set.join(u' '));
}

void UdevSourceTest::namesAnAdapterByItsSerialNumber() {
    _machine->addAdapter({u"ttyUSB0"_s, u"1-1.2"_s, u"WK0001"_s});
    start();
    QCOMPARE(names(), QStringList{u"usbserial-WK0001"_s});
    QCOMPARE(property(u"usbserial-WK0001"_s, DeviceKey::calloutDevice), u"/dev/ttyUSB0"_s);
    QCOMPARE(property(u"usbserial-WK0001"_s, DeviceKey::dialinDevice), u"/dev/ttyUSB0"_s);
    QCOMPARE(property(u"usbserial-WK0001"_s, DeviceKey::ttyBaseName), u"usbserial-"_s);
    QCOMPARE(property(u"usbserial-WK0001"_s, DeviceKey::ttySuffix), u"WK0001"_s);
}

void UdevSourceTest::asksTheAdapterWhereUdevDoesNotKnow() {
    _machine->addAdapter({u"ttyUSB0"_s, u"1-1.2"_s, u"WK 00/01"_s, false});
    start();
    QCOMPARE(names(), QStringList{u"usbserial-WK_00_01"_s});
}

void UdevSourceTest::namesAnAdapterWithoutANumberByItsPlace() {
    _machine->addAdapter({u"ttyUSB0"_s, u"1-1.2"_s, QString()});
    _machine->addAdapter({u"ttyACM0"_s, u"1-3"_s, QString()});
    start();
    QCOMPARE(names(), QStringList({u"usbmodem-1-3"_s, u"usbserial-1-1.2"_s}));
}

void UdevSourceTest::tellsEqualNumbersApart() {
    _machine->addAdapter({u"ttyUSB10"_s, u"1-1"_s, u"A1"_s});
    _machine->addAdapter({u"ttyUSB9"_s, u"1-2"_s, u"A1"_s});
    start();
    QCOMPARE(property(u"usbserial-A1"_s, DeviceKey::calloutDevice), u"/dev/ttyUSB9"_s);
    QCOMPARE(property(u"usbserial-A1-1-1"_s, DeviceKey::calloutDevice), u"/dev/ttyUSB10"_s);
}

void UdevSourceTest::namesAModemSo() {
    _machine->addAdapter({u"ttyACM3"_s, u"2-1"_s, u"55"_s});
    start();
    QCOMPARE(property(u"usbmodem-55"_s, DeviceKey::calloutDevice), u"/dev/ttyACM3"_s);
}

void UdevSourceTest::listsOnlyUartsThatExist() {
    _machine->addPort(u"ttyS0"_s, u"4"_s);
    _machine->addPort(u"ttyS1"_s, u"0"_s);
    _machine->addPort(u"ttyS2"_s, QString());
    _machine->addPort(u"ttyAMA0"_s, u"32"_s);
    start();
    QCOMPARE(names(), QStringList({u"ttyAMA0"_s, u"ttyS0"_s}));
    QCOMPARE(property(u"ttyS0"_s, DeviceKey::dialinDevice), u"/dev/ttyS0"_s);
}

void UdevSourceTest::listsBluetooth() {
    _machine->addPort(u"rfcomm2"_s, QString());
    start();
    QCOMPARE(names(), QStringList{u"Bluetooth-rfcomm2"_s});
    QCOMPARE(property(u"Bluetooth-rfcomm2"_s, DeviceKey::calloutDevice), u"/dev/rfcomm2"_s);
}

void UdevSourceTest::passesOverConsoles() {
    _machine->addPort(u"tty1"_s, QString());
    _machine->addPort(u"console"_s, QString());
    _machine->addPort(u"ptmx"_s, QString());
    start();
    QVERIFY(names().isEmpty());
}

void UdevSourceTest::findsTheStableLink() {
    const auto byId = u"/dev/serial/by-id/usb-WK_A1-if00-port0"_s;
    const auto byPath = u"/dev/serial/by-path/pci-0000:00:14.0-usb-0:1:1.0-port0"_s;
    _machine->addAdapter({u"ttyUSB0"_s, u"1-1"_s, u"A1"_s, true, {byPath, byId}});
    start();
    QCOMPARE(property(u"usbserial-A1"_s, DeviceKey::dialinDevice), byId);
}

void UdevSourceTest::usesTheOtherLinkWhereAnAdapterLostTheFirst() {
    const auto byId = u"/dev/serial/by-id/usb-WK_A1-if00-port0"_s;
    const auto firstPath = u"/dev/serial/by-path/first"_s;
    const auto secondPath = u"/dev/serial/by-path/second"_s;
    _machine->addAdapter({u"ttyUSB0"_s, u"1-1"_s, u"A1"_s, true, {byId, firstPath}});
    _machine->addAdapter({u"ttyUSB1"_s, u"1-2"_s, u"A1"_s, true, {byId, secondPath}});
    start();
    QCOMPARE(property(u"usbserial-A1"_s, DeviceKey::dialinDevice), firstPath);
    QCOMPARE(property(u"usbserial-A1-1-2"_s, DeviceKey::dialinDevice), byId);
}

void UdevSourceTest::listsAMachineWithoutDevices() {
    start();
    QVERIFY(names().isEmpty());
}

void UdevSourceTest::seesAnArrivalAndARemoval() {
    start();
    const auto path = _machine->addAdapter({u"ttyUSB0"_s, u"1-1"_s, u"A1"_s});
    QTRY_COMPARE(_heard, QStringList{u"+usbserial-A1@/dev/ttyUSB0"_s});
    _heard.clear();
    _machine->announce(path, u"remove"_s);
    _machine->remove(path);
    QTRY_COMPARE(_heard, QStringList{u"-usbserial-A1@/dev/ttyUSB0"_s});
    QVERIFY(names().isEmpty());
}

void UdevSourceTest::aLaterArrivalHasTheSameName() {
    _machine->addAdapter({u"ttyACM0"_s, u"1-4.1"_s, QString()});
    start();
    const auto atStart = names();
    _registry.reset();
    _machine.emplace();
    start();
    _machine->addAdapter({u"ttyACM0"_s, u"1-4.1"_s, QString()});
    QTRY_COMPARE(names(), atStart);
    QCOMPARE(atStart, QStringList{u"usbmodem-1-4.1"_s});
}

void UdevSourceTest::aReplugUnderAnotherNodeKeepsTheName() {
    const auto before = _machine->addAdapter({u"ttyUSB0"_s, u"1-1"_s, u"A1"_s});
    start();
    _machine->announce(before, u"remove"_s);
    _machine->remove(before);
    _machine->addAdapter({u"ttyUSB1"_s, u"1-2"_s, u"A1"_s});
    QTRY_COMPARE(_heard,
                 QStringList({u"-usbserial-A1@/dev/ttyUSB0"_s, u"+usbserial-A1@/dev/ttyUSB1"_s}));
}

void UdevSourceTest::aReplugUnderTheSameNodeIsARemovalAndAnArrival() {
    const auto path = _machine->addAdapter({u"ttyUSB0"_s, u"1-1"_s, u"A1"_s});
    start();
    _machine->announce(path, u"remove"_s);
    _machine->announce(path, u"add"_s);
    QTRY_COMPARE(_heard,
                 QStringList({u"-usbserial-A1@/dev/ttyUSB0"_s, u"+usbserial-A1@/dev/ttyUSB0"_s}));
}

void UdevSourceTest::aBurstIsOneSet() {
    start();
    // No more than fit into the queue of the socket that stands in for the kernel's.
    _machine->addAdapter({u"ttyUSB0"_s, u"1-1"_s, u"A1"_s});
    _machine->addAdapter({u"ttyUSB1"_s, u"1-2"_s, u"A2"_s});
    QTRY_COMPARE(_heard, QStringList{u"+usbserial-A1@/dev/ttyUSB0 usbserial-A2@/dev/ttyUSB1"_s});
}

void UdevSourceTest::knowsOfARemovalAheadOfUdev() {
    const auto path = _machine->addAdapter({u"ttyUSB0"_s, u"1-1"_s, u"A1"_s});
    start();
    const auto device = _registry->matchingDevices().value().constFirst();
    QVERIFY(_registry->isThere(device));
    _machine->remove(path);
    QVERIFY(!_registry->isThere(device));
    // Which is no news yet.
    QCOMPARE(names(), QStringList{u"usbserial-A1"_s});
    QVERIFY(_heard.isEmpty());
}

void UdevSourceTest::knowsOfAReplacementAheadOfUdev() {
    const auto path = _machine->addAdapter({u"ttyUSB0"_s, u"1-1"_s, u"A1"_s});
    start();
    const auto device = _registry->matchingDevices().value().constFirst();
    _machine->replace(path);
    QVERIFY(!_registry->isThere(device));
    QVERIFY(_heard.isEmpty());
    _machine->announce(path, u"add"_s);
    QTRY_COMPARE(_heard,
                 QStringList({u"-usbserial-A1@/dev/ttyUSB0"_s, u"+usbserial-A1@/dev/ttyUSB0"_s}));
    QVERIFY(_registry->isThere(_registry->matchingDevices().value().constFirst()));
}

void UdevSourceTest::writesOutWhatNobodySeesOfANumber() {
    _machine->addAdapter({u"ttyUSB0"_s, u"1-1"_s, u"A\u202E1\u200B"_s});
    _machine->addAdapter({u"ttyUSB1"_s, u"1-2"_s, u"B\u2066"_s, false});
    start();
    QCOMPARE(names(), QStringList({u"usbserial-A\\u202e1\\u200b"_s, u"usbserial-B\\u2066"_s}));
}

static const RegisteredTest<UdevSourceTest> registered;
#include "UdevSourceTest.moc"
