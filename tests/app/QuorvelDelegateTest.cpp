#include "app/QuorvelDelegate.h"

#include "keyer/GeneralSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "serial/ORSSerialPortManager.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/SystemCallFaults.h"

#include <QSignalSpy>
#include <QTest>

#include <cerrno>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

class QuorvelDelegateTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void launchingListsThePortsAndConnects();
    void aPortThatComesDuringTheLaunchIsListedAndNotOffered();
    void launchingWithoutAChosenPortTellsSoOnce();
    void quittingWhileConnectedLeavesHostMode();
    void quittingWhileNotConnectedIsSilent();
    void quittingShowsAFailureAndQuits();
    void choosingNoneDisconnectsAndSaysNothing();
    void choosingThePortInUseConnectsAnew();
    void aFailedConnectIsShown();
    void aFailedDisconnectIsShownAndDoesNotStopTheConnect();
    void quittingDuringAnAlertKeepsTheChoiceOfPort();
    void aLaunchThatComesAfterTheEndConnectsNothing();
    void theListFollowsThePorts();
    void unpluggingTheKeyersPortTellsSoOnce();
    void theLinkIsDownWhileTheUnplugAlertIsUp();
    void unplugAlertIsByNameAlone();
    void unpluggingAnotherPortShowsNothing();
    void unpluggingWithNoneChosenShowsNothing();
    void aPluggedPortIsOffered_data();
    void aPluggedPortIsOffered();
    void aPluggedPortIsListedBeforeItIsOffered();
    void everyPortOfOneMomentIsOffered();
    void aPortThatHasGoneIsNotOffered();
    void yesToAPortThatHasGoneIsAnswered_data();
    void yesToAPortThatHasGoneIsAnswered();
    void nothingIsOfferedWhileConnected();
    void onlyUsbSerialPortsAreOffered_data();
    void onlyUsbSerialPortsAreOffered();
    void theDelegateIsTheApplications();

  private:
    [[nodiscard]] const QList<Alert>& alerts() { return _bench->platform().application().alerts(); }
    [[nodiscard]] QString chosenPort() { return _bench->settings().stringForKey(WKPortName); }
    void launch();

    std::optional<EngineBench> _bench;
    std::optional<QuorvelDelegate> _delegate;
};

void QuorvelDelegateTest::init() {
    _bench.emplace();
    _delegate.emplace(_bench->engine());
}

void QuorvelDelegateTest::cleanup() {
    _delegate.reset();
    _bench.reset();
}

void QuorvelDelegateTest::launch() {
    _delegate->applicationDidFinishLaunching();
    static_cast<void>(_bench->written());
}

void QuorvelDelegateTest::launchingListsThePortsAndConnects() {
    QSignalSpy lists(&*_delegate, &QuorvelDelegate::serialPortNameArrayChanged);
    launch();
    QCOMPARE(_delegate->serialPortNameArray(), (QStringList{u"None"_s, EngineBench::portName}));
    QCOMPARE(lists.size(), 2);
    QVERIFY(_bench->engine().isConnected());
    QVERIFY(alerts().isEmpty());
}

void QuorvelDelegateTest::aPortThatComesDuringTheLaunchIsListedAndNotOffered() {
    const PseudoTerminalPair line;
    bool isPlugged = false;
    QObject::connect(&*_delegate, &QuorvelDelegate::serialPortNameArrayChanged, &*_delegate, [&] {
        if (!std::exchange(isPlugged, true)) {
            _bench->platform().devices().plug(u"usbserial-2"_s, line.path());
        }
    });
    launch();
    QCOMPARE(_delegate->serialPortNameArray(),
             (QStringList{u"None"_s, EngineBench::portName, u"usbserial-2"_s}));
    QVERIFY(alerts().isEmpty());
}

void QuorvelDelegateTest::launchingWithoutAChosenPortTellsSoOnce() {
    _bench->settings().setObject(u"None"_s, WKPortName);
    launch();
    QCOMPARE(_delegate->serialPortNameArray(), (QStringList{u"None"_s, EngineBench::portName}));
    QCOMPARE(alerts().size(), 1);
    QCOMPARE(alerts().first().messageText, u"There is no port defined for the WinKeyer."_s);
    QCOMPARE(alerts().first().informativeText,
             u"Choose a serial port other than None in the General Preferences pane. Or, plug in a "
             "cable to your WinKeyer USB."_s);
    QVERIFY(!_bench->engine().isConnected());
}

void QuorvelDelegateTest::quittingWhileConnectedLeavesHostMode() {
    launch();
    QCOMPARE(_delegate->applicationShouldTerminate(),
             QuorvelDelegate::TerminateReply::TerminateNow);
    QCOMPARE(_bench->written(), "00 03");
    QVERIFY(!_bench->port().isOpen());
    QVERIFY(alerts().isEmpty());
    QVERIFY(_delegate->applicationShouldTerminateAfterLastWindowClosed());
}

