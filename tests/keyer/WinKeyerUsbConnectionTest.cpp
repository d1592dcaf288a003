#include "keyer/GeneralSettings.h"
#include "serial/ORSSerialPortManager.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/SystemCallFaults.h"

#include <QTest>

#include <cerrno>
#include <optional>
#include <sys/ioctl.h>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QByteArray connectSequence = "13 13 13 13 00 04 55 00 02 00 0b "
                                   "0f 15 00 8a 32 00 0a 0d 20 00 00 0a 32 32 06 00 07";

} // namespace

class WinKeyerUsbConnectionTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { _bench.emplace(); }
    void cleanup() { _bench.reset(); }

    void thereIsOneEngine();
    void startsWithSerialNumberOne();
    void connectingSendsTheWholeSequence();
    void connectingSetsTheLine();
    void noPortChosenFailsAtOnce();
    void unknownPortIsNamedAndForgotten_data();
    void unknownPortIsNamedAndForgotten();
    void theFirstOfTwoPortsOfOneNameIsTaken();
    void aPortThatCannotBeOpened();
    void aRefusedWriteEndsTheSequence_data();
    void aRefusedWriteEndsTheSequence();
    void theNumberPrintedIsThatOfTheErrorInTheSlot();
    void failuresNeedNoErrorSlot();
    void connectingWhileConnectedSendsEverythingAgain();
    void whatTheKeyerSendsMeanwhileIsHandledAfterwards();
    void bytesThatCameAtOnceAreHandledEachAsItIs();
    void whatOneKeyerSaidDoesNothingOnTheNextOne();
    void whatTheKeyerSaidBeforeDoesNothing();

    void disconnectingTellsTheKeyerBetweenTwoPauses();
    void theKeyerHasASecondBeforeAndAfterItLeavesHostMode();
    void disconnectingWhileNotConnected();
    void disconnectingWhileNotInHostMode();
    void aFailedHostCloseStillReleasesThePort();
    void aRefusedHostCloseCanBeTriedAgain();
    void disconnectingForgetsTextAndReadings();
    void aRemovedPortIsLetGo();
    void aPortUsedBeforeTakesNoLinkWithIt();
    void aPortThatAWakeOpensForNobodyIsClosed();
    void loadDefaultsSendsNothingWhileNotConnected();
    void versionsFrom20To23AreAccepted_data();
    void versionsFrom20To23AreAccepted();

  private:
    std::optional<EngineBench> _bench;
};

void WinKeyerUsbConnectionTest::thereIsOneEngine() {
    QCOMPARE(&WinKeyerUsb::sharedInstance(), &WinKeyerUsb::sharedInstance());
}

void WinKeyerUsbConnectionTest::startsWithSerialNumberOne() {
    QCOMPARE(_bench->engine().serialNumber(), 1);
    QCOMPARE(_bench->engine().outputBufferIndex(), 0);
    QVERIFY(!_bench->engine().isConnected());
    QVERIFY(_bench->engine().keyboardBuffer().isNull());
}

void WinKeyerUsbConnectionTest::connectingSendsTheWholeSequence() {
    Error error;
    QVERIFY(_bench->engine().connect(&error));
    QCOMPARE(_bench->written(), connectSequence);
    QVERIFY(_bench->engine().isConnected());
    QVERIFY(_bench->port().isOpen());
    QCOMPARE(error.code, 0);
    QVERIFY(_bench->engine().versionString().isNull());
}

void WinKeyerUsbConnectionTest::connectingSetsTheLine() {
    auto& port = _bench->port();
    port.setParity(2);
    port.setUsesRTSCTSFlowControl(true);
    port.setUsesDTRDSRFlowControl(true);
    port.setUsesDCDOutputFlowControl(true);
    QVERIFY(_bench->connect());
    QCOMPARE(port.baudRate(), 1200UL);
    QCOMPARE(port.parity(), 0U);
    QCOMPARE(port.numberOfStopBits(), 2U);
    QVERIFY(!port.usesRTSCTSFlowControl());
    QVERIFY(!port.usesDTRDSRFlowControl());
    QVERIFY(!port.usesDCDOutputFlowControl());
    QCOMPARE(port.maximumBlockSize(), 1);
    QCOMPARE(port.DTR(), 0);
    QCOMPARE(port.RTS(), 0);
}

