#include "keyer/KeyerSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A two-state control.
class Switch : public QObject {
  public:
    explicit Switch(int state) { setProperty("state", state); }
};

} // namespace

class WinKeyerUsbModesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _bench.reset(); }

    void tuneFollowsItsControl_data();
    void tuneFollowsItsControl();
    void highSpeedFollowsItsControl_data();
    void highSpeedFollowsItsControl();
    void pauseIsToldToTheKeyer();
    void pauseIsAnnouncedWhenItChanges();
    void beaconRepeatsAfterEachIdleReport();
    void beaconWaitsItsIntervalAsItStandsAtTheIdleReport();
    void aBusyReportStopsTheBeacon();
    void aBusyReportWithTheBeaconOffStopsNothing();
    void ofTwoIdleReportsOnlyTheLaterTimerCanBeStopped();
    void anIdleReportWithTheBeaconOffStartsNoTimer();
    void theBeaconIsOffAfterAStop();
    void aBeaconWithoutAMessageSendsNothing();
    void theBeaconDoesNotSubstituteAgain();

  private:
    std::optional<EngineBench> _bench;
};

void WinKeyerUsbModesTest::init() {
    _bench.emplace();
    QVERIFY(_bench->connect());
}

void WinKeyerUsbModesTest::tuneFollowsItsControl_data() {
    QTest::addColumn<int>("state");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("on") << 1 << QByteArray("0b 01");
    QTest::newRow("off") << 0 << QByteArray("0b 00");
    QTest::newRow("mixed") << -1 << QByteArray("0b 00");
}

void WinKeyerUsbModesTest::tuneFollowsItsControl() {
    QFETCH(int, state);
    QFETCH(QByteArray, written);
    const Switch control(state);
    _bench->engine().tune(&control);
    QCOMPARE(_bench->written(), written);
    QCOMPARE(_bench->engine().tuneState(), 0);
}

void WinKeyerUsbModesTest::highSpeedFollowsItsControl_data() {
    QTest::addColumn<int>("state");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("on") << 1 << QByteArray("1d 14");
    QTest::newRow("off") << 0 << QByteArray("02 00");
    QTest::newRow("mixed") << -1 << QByteArray("02 00");
}

void WinKeyerUsbModesTest::highSpeedFollowsItsControl() {
    QFETCH(int, state);
    QFETCH(QByteArray, written);
    _bench->settings().setObject(u"2000 lpm"_s, WKHSCWSpeed);
    if (state == 1) {
        QTest::ignoreMessage(QtInfoMsg, "HSCW Speed = 20");
    }
    const Switch control(state);
    _bench->engine().changeHSCWMode(&control);
    QCOMPARE(_bench->written(), written);
    QCOMPARE(_bench->engine().hscwState(), 0);
}

void WinKeyerUsbModesTest::pauseIsToldToTheKeyer() {
    auto& engine = _bench->engine();
    engine.setPauseState(5);
    QCOMPARE(engine.pauseState(), 5);
    QCOMPARE(_bench->written(), "06 01");
    _bench->type(u"E"_s);
    engine.setPauseState(0);
    QCOMPARE(_bench->written(), "06 00 45");
}

void WinKeyerUsbModesTest::pauseIsAnnouncedWhenItChanges() {
    int changes = 0;
    auto& engine = _bench->engine();
    QObject::connect(&engine, &WinKeyerUsb::pauseStateChanged, this, [&changes] { ++changes; });
    engine.setPauseState(1);
    engine.setPauseState(1);
    engine.setPauseState(0);
    QCOMPARE(changes, 2);
    QCOMPARE(_bench->written(), "06 01 06 01 06 00");
}