void QuorvelDelegateTest::quittingWhileNotConnectedIsSilent() {
    QCOMPARE(_delegate->applicationShouldTerminate(),
             QuorvelDelegate::TerminateReply::TerminateNow);
    QVERIFY(alerts().isEmpty());
    QVERIFY(_bench->clock().naps().isEmpty());
}

void QuorvelDelegateTest::quittingShowsAFailureAndQuits() {
    launch();
    SystemCallFaults faults;
    faults.fail(SystemCall::Write, EIO);
    QCOMPARE(_delegate->applicationShouldTerminate(),
             QuorvelDelegate::TerminateReply::TerminateNow);
    QCOMPARE(alerts().size(), 1);
    QCOMPARE(alerts().first().messageText,
             u"WinKeyer Host Close Admin command failed with AMSerial code: 0"_s);
    QVERIFY(!_bench->port().isOpen());
}

void QuorvelDelegateTest::choosingNoneDisconnectsAndSaysNothing() {
    launch();
    _bench->settings().setObject(u"None"_s, WKPortName);
    _delegate->changeSerialPort(nullptr);
    QVERIFY(!_bench->engine().isConnected());
    QCOMPARE(_bench->written(), "00 03");
    QVERIFY(alerts().isEmpty());
}

void QuorvelDelegateTest::choosingThePortInUseConnectsAnew() {
    launch();
    _delegate->changeSerialPort(nullptr);
    const auto written = _bench->written();
    QVERIFY2(written.startsWith("00 03 13 13 13 13 00 04 55"), written);
    QVERIFY(_bench->engine().isConnected());
}

void QuorvelDelegateTest::aFailedConnectIsShown() {
    launch();
    _bench->settings().setObject(u"gone"_s, WKPortName);
    _delegate->changeSerialPort(nullptr);
    QCOMPARE(alerts().size(), 1);
    QCOMPARE(alerts().first().messageText, u"The WinKeyer serial port gone is not available."_s);
}

void QuorvelDelegateTest::aFailedDisconnectIsShownAndDoesNotStopTheConnect() {
    launch();
    SystemCallFaults faults;
    faults.fail(SystemCall::Write, EIO, 1, 1);
    _delegate->changeSerialPort(nullptr);
    QCOMPARE(alerts().size(), 1);
    QCOMPARE(alerts().first().messageText,
             u"WinKeyer Host Close Admin command failed with AMSerial code: 0"_s);
    QVERIFY(_bench->engine().isConnected());
    QVERIFY(_bench->port().isOpen());
}

void QuorvelDelegateTest::quittingDuringAnAlertKeepsTheChoiceOfPort() {
    launch();
    SystemCallFaults faults;
    faults.fail(SystemCall::Write, EIO);
    _bench->platform().application().setWhileShown([this](const Alert&) {
        if (alerts().size() == 1) {
            _delegate->applicationShouldTerminate();
            _bench->platform().notifications().post(NSApplicationWillTerminateNotification,
                                                    nullptr);
        }
    });
    _delegate->changeSerialPort(nullptr);
    QCOMPARE(alerts().size(), 1);
    QCOMPARE(chosenPort(), QString(EngineBench::portName));
    QVERIFY(!_bench->port().isOpen());
}

void QuorvelDelegateTest::aLaunchThatComesAfterTheEndConnectsNothing() {
    _delegate->applicationShouldTerminate();
    _delegate->applicationDidFinishLaunching();
    QVERIFY(!_bench->port().isOpen());
    QVERIFY(alerts().isEmpty());
}

void QuorvelDelegateTest::theListFollowsThePorts() {
    launch();
    const PseudoTerminalPair line;
    const auto device = _bench->platform().devices().plug(u"ttyS0"_s, line.path());
    QCOMPARE(_delegate->serialPortNameArray(),
             (QStringList{u"None"_s, EngineBench::portName, u"ttyS0"_s}));
    _bench->platform().devices().unplug(device);
    QCOMPARE(_delegate->serialPortNameArray(), (QStringList{u"None"_s, EngineBench::portName}));
}