void WinKeyerUsbConnectionTest::noPortChosenFailsAtOnce() {
    _bench->settings().setObject(u"None"_s, WKPortName);
    Error error;
    QVERIFY(!_bench->engine().connect(&error));
    QCOMPARE(error.domain, u"org.quorvel.Quorvel"_s);
    QCOMPARE(error.code, 1);
    QCOMPARE(error.userInfo.size(), 2);
    QCOMPARE(error.localizedDescription(), u"There is no port defined for the WinKeyer."_s);
    QCOMPARE(error.localizedRecoverySuggestion(),
             u"Choose a serial port other than None in the General Preferences pane. Or, plug in "
             "a cable to your WinKeyer USB."_s);
    QCOMPARE(_bench->settings().stringForKey(WKPortName), u"None"_s);
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbConnectionTest::unknownPortIsNamedAndForgotten_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("another name") << u"usbserial-gone"_s;
    QTest::newRow("other letter case") << u"USBSERIAL-WK1"_s;
    QTest::newRow("only the beginning") << u"usbserial-WK"_s;
    QTest::newRow("a name with a placeholder in it") << u"usb%1"_s;
}

void WinKeyerUsbConnectionTest::unknownPortIsNamedAndForgotten() {
    QFETCH(QString, name);
    _bench->settings().setObject(name, WKPortName);
    Error error;
    QVERIFY(!_bench->engine().connect(&error));
    QCOMPARE(error.localizedDescription(),
             u"The WinKeyer serial port "_s + name + u" is not available."_s);
    QVERIFY(error.localizedRecoverySuggestion().startsWith(
        u"Confirm that the WinKeyer is connected to the selected port, and that no other "
        "application is using that port. Also confirm that the FDTI driver is installed. Obtain "
        "the appropriate Mac OS X driver at http"_s));
    QVERIFY(error.localizedRecoverySuggestion().endsWith(u'.'));
    QCOMPARE(_bench->settings().stringForKey(WKPortName), u"None"_s);
    QVERIFY(!_bench->engine().isConnected());
}

void WinKeyerUsbConnectionTest::theFirstOfTwoPortsOfOneNameIsTaken() {
    const PseudoTerminalPair second;
    _bench->platform().devices().plug(EngineBench::portName, second.path());
    QCOMPARE(ORSSerialPortManager::sharedSerialPortManager().availablePorts()->size(), 2);
    QVERIFY(_bench->connect());
    QVERIFY(_bench->port().isOpen());
    QVERIFY(second.readAvailable().isEmpty());
}

void WinKeyerUsbConnectionTest::aPortThatCannotBeOpened() {
    SystemCallFaults faults;
    faults.fail(SystemCall::Open, EACCES);
    Error error;
    QVERIFY(!_bench->engine().connect(&error));
    QCOMPARE(error.localizedDescription(),
             u"Unable to open the WinKeyer serial port usbserial-WK1."_s);
    QCOMPARE(error.localizedRecoverySuggestion(),
             u"Confirm that the USB-Serial device is connected and active."_s);
    QCOMPARE(_bench->settings().stringForKey(WKPortName), u"None"_s);
    QVERIFY(!_bench->engine().isConnected());
}

void WinKeyerUsbConnectionTest::aRefusedWriteEndsTheSequence_data() {
    QTest::addColumn<int>("refusedWrite");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("suggestion");

    const auto sync = u"WinKeyer sync failed with AMSerial code: 0"_s;
    const auto seeHeader = u"See AMSerialErrors.h"_s;
    const auto giveUp = u"Giving up and closing connection to keyer."_s;
    QTest::newRow("first null command") << 1 << sync << seeHeader;
    QTest::newRow("second null command") << 2 << sync << seeHeader;
    QTest::newRow("fourth null command") << 4 << sync << seeHeader;
    QTest::newRow("echo test") << 5
                               << u"WinKeyer echo test Admin command failed with AMSerial code: 0"_s
                               << seeHeader;
    QTest::newRow("host open") << 6 << u"WinKeyer Host Open Admin command failed."_s << giveUp;
    QTest::newRow("WK2 mode") << 7 << u"WinKeyer Set WinKeyer 2 Mode Admin command failed."_s
                              << giveUp;
}

