#include "platform/linux/TtyDevice.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <algorithm>
#include <fnmatch.h>

using namespace Qt::StringLiterals;

class TtyDeviceTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void name_data();
    void name();
    void passesOver_data();
    void passesOver();
    void dialinPath_data();
    void dialinPath();
    void keepsNodeAndIdentity();
    void onlyUsbIsUsb();
    void itsPatternsFindEveryDevice_data();
    void itsPatternsFindEveryDevice();
};

namespace {

TtyDevice usb(const QString& kernelName, const QString& serialNumber) {
    return {.kernelName = kernelName,
            .node = u"/dev/"_s + kernelName,
            .usbSerialNumber = serialNumber,
            .usbPath = u"1-1.2"_s,
            .usbInterface = u"1-1.2:1.0"_s,
            .identity = u"/sys/x#0"_s};
}

TtyDevice own(const QString& kernelName, bool hasUart) {
    return {.kernelName = kernelName,
            .node = u"/dev/"_s + kernelName,
            .hasUart = hasUart,
            .identity = u"/sys/y#0"_s};
}

} // namespace

void TtyDeviceTest::name_data() {
    QTest::addColumn<TtyDevice>("tty");
    QTest::addColumn<QString>("baseName");
    QTest::addColumn<QStringList>("suffixes");
    QTest::newRow("an adapter is named by its serial number")
        << usb(u"ttyUSB0"_s, u"WK0001"_s) << u"usbserial-"_s
        << QStringList{u"WK0001"_s, u"WK0001-1-1.2"_s, u"WK0001-1-1.2:1.0"_s, u"WK0001-ttyUSB0"_s};
    QTest::newRow("an adapter without one is named by its place")
        << usb(u"ttyUSB3"_s, QString()) << u"usbserial-"_s
        << QStringList{u"1-1.2"_s, u"1-1.2:1.0"_s, u"ttyUSB3"_s};
    QTest::newRow("an empty serial number is none")
        << usb(u"ttyUSB3"_s, u""_s) << u"usbserial-"_s
        << QStringList{u"1-1.2"_s, u"1-1.2:1.0"_s, u"ttyUSB3"_s};
    QTest::newRow("an adapter of which nothing is known has the kernel's name")
        << TtyDevice{.kernelName = u"ttyUSB7"_s, .node = u"/dev/ttyUSB7"_s} << u"usbserial-"_s
        << QStringList{u"ttyUSB7"_s};
    QTest::newRow("a modem is named by its serial number")
        << usb(u"ttyACM1"_s, u"55"_s) << u"usbmodem-"_s
        << QStringList{u"55"_s, u"55-1-1.2"_s, u"55-1-1.2:1.0"_s, u"55-ttyACM1"_s};
    QTest::newRow("a UART keeps the kernel's name")
        << own(u"ttyS0"_s, true) << u"ttyS"_s << QStringList{u"0"_s};
    QTest::newRow("an ARM UART keeps the kernel's name")
        << own(u"ttyAMA10"_s, true) << u"ttyAMA"_s << QStringList{u"10"_s};
    QTest::newRow("Bluetooth is called so")
        << own(u"rfcomm0"_s, false) << u"Bluetooth-rfcomm"_s << QStringList{u"0"_s};
}

void TtyDeviceTest::name() {
    QFETCH(TtyDevice, tty);
    const auto device = tty.serialDevice();
    QVERIFY(device);
    QTEST(device->baseName, "baseName");
    QTEST(device->suffixes, "suffixes");
}