void QuorvelDelegateTest::unpluggingTheKeyersPortTellsSoOnce() {
    launch();
    const PseudoTerminalPair line;
    const auto twin = _bench->platform().devices().plug(EngineBench::portName, line.path());
    QString storedBefore;
    QObject::connect(&*_delegate, &QuorvelDelegate::willDisconnect, &*_delegate,
                     [&] { storedBefore = _bench->settings().stringForKey(u"None"_s); });
    QTest::ignoreMessage(QtInfoMsg, "-[QuorvelDelegate(Private) serialPortRemoved:]");
    _bench->platform().devices().unplug({_bench->device(), twin});
    QCOMPARE(alerts().size(), 1);
    QCOMPARE(alerts().first().messageText,
             u"The WinKeyer using serial port usbserial-WK1 has been unplugged."_s);
    QCOMPARE(alerts().first().informativeText,
             u"Plug it back in, or choose another serial port in General preferences."_s);
    QVERIFY(alerts().first().defaultButton.isNull());
    QVERIFY(alerts().first().alternateButton.isNull());
    QCOMPARE(chosenPort(), QString(EngineBench::portName));
    QCOMPARE(storedBefore, u"None"_s);
    QCOMPARE(_bench->settings().stringForKey(u"None"_s), u"None"_s);
    QVERIFY(!_bench->engine().isConnected());
    QCOMPARE(_delegate->serialPortNameArray(), QStringList{u"None"_s});
}

void QuorvelDelegateTest::theLinkIsDownWhileTheUnplugAlertIsUp() {
    launch();
    _bench->receive({0x80});
    _bench->type(u"CQ"_s);
    QVERIFY(!_bench->engine().speedString().isNull());
    bool wasUp = false;
    _bench->platform().application().setWhileShown([&](const Alert&) {
        wasUp = true;
        QVERIFY(!_bench->engine().isConnected());
        QVERIFY(_bench->engine().speedString().isNull());
        QVERIFY(_bench->engine().keyboardBuffer().isEmpty());
    });
    _bench->platform().devices().unplug(_bench->device());
    QVERIFY(wasUp);
}

void QuorvelDelegateTest::unplugAlertIsByNameAlone() {
    launch();
    QVERIFY(_bench->engine().disconnect(nullptr));
    _bench->platform().devices().unplug(_bench->device());
    QCOMPARE(alerts().size(), 1);
}

void QuorvelDelegateTest::unpluggingAnotherPortShowsNothing() {
    const PseudoTerminalPair line;
    const auto other = _bench->platform().devices().plug(u"usbserial-other"_s, line.path());
    launch();
    _bench->platform().devices().unplug(other);
    QVERIFY(alerts().isEmpty());
    QVERIFY(_bench->engine().isConnected());
    QVERIFY(_bench->settings().stringForKey(u"None"_s).isNull());
    QCOMPARE(_delegate->serialPortNameArray(), (QStringList{u"None"_s, EngineBench::portName}));
}

void QuorvelDelegateTest::unpluggingWithNoneChosenShowsNothing() {
    launch();
    _bench->settings().setObject(u"None"_s, WKPortName);
    _delegate->changeSerialPort(nullptr);
    _bench->platform().devices().unplug(_bench->device());
    QVERIFY(alerts().isEmpty());
}

void QuorvelDelegateTest::aPluggedPortIsOffered_data() {
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("Yes") << true;
    QTest::newRow("No") << false;
}

void QuorvelDelegateTest::aPluggedPortIsOffered() {
    QFETCH(bool, isAccepted);
    _bench->settings().setObject(u"None"_s, WKPortName);
    launch();
    _bench->platform().application().clear();
    _bench->platform().application().answerNext(isAccepted ? AlertAnswer::Default
                                                           : AlertAnswer::Alternate);
    const PseudoTerminalPair line;
    QTest::ignoreMessage(QtInfoMsg, "-[QuorvelDelegate(Private) serialPortAdded:]");
    _bench->platform().devices().plug(u"usbserial-2"_s, line.path());
    QCOMPARE(alerts().size(), 1);
    QCOMPARE(alerts().first().messageText, u"The serial port usbserial-2 has been plugged in."_s);
    QCOMPARE(alerts().first().informativeText,
             u"Try to use this port to communicate with a WinKeyer?"_s);
    QCOMPARE(alerts().first().defaultButton, u"Yes"_s);
    QCOMPARE(alerts().first().alternateButton, u"No"_s);
    QCOMPARE(chosenPort(), isAccepted ? u"usbserial-2"_s : u"None"_s);
    QCOMPARE(_bench->engine().isConnected(), isAccepted);
}

void QuorvelDelegateTest::aPluggedPortIsListedBeforeItIsOffered() {
    _bench->settings().setObject(u"None"_s, WKPortName);
    launch();
    QStringList listed;
    _bench->platform().application().setWhileShown(
        [&](const Alert&) { listed = _delegate->serialPortNameArray(); });
    const PseudoTerminalPair line;
    _bench->platform().devices().plug(u"usbserial-2"_s, line.path());
    QCOMPARE(listed, (QStringList{u"None"_s, EngineBench::portName, u"usbserial-2"_s}));
}