void WinKeyerUsbConnectionTest::aRefusedWriteEndsTheSequence() {
    QFETCH(int, refusedWrite);
    QFETCH(QString, message);
    QFETCH(QString, suggestion);
    Error error;
    {
        SystemCallFaults faults;
        faults.fail(SystemCall::Write, EIO, refusedWrite);
        QVERIFY(!_bench->engine().connect(&error));
        QCOMPARE(faults.count(SystemCall::Write), refusedWrite);
    }
    QCOMPARE(error.localizedDescription(), message);
    QCOMPARE(error.localizedRecoverySuggestion(), suggestion);
    QCOMPARE(error.code, 1);
    QCOMPARE(_bench->settings().stringForKey(WKPortName), u"None"_s);
    QVERIFY(!_bench->port().isOpen());
    QVERIFY(!_bench->engine().isConnected());
}

void WinKeyerUsbConnectionTest::theNumberPrintedIsThatOfTheErrorInTheSlot() {
    SystemCallFaults faults;
    faults.fail(SystemCall::Write, EIO);
    Error error{.domain = {}, .code = 42, .userInfo = {}};
    QVERIFY(!_bench->engine().connect(&error));
    QCOMPARE(error.localizedDescription(), u"WinKeyer sync failed with AMSerial code: 42"_s);
}

void WinKeyerUsbConnectionTest::failuresNeedNoErrorSlot() {
    SystemCallFaults faults;
    faults.fail(SystemCall::Write, EIO, 5);
    QVERIFY(!_bench->engine().connect(nullptr));
    QVERIFY(!_bench->engine().isConnected());
}

void WinKeyerUsbConnectionTest::connectingWhileConnectedSendsEverythingAgain() {
    QVERIFY(_bench->connect());
    QVERIFY(_bench->engine().connect(nullptr));
    QCOMPARE(_bench->written(), connectSequence);
    QVERIFY(_bench->port().isOpen());
}

void WinKeyerUsbConnectionTest::whatTheKeyerSendsMeanwhileIsHandledAfterwards() {
    // The pot's byte comes ahead of host mode, in which alone it counts, and the reader has it
    // before the sequence goes on.
    bool isRead = false;
    bool isSent = false;
    {
        SystemCallFaults faults;
        faults.beforeEach(SystemCall::Write, [&](int descriptor) {
            if (!isSent && descriptor == _bench->port().fileDescriptor()) {
                isSent = _bench->line().write(QByteArray::fromHex("8c"));
                for (int waiting = 1; waiting > 0;) {
                    isRead = ::ioctl(descriptor, FIONREAD, &waiting) == 0;
                }
            }
        });
        QVERIFY(_bench->engine().connect(nullptr));
    }
    QVERIFY(isSent && isRead);
    QVERIFY(_bench->engine().speedString().isNull());
    QTRY_COMPARE(_bench->engine().speedString(), u"25 WPM"_s);
}

void WinKeyerUsbConnectionTest::bytesThatCameAtOnceAreHandledEachAsItIs() {
    QVERIFY(_bench->connect());
    _bench->type(u"CQ"_s);
    QVERIFY(_bench->line().write("C\xC6"));
    QTRY_COMPARE(_bench->engine().activity(), KeyerActivity::BreakIn);
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);

    _bench->settings().setObject(u"E"_s, u"Message1"_s);
    QVERIFY(_bench->line().write("\xC9\xC8\xC0"));
    QTRY_COMPARE(_bench->engine().activity(), KeyerActivity::Idle);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"E"_s);
}

void WinKeyerUsbConnectionTest::whatOneKeyerSaidDoesNothingOnTheNextOne() {
    const PseudoTerminalPair otherLine;
    _bench->platform().devices().plug(u"usbserial-WK2"_s, otherLine.path());
    QVERIFY(_bench->connect());
    const SystemCallFaults watched;
    // A button, a full buffer and the pot, of which the main thread knows nothing yet.
    QVERIFY(_bench->line().write("\xC9\xC1\x85"));
    while (watched.count(SystemCall::Read) < 3) {
        std::this_thread::sleep_for(1ms);
    }
    QVERIFY(_bench->engine().disconnect(nullptr));
    _bench->settings().setObject(u"usbserial-WK2"_s, WKPortName);
    QVERIFY(_bench->engine().connect(nullptr));
    QVERIFY(otherLine.write("\x8C"));
    QTRY_COMPARE(_bench->engine().speedString(), u"25 WPM"_s);
    QVERIFY(_bench->engine().keyboardBuffer().isEmpty());
    QCOMPARE(_bench->engine().pauseState(), 0);
}