void TtyDeviceTest::passesOver_data() {
    QTest::addColumn<TtyDevice>("tty");
    QTest::newRow("a port with no UART behind it") << own(u"ttyS1"_s, false);
    QTest::newRow("an ARM port with no UART behind it") << own(u"ttyAMA1"_s, false);
    QTest::newRow("a virtual console") << own(u"tty1"_s, true);
    QTest::newRow("the console") << own(u"console"_s, true);
    QTest::newRow("an old pseudo-terminal") << own(u"ttyp0"_s, true);
    QTest::newRow("a longer family name") << own(u"ttySC0"_s, true);
    QTest::newRow("a family name without a number") << own(u"ttyS"_s, true);
    QTest::newRow("a number that is none") << usb(u"ttyUSBx"_s, u"1"_s);
    QTest::newRow("no name") << own(QString(), true);
}

void TtyDeviceTest::passesOver() {
    QFETCH(TtyDevice, tty);
    QVERIFY(!tty.serialDevice());
}

void TtyDeviceTest::dialinPath_data() {
    QTest::addColumn<QStringList>("links");
    QTest::addColumn<QString>("expected");
    const auto byId = u"/dev/serial/by-id/usb-WK-if00-port0"_s;
    const auto byPath = u"/dev/serial/by-path/pci-0000:00:14.0-usb-0:1.2:1.0-port0"_s;
    QTest::newRow("the link by number") << QStringList{byId, byPath} << byId;
    QTest::newRow("the link by number, wherever it stands") << QStringList{byPath, byId} << byId;
    QTest::newRow("without one the link by place") << QStringList{byPath} << byPath;
    QTest::newRow("without any the node") << QStringList{} << u"/dev/ttyUSB0"_s;
    QTest::newRow("other links do not count") << QStringList{u"/dev/keyer"_s} << u"/dev/ttyUSB0"_s;
}

void TtyDeviceTest::dialinPath() {
    QFETCH(QStringList, links);
    auto tty = usb(u"ttyUSB0"_s, u"1"_s);
    tty.links = links;
    QTEST(tty.serialDevice().value().dialinPath, "expected");
}

void TtyDeviceTest::keepsNodeAndIdentity() {
    const auto device = usb(u"ttyUSB4"_s, u"1"_s).serialDevice();
    QVERIFY(device);
    QCOMPARE(device->calloutPath, u"/dev/ttyUSB4"_s);
    QCOMPARE(device->identity, u"/sys/x#0"_s);
    const auto uart = own(u"ttyS4"_s, true).serialDevice();
    QVERIFY(uart);
    QCOMPARE(uart->calloutPath, u"/dev/ttyS4"_s);
    QCOMPARE(uart->dialinPath, u"/dev/ttyS4"_s);
}

void TtyDeviceTest::onlyUsbIsUsb() {
    QVERIFY(usb(u"ttyUSB0"_s, u"1"_s).serialDevice().value().isUsb);
    QVERIFY(usb(u"ttyACM0"_s, u"1"_s).serialDevice().value().isUsb);
    QVERIFY(!own(u"ttyS0"_s, true).serialDevice().value().isUsb);
    QVERIFY(!own(u"rfcomm0"_s, true).serialDevice().value().isUsb);
}

void TtyDeviceTest::itsPatternsFindEveryDevice_data() {
    QTest::addColumn<QByteArray>("kernelName");
    QTest::addColumn<bool>("isFound");
    for (const auto* each : {"ttyUSB0", "ttyACM12", "ttyS3", "ttyAMA0", "rfcomm1"}) {
        QTest::newRow(each) << QByteArray(each) << true;
    }
    for (const auto* each : {"tty", "tty0", "tty63", "console", "ptmx"}) {
        QTest::newRow(each) << QByteArray(each) << false;
    }
}

void TtyDeviceTest::itsPatternsFindEveryDevice() {
    QFETCH(const QByteArray, kernelName);
    const auto patterns = TtyDevice::kernelNamePatterns();
    QTEST(std::any_of(patterns.begin(), patterns.end(),
                      [&](const QByteArray& pattern) {
                          return ::fnmatch(pattern.constData(), kernelName.constData(), 0) == 0;
                      }),
          "isFound");
}

static const RegisteredTest<TtyDeviceTest> registered;
#include "TtyDeviceTest.moc"