void QuorvelDelegateTest::everyPortOfOneMomentIsOffered() {
    _bench->settings().setObject(u"None"_s, WKPortName);
    launch();
    _bench->platform().application().clear();
    const PseudoTerminalPair first;
    const PseudoTerminalPair modem;
    const PseudoTerminalPair second;
    using Registry = FakeDeviceRegistry;
    _bench->platform().devices().plug({Registry::device(u"usbserial-a"_s, first.path()),
                                       Registry::device(u"usbmodem-b"_s, modem.path()),
                                       Registry::device(u"usbserial-c"_s, second.path())});
    QCOMPARE(alerts().size(), 2);
    QCOMPARE(chosenPort(), u"usbserial-c"_s);
    QVERIFY(ORSSerialPort::serialPortWithPath(second.path())->isOpen());
    QVERIFY(!ORSSerialPort::serialPortWithPath(first.path())->isOpen());
}

/// Of two that came at one moment, the second goes while the first is asked about.
void QuorvelDelegateTest::aPortThatHasGoneIsNotOffered() {
    _bench->settings().setObject(u"None"_s, WKPortName);
    launch();
    _bench->platform().application().clear();
    auto& devices = _bench->platform().devices();
    _bench->platform().application().setWhileShown([&](const Alert&) {
        devices.holdAnnouncements();
        devices.unplug(ORSSerialPort::deviceFromBSDPath(u"/dev/c"_s));
        devices.resumeAnnouncements();
    });
    _bench->platform().application().answerNext(AlertAnswer::Alternate);
    using Registry = FakeDeviceRegistry;
    devices.plug({Registry::device(u"usbserial-a"_s, u"/dev/a"_s),
                  Registry::device(u"usbserial-c"_s, u"/dev/c"_s)});
    QCOMPARE(alerts().size(), 1);
    QCOMPARE(alerts().first().messageText, u"The serial port usbserial-a has been plugged in."_s);
}

void QuorvelDelegateTest::yesToAPortThatHasGoneIsAnswered_data() {
    QTest::addColumn<bool>("isToldOf");
    QTest::newRow("the list knows") << true;
    QTest::newRow("nobody has told of it yet") << false;
}

/// A "Yes" was meant: that it does not work is said, rather than nothing. What is at the place of
/// the port by now is not opened.
void QuorvelDelegateTest::yesToAPortThatHasGoneIsAnswered() {
    QFETCH(const bool, isToldOf);
    _bench->settings().setObject(u"None"_s, WKPortName);
    launch();
    auto& devices = _bench->platform().devices();
    devices.unplug(_bench->device());
    _bench->platform().application().clear();
    bool isGone = false;
    _bench->platform().application().setWhileShown([&](const Alert&) {
        if (std::exchange(isGone, true)) {
            return;
        }
        const auto device = ORSSerialPort::deviceFromBSDPath(_bench->line().path());
        if (isToldOf) {
            devices.unplug(device);
        } else {
            devices.vanish(device);
        }
    });
    devices.plug(EngineBench::portName, _bench->line().path());
    QCOMPARE(alerts().size(), 2);
    QCOMPARE(alerts().constLast().messageText,
             u"The WinKeyer serial port usbserial-WK1 is not available."_s);
    QCOMPARE(chosenPort(), u"None"_s);
    QVERIFY(!_bench->engine().isConnected());
    QCOMPARE(_bench->written(), "");
}

void QuorvelDelegateTest::nothingIsOfferedWhileConnected() {
    launch();
    const PseudoTerminalPair line;
    _bench->platform().devices().plug(u"usbserial-2"_s, line.path());
    QVERIFY(alerts().isEmpty());
    QCOMPARE(chosenPort(), QString(EngineBench::portName));
    QCOMPARE(_delegate->serialPortNameArray().size(), 3);
}

void QuorvelDelegateTest::onlyUsbSerialPortsAreOffered_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("modem") << u"usbmodem-1"_s;
    QTest::newRow("Bluetooth") << u"Bluetooth-rfcomm0"_s;
    QTest::newRow("other letter case") << u"USBserial-1"_s;
    QTest::newRow("not at the beginning") << u"my-usbserial-1"_s;
}

void QuorvelDelegateTest::onlyUsbSerialPortsAreOffered() {
    QFETCH(QString, name);
    _bench->settings().setObject(u"None"_s, WKPortName);
    launch();
    _bench->platform().application().clear();
    const PseudoTerminalPair line;
    _bench->platform().devices().plug(name, line.path());
    QVERIFY(alerts().isEmpty());
    QCOMPARE(_delegate->serialPortNameArray().constLast(), name);
}

void QuorvelDelegateTest::theDelegateIsTheApplications() {
    QCOMPARE(_bench->platform().application().delegate(), &*_delegate);
    _delegate.reset();
    QVERIFY(_bench->platform().application().delegate() == nullptr);
}

static const RegisteredTest<QuorvelDelegateTest> registered;
#include "QuorvelDelegateTest.moc"