void WinKeyerUsbConnectionTest::whatTheKeyerSaidBeforeDoesNothing() {
    QVERIFY(_bench->line().write("\xC9"));
    QVERIFY(_bench->connect());
    QVERIFY(_bench->line().write("\x8C"));
    QTRY_COMPARE(_bench->engine().speedString(), u"25 WPM"_s);
    QVERIFY(_bench->engine().keyboardBuffer().isEmpty());
}

void WinKeyerUsbConnectionTest::disconnectingTellsTheKeyerBetweenTwoPauses() {
    QVERIFY(_bench->connect());
    QVERIFY(_bench->engine().disconnect(nullptr));
    QCOMPARE(_bench->written(), "00 03");
    QCOMPARE(_bench->clock().naps(), (QList<Clock::Duration>{1s, 1s}));
    QVERIFY(!_bench->port().isOpen());
    QVERIFY(!_bench->engine().isConnected());
    QCOMPARE(_bench->settings().stringForKey(WKPortName), QString(EngineBench::portName));
}

void WinKeyerUsbConnectionTest::theKeyerHasASecondBeforeAndAfterItLeavesHostMode() {
    QVERIFY(_bench->connect());
    QList<QByteArray> writtenBeforeNap;
    QList<bool> wasOpen;
    _bench->clock().setWhileNapping([&](Clock::Duration) {
        wasOpen.append(_bench->port().isOpen());
        writtenBeforeNap.append(_bench->written());
    });
    QVERIFY(_bench->engine().disconnect(nullptr));
    QCOMPARE(writtenBeforeNap, (QList<QByteArray>{"", "00 03"}));
    QCOMPARE(wasOpen, (QList<bool>{true, true}));
}

void WinKeyerUsbConnectionTest::disconnectingWhileNotConnected() {
    _bench->engine().setVersionString(u"23"_s);
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(_bench->clock().naps().isEmpty());
    QVERIFY(_bench->engine().versionString().isNull());
    QVERIFY(_bench->engine().speedString().isNull());
}

void WinKeyerUsbConnectionTest::disconnectingWhileNotInHostMode() {
    QVERIFY(_bench->connect());
    QVERIFY(_bench->engine().closeHostMode(nullptr));
    QCOMPARE(_bench->written(), "00 03");
    QVERIFY(_bench->engine().closeHostMode(nullptr));
    QVERIFY(_bench->engine().disconnect(nullptr));
    QCOMPARE(_bench->written(), "");
    QCOMPARE(_bench->clock().naps(), (QList<Clock::Duration>{1s, 1s}));
    QVERIFY(!_bench->port().isOpen());
}

void WinKeyerUsbConnectionTest::aFailedHostCloseStillReleasesThePort() {
    QVERIFY(_bench->connect());
    SystemCallFaults faults;
    faults.fail(SystemCall::Write, EIO);
    QTest::ignoreMessage(QtInfoMsg, "closeHostMode failed");
    Error error;
    QVERIFY(!_bench->engine().disconnect(&error));
    QCOMPARE(error.localizedDescription(),
             u"WinKeyer Host Close Admin command failed with AMSerial code: 0"_s);
    QCOMPARE(error.localizedRecoverySuggestion(), u"See AMSerialErrors.h"_s);
    QVERIFY(!_bench->port().isOpen());
    QVERIFY(!_bench->engine().isConnected());
    QCOMPARE(_bench->settings().stringForKey(WKPortName), QString(EngineBench::portName));
}

void WinKeyerUsbConnectionTest::aRefusedHostCloseCanBeTriedAgain() {
    QVERIFY(_bench->connect());
    SystemCallFaults faults;
    faults.fail(SystemCall::Write, EIO, 1, 1);
    QTest::ignoreMessage(QtInfoMsg, "closeHostMode failed");
    QVERIFY(!_bench->engine().closeHostMode(nullptr));
    QVERIFY(_bench->engine().closeHostMode(nullptr));
    QCOMPARE(faults.count(SystemCall::Write), 2);
}

void WinKeyerUsbConnectionTest::disconnectingForgetsTextAndReadings() {
    QVERIFY(_bench->connect());
    _bench->type(u"CQ"_s);
    _bench->receive({0x80});
    QCOMPARE(_bench->engine().speedString(), u"13 WPM"_s);
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(_bench->engine().speedString().isNull());
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    QVERIFY(!_bench->engine().keyboardBuffer().isNull());
}