void WinKeyerUsbModesTest::beaconRepeatsAfterEachIdleReport() {
    auto& engine = _bench->engine();
    _bench->settings().setObject(10, u"BeaconInterval"_s);
    engine.setBeaconState(1);
    engine.appendMessage(u"e"_s);
    for (int round = 0; round < 3; ++round) {
        _bench->receive({0xC4});
        _bench->receive({'E'});
        static_cast<void>(_bench->written());
        _bench->receive({0xC0});
        _bench->clock().advance(10s - 1ns);
        QCOMPARE(_bench->written(), "");
        _bench->clock().advance(1ns);
        QCOMPARE(_bench->written(), "20");
        _bench->receive({' '});
        QCOMPARE(_bench->written(), "45");
    }
    QCOMPARE(engine.keyboardBuffer(), u"E E E E"_s);
}

void WinKeyerUsbModesTest::beaconWaitsItsIntervalAsItStandsAtTheIdleReport() {
    _bench->engine().setBeaconState(1);
    _bench->settings().setObject(u"2.5"_s, u"BeaconInterval"_s);
    _bench->receive({0xC0});
    _bench->settings().setObject(-3.0, u"BeaconInterval"_s);
    _bench->receive({0xC0});
    QCOMPARE(_bench->clock().pendingTimers(), (QList<Clock::Duration>{0s, 2500ms}));
}

void WinKeyerUsbModesTest::aBusyReportStopsTheBeacon() {
    _bench->engine().setBeaconState(1);
    _bench->engine().appendMessage(u"E"_s);
    _bench->receive({'E'});
    _bench->receive({0xC0});
    QCOMPARE(_bench->clock().pendingTimers().size(), 1);
    _bench->receive({0xC4});
    QVERIFY(_bench->clock().pendingTimers().isEmpty());
}

void WinKeyerUsbModesTest::aBusyReportWithTheBeaconOffStopsNothing() {
    _bench->engine().setBeaconState(1);
    _bench->receive({0xC0});
    _bench->engine().setBeaconState(0);
    _bench->receive({0xC4});
    QCOMPARE(_bench->clock().pendingTimers().size(), 1);
}

void WinKeyerUsbModesTest::ofTwoIdleReportsOnlyTheLaterTimerCanBeStopped() {
    _bench->settings().setObject(10, u"BeaconInterval"_s);
    _bench->engine().setBeaconState(1);
    _bench->engine().appendMessage(u"E"_s);
    _bench->receive({0xC0});
    _bench->clock().advance(1s);
    _bench->receive({0xC0});
    _bench->receive({0xC4});
    QCOMPARE(_bench->clock().pendingTimers(), (QList<Clock::Duration>{9s}));
    static_cast<void>(_bench->written());
    _bench->clock().advance(9s);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"E E"_s);
}

void WinKeyerUsbModesTest::anIdleReportWithTheBeaconOffStartsNoTimer() {
    _bench->receive({0xC0});
    QVERIFY(_bench->clock().pendingTimers().isEmpty());
}

void WinKeyerUsbModesTest::theBeaconIsOffAfterAStop() {
    _bench->engine().setBeaconState(1);
    _bench->engine().appendMessage(u"E"_s);
    _bench->receive({0xC0});
    _bench->engine().stopMessageSending(nullptr);
    _bench->clock().advance(1h);
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    QVERIFY(_bench->clock().pendingTimers().isEmpty());
}

void WinKeyerUsbModesTest::aBeaconWithoutAMessageSendsNothing() {
    _bench->engine().appendMessage(u"E"_s);
    _bench->engine().setBeaconState(1);
    _bench->receive({0xC0});
    static_cast<void>(_bench->written());
    _bench->clock().advance(1h);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"E"_s);
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbModesTest::theBeaconDoesNotSubstituteAgain() {
    auto& engine = _bench->engine();
    engine.setBeaconState(1);
    engine.appendMessage(engine.substituteTokens(u"#"_s));
    engine.incrementSerialNumber(nullptr);
    _bench->receive({0xC0});
    _bench->clock().advance(5s);
    QCOMPARE(engine.keyboardBuffer(), u"TT1 TT1"_s);
}

static const RegisteredTest<WinKeyerUsbModesTest> registered;
#include "WinKeyerUsbModesTest.moc"
