#include "serial/ORSSerialPort.h"

#include "serial/InternalInconsistency.h"
#include "serial/LivePorts.h"
#include "tests/serial/PortBench.h"
#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

QString descriptionOf(const std::function<void()>& construction) {
    try {
        construction();
    } catch (const InternalInconsistency& inconsistency) {
        return QString::fromUtf8(inconsistency.what());
    }
    return u"nothing was thrown"_s;
}

} // namespace

class ORSSerialPortTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void aPortWithoutDeviceIsNeverValid() {
        QCOMPARE(descriptionOf([] { ORSSerialPort port; }),
                 u"ORSSerialPort must be init'd using -initWithPath:"_s);
        QCOMPARE(
            descriptionOf([] { static_cast<void>(ORSSerialPort::serialPortWithDevice(noDevice)); }),
            u"-[ORSSerialPort initWithDevice:] requires non-zero device argument."_s);
    }

    void aDeviceHasOnePort() {
        TestPlatform platform;
        const auto device = platform.devices().plug(u"keyer"_s, u"/dev/a"_s, u"/dev/by-id/a"_s);
        const auto port = ORSSerialPort::serialPortWithDevice(device);
        QVERIFY(port);
        QCOMPARE(ORSSerialPort::serialPortWithDevice(device), port);
        QCOMPARE(ORSSerialPort::serialPortWithPath(u"/dev/a"_s), port);
        QCOMPARE(ORSSerialPort::serialPortWithPath(u"/dev/by-id/a"_s), port);
        QCOMPARE(ORSSerialPort::existingPortWithPath(u"/dev/a"_s), port);
        QVERIFY(!ORSSerialPort::existingPortWithPath(u"/dev/by-id/a"_s));
        QCOMPARE(port->path(), u"/dev/a"_s);
        QCOMPARE(port->name(), u"keyer"_s);
        QCOMPARE(port->description(), u"keyer"_s);
        QCOMPARE(port->IOKitDevice(), device);
    }

    void aDelegateThatHasGoneIsToldNothing() {
        TestPlatform platform;
        const auto port =
            ORSSerialPort::serialPortWithDevice(platform.devices().plug(u"keyer"_s, u"/dev/a"_s));
        {
            RecordingDelegate delegate;
            port->setDelegate(&delegate);
            QCOMPARE(port->delegate(), &delegate);
            port->cleanup();
            QCOMPARE(delegate.events(), QStringList{u"removed"_s});
        }
        QVERIFY(port->delegate() == nullptr);
        port->cleanup();
    }

    void thereIsNoPortForAPath_data() {
        QTest::addColumn<QString>("path");
        QTest::newRow("that is empty") << u""_s;
        QTest::newRow("that no device has") << u"/dev/b"_s;
    }

    void thereIsNoPortForAPath() {
        QFETCH(QString, path);
        TestPlatform platform;
        platform.devices().plug(u"keyer"_s, u"/dev/a"_s);
        QVERIFY(!ORSSerialPort::serialPortWithPath(path));
    }

    void anEmptyPathFindsNotEvenADeviceWithoutPath() {
        TestPlatform platform;
        platform.devices().plug(u"odd"_s, u""_s);
        QCOMPARE(ORSSerialPort::deviceFromBSDPath(u""_s), noDevice);
    }

    void noDeviceIsFoundWhenTheRegistryFails() {
        TestPlatform platform;
        platform.devices().plug(u"keyer"_s, u"/dev/a"_s);
        platform.devices().failMatching();
        QCOMPARE(ORSSerialPort::deviceFromBSDPath(u"/dev/a"_s), noDevice);
        QVERIFY(!ORSSerialPort::serialPortWithPath(u"/dev/a"_s));
    }

    void theFirstDeviceThatFitsIsFound() {
        TestPlatform platform;
        const auto first = platform.devices().plug(u"one"_s, u"/dev/a"_s, u"/dev/by-id/x"_s);
        platform.devices().plug(u"two"_s, u"/dev/by-id/x"_s);
        QCOMPARE(ORSSerialPort::deviceFromBSDPath(u"/dev/by-id/x"_s), first);
    }

    void aDevicesPropertiesAreReadByTheirKeys() {
        TestPlatform platform;
        const auto device = platform.devices()
                                .plug({{{DeviceKey::calloutDevice, u"1"_s},
                                        {DeviceKey::dialinDevice, u"2"_s},
                                        {DeviceKey::ttyBaseName, u"3"_s},
                                        {DeviceKey::clientType, u"4"_s},
                                        {DeviceKey::ttyDevice, u"5"_s},
                                        {DeviceKey::ttySuffix, u"6"_s}}})
                                .constFirst();
        QCOMPARE(ORSSerialPort::bsdCalloutPathFromDevice(device), u"1"_s);
        QCOMPARE(ORSSerialPort::bsdDialinPathFromDevice(device), u"2"_s);
        QCOMPARE(ORSSerialPort::baseNameFromDevice(device), u"3"_s);
        QCOMPARE(ORSSerialPort::serviceTypeFromDevice(device), u"4"_s);
        QCOMPARE(ORSSerialPort::modemNameFromDevice(device), u"5"_s);
        QCOMPARE(ORSSerialPort::suffixFromDevice(device), u"6"_s);
        QVERIFY(ORSSerialPort::stringPropertyOf(device, u"other"_s).isNull());
    }

    void aPortIsForgottenWithItsLastHolder() {
        TestPlatform platform;
        const auto device = platform.devices().plug(u"keyer"_s, u"/dev/a"_s);
        auto port = ORSSerialPort::serialPortWithDevice(device);
        const std::weak_ptr<ORSSerialPort> watched = port;
        port.reset();
        QVERIFY(watched.expired());
        QVERIFY(!ORSSerialPort::existingPortWithPath(u"/dev/a"_s));
    }

    void theDeviceStaysRetainedAfterItsPort() {
        TestPlatform platform;
        const auto device = platform.devices().plug(u"keyer"_s, u"/dev/a"_s);
        QCOMPARE(platform.devices().retainCount(device), 0);
        static_cast<void>(ORSSerialPort::serialPortWithDevice(device));
        QCOMPARE(platform.devices().retainCount(device), 1);
    }

    void onlyThatVeryPortIsTakenOutOfTheList() {
        TestPlatform platform;
        const auto one =
            ORSSerialPort::serialPortWithDevice(platform.devices().plug(u"one"_s, u"/dev/a"_s));
        ORSSerialPort::removeSerialPort(*one);
        QVERIFY(!ORSSerialPort::existingPortWithPath(u"/dev/a"_s));
        const auto equal = ORSSerialPort::serialPortWithPath(u"/dev/a"_s);
        QVERIFY(equal != one);
        QVERIFY(equal->isEqual(*one));
        ORSSerialPort::removeSerialPort(*one);
        QCOMPARE(ORSSerialPort::existingPortWithPath(u"/dev/a"_s), equal);
        ORSSerialPort::addSerialPort(*equal);
        ORSSerialPort::removeSerialPort(*equal);
        QVERIFY(!ORSSerialPort::existingPortWithPath(u"/dev/a"_s));
    }

    void portsOutliveTheirPlatform() {
        auto platform = std::make_unique<TestPlatform>();
        auto port =
            ORSSerialPort::serialPortWithDevice(platform->devices().plug(u"keyer"_s, u"/dev/a"_s));
        platform.reset();
        QCOMPARE(port->name(), u"keyer"_s);
        port.reset();
    }

    void eachPlatformHasItsOwnPorts() {
        auto platform = std::make_unique<TestPlatform>();
        const auto old =
            ORSSerialPort::serialPortWithDevice(platform->devices().plug(u"keyer"_s, u"/dev/a"_s));
        platform.reset();
        TestPlatform next;
        QVERIFY(!ORSSerialPort::existingPortWithPath(u"/dev/a"_s));
    }

    void portsAreEqualWhenTheirPathsAre() {
        TestPlatform platform;
        const auto a =
            ORSSerialPort::serialPortWithDevice(platform.devices().plug(u"same"_s, u"/dev/a"_s));
        const auto b =
            ORSSerialPort::serialPortWithDevice(platform.devices().plug(u"same"_s, u"/dev/b"_s));
        QVERIFY(a->isEqual(*a));
        QVERIFY(!a->isEqual(*b));
        QCOMPARE(a->hash(), qHash(u"/dev/a"_s));
    }

    void aNewPortHasItsDefaults() {
        PortBench bench;
        const auto& port = *bench.port;
        QCOMPARE(port.isOpen(), false);
        QCOMPARE(port.fileDescriptor(), 0);
        QCOMPARE(port.baudRate(), 19200UL);
        QCOMPARE(port.numberOfStopBits(), 1U);
        QCOMPARE(port.parity(), 0U);
        QCOMPARE(port.shouldEchoReceivedData(), false);
        QCOMPARE(port.usesRTSCTSFlowControl(), false);
        QCOMPARE(port.usesDTRDSRFlowControl(), false);
        QCOMPARE(port.usesDCDOutputFlowControl(), false);
        QCOMPARE(port.RTS(), 0);
        QCOMPARE(port.DTR(), 0);
        QCOMPARE(port.CTS(), false);
        QCOMPARE(port.DSR(), false);
        QCOMPARE(port.DCD(), false);
    }

    void parityAboveTwoIsNone() {
        PortBench bench;
        bench.port->setParity(2);
        QCOMPARE(bench.port->parity(), 2U);
        bench.port->setParity(3);
        QCOMPARE(bench.port->parity(), 0U);
    }

    void everySetOfTheRateAppliesTheSettings() {
        PortBench bench;
        QVERIFY(bench.open());
        QSignalSpy changes(bench.port.get(), &ORSSerialPort::baudRateChanged);
        const auto before = bench.faults.setAttributes().size();
        bench.port->setBaudRate(1200);
        bench.port->setBaudRate(1200);
        QCOMPARE(bench.faults.setAttributes().size(), before + 2);
        QCOMPARE(changes.size(), 2);
    }

    void aSettingIsAppliedWhenItChanges_data() {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("number of stop bits") << QByteArray("numberOfStopBits") << QVariant(2U);
        QTest::newRow("parity") << QByteArray("parity") << QVariant(1U);
        QTest::newRow("echo") << QByteArray("shouldEchoReceivedData") << QVariant(true);
    }

    void aSettingIsAppliedWhenItChanges() {
        QFETCH(QByteArray, property);
        QFETCH(QVariant, value);
        PortBench bench;
        QVERIFY(bench.open());
        const auto before = bench.faults.setAttributes().size();
        bench.port->setProperty(property.constData(), value);
        QCOMPARE(bench.port->property(property.constData()), value);
        QCOMPARE(bench.faults.setAttributes().size(), before + 1);
        bench.port->setProperty(property.constData(), value);
        QCOMPARE(bench.faults.setAttributes().size(), before + 1);
    }

    void anErrorTellsErrnoAndPath() {
        PortBench bench;
        errno = EACCES;
        bench.port->notifyDelegateOfPosixError();
        QCOMPARE(bench.delegate.errors().size(), 1);
        const auto error = bench.delegate.errors().constFirst();
        QCOMPARE(error.domain, NSPOSIXErrorDomain);
        QCOMPARE(error.code, EACCES);
        QCOMPARE(error.userInfo.size(), 2);
        QCOMPARE(error.localizedDescription(), u"Permission denied"_s);
        QCOMPARE(error.userInfo.value(NSFilePathErrorKey).toString(), bench.line.path());
        bench.port->setDelegate(nullptr);
        bench.port->notifyDelegateOfPosixError();
    }

    void theSameErrorIsPutIntoWordsOnce() {
        PortBench bench;
        for (const int number : {ENOTTY, ENOTTY, EIO, ENOTTY}) {
            errno = number;
            bench.port->notifyDelegateOfPosixError();
        }
        QStringList texts;
        for (const auto& error : bench.delegate.errors()) {
            texts.append(error.localizedDescription());
        }
        const auto refused = u"Inappropriate ioctl for device"_s;
        QCOMPARE(texts, (QStringList{refused, refused, u"Input/output error"_s, refused}));
        QCOMPARE(texts.at(1).constData(), texts.at(0).constData());
    }
};

static const RegisteredTest<ORSSerialPortTest> registered;
#include "ORSSerialPortTest.moc"