void WinKeyerUsbConnectionTest::aRemovedPortIsLetGo() {
    QVERIFY(_bench->connect());
    QTest::ignoreMessage(QtInfoMsg, "-[WinKeyerUsb serialPortWasRemovedFromSystem:]");
    _bench->platform().devices().unplug(_bench->device());
    QVERIFY(!_bench->engine().isConnected());
    QVERIFY(!_bench->engine().echoTest(nullptr));
    _bench->settings().setObject(QString(EngineBench::portName), WKPortName);
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(_bench->clock().naps().isEmpty());
    QCOMPARE(_bench->settings().stringForKey(WKPortName), QString(EngineBench::portName));
}

void WinKeyerUsbConnectionTest::aPortUsedBeforeTakesNoLinkWithIt() {
    QVERIFY(_bench->connect());
    QVERIFY(_bench->engine().disconnect(nullptr));
    const PseudoTerminalPair line;
    _bench->platform().devices().plug(u"usbserial-2"_s, line.path());
    _bench->settings().setObject(u"usbserial-2"_s, WKPortName);
    QVERIFY(_bench->engine().connect(nullptr));
    QTest::ignoreMessage(QtInfoMsg, "-[WinKeyerUsb serialPortWasRemovedFromSystem:]");
    _bench->platform().devices().unplug(_bench->device());
    QVERIFY(_bench->engine().isConnected());
    QVERIFY(ORSSerialPort::serialPortWithPath(line.path())->isOpen());
}

/// The operator chose none while the machine woke up.
void WinKeyerUsbConnectionTest::aPortThatAWakeOpensForNobodyIsClosed() {
    QVERIFY(_bench->connect());
    auto& notifications = _bench->platform().notifications();
    notifications.post(NSWorkspaceWillSleepNotification, nullptr);
    QVERIFY(_bench->engine().disconnect(nullptr));
    static_cast<void>(_bench->written());
    notifications.post(NSWorkspaceDidWakeNotification, nullptr);
    QTRY_VERIFY(!_bench->port().isOpen());
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbConnectionTest::loadDefaultsSendsNothingWhileNotConnected() {
    _bench->engine().loadDefaults();
    QCOMPARE(_bench->written(), "");
    QVERIFY(_bench->connect());
    _bench->engine().loadDefaults();
    QCOMPARE(_bench->written(), "0f 15 00 8a 32 00 0a 0d 20 00 00 0a 32 32 06 00");
}

void WinKeyerUsbConnectionTest::versionsFrom20To23AreAccepted_data() {
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("isAccepted");
    QTest::addColumn<QString>("number");
    QTest::newRow("19") << u"19"_s << false << u"19"_s;
    QTest::newRow("20") << u"20"_s << true << QString();
    QTest::newRow("21") << u"21"_s << true << QString();
    QTest::newRow("22") << u"22"_s << true << QString();
    QTest::newRow("23") << u"23"_s << true << QString();
    QTest::newRow("24") << u"24"_s << false << u"24"_s;
    QTest::newRow("the leading number counts") << u"23.1"_s << true << QString();
    QTest::newRow("none counts as 0") << QString() << false << u"0"_s;
}

void WinKeyerUsbConnectionTest::versionsFrom20To23AreAccepted() {
    QFETCH(QString, version);
    QFETCH(bool, isAccepted);
    QFETCH(QString, number);
    QVERIFY(_bench->connect());
    _bench->engine().setVersionString(version);
    Error error;
    QCOMPARE(_bench->engine().validateVersion(&error), isAccepted);
    QCOMPARE(_bench->port().isOpen(), isAccepted);
    QCOMPARE(_bench->engine().isConnected(), isAccepted);
    if (!isAccepted) {
        QCOMPARE(error.localizedDescription(),
                 u"WinKeyer returned unsupported version: "_s + number + u'.');
        QCOMPARE(error.localizedRecoverySuggestion(),
                 u"Confirm that the WinKeyer version is between 20 and 23."_s);
        QCOMPARE(_bench->settings().stringForKey(WKPortName), u"None"_s);
        QVERIFY(_bench->engine().versionString().isNull());
    }
}

static const RegisteredTest<WinKeyerUsbConnectionTest> registered;
#include "WinKeyerUsbConnectionTest.moc"
