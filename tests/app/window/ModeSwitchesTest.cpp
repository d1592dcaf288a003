#include "app/window/ModeSwitches.h"

#include "keyer/KeyerCommand.h"
#include "keyer/KeyerSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QPushButton>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

class ModeSwitchesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void pauseTellsTheKeyer();
    void aKeyerThatIsFullIsSeenToPause();
    void highSpeedTellsTheKeyer();
    void theEndOfHighSpeedInATextIsSeen();
    void aKeyerThatComesBackIsAtThePotsSpeed();
    void highSpeedNeedsAKeyer();
    void aStopEndsHighSpeed();
    void theKnobsSpeedEndsHighSpeed();
    void aBreakInEndsHighSpeed();
    void highSpeedDoesNotBeginDuringABreakIn();
    void highSpeedThatBeginsInATextIsSeen();
    void withoutAKeyerNoTextBeginsHighSpeed();
    void beaconIsTheEngines();
    void aStopEndsTheBeacon();
    void theSwitchesStartAsTheEngineIs();

  private:
    std::optional<EngineBench> _bench;
    QPushButton _pause;
    QPushButton _hscw;
    QPushButton _beacon;
    std::optional<ModeSwitches> _switches;
};

void ModeSwitchesTest::init() {
    for (auto* button : {&_pause, &_hscw, &_beacon}) {
        button->setCheckable(true);
        button->setChecked(false);
    }
    _bench.emplace();
    QVERIFY(_bench->connect());
    _switches.emplace(_bench->engine(),
                      ModeSwitches::Buttons{.pause = &_pause, .hscw = &_hscw, .beacon = &_beacon},
                      nullptr);
}

void ModeSwitchesTest::cleanup() {
    _switches.reset();
    _bench.reset();
}

void ModeSwitchesTest::pauseTellsTheKeyer() {
    _pause.click();
    QCOMPARE(_bench->engine().pauseState(), 1);
    QCOMPARE(_bench->written(), "06 01");
    _pause.click();
    QCOMPARE(_bench->engine().pauseState(), 0);
    QCOMPARE(_bench->written(), "06 00");
}

void ModeSwitchesTest::aKeyerThatIsFullIsSeenToPause() {
    _bench->receive({0xC1});
    QVERIFY(_pause.isChecked());
    _bench->receive({0xC0});
    QVERIFY(!_pause.isChecked());
    QCOMPARE(_bench->written(), "06 01 06 00");
}

void ModeSwitchesTest::highSpeedTellsTheKeyer() {
    _bench->settings().setObject(u"2000 lpm"_s, WKHSCWSpeed);
    _hscw.click();
    QCOMPARE(_bench->engine().hscwState(), 1);
    QCOMPARE(_bench->written(), "1d 14");
    _hscw.click();
    QCOMPARE(_bench->engine().hscwState(), 0);
    QCOMPARE(_bench->written(), "02 00");
}

void ModeSwitchesTest::theEndOfHighSpeedInATextIsSeen() {
    _hscw.click();
    static_cast<void>(_bench->written());
    _bench->type(u"^"_s);
    QCOMPARE(_bench->engine().hscwState(), 0);
    QVERIFY(!_hscw.isChecked());
    QCOMPARE(_bench->written(), "1e");
}

void ModeSwitchesTest::aKeyerThatComesBackIsAtThePotsSpeed() {
    _hscw.click();
    QVERIFY(_bench->engine().disconnect(nullptr));
    QCOMPARE(_bench->engine().hscwState(), 0);
    QVERIFY(!_hscw.isChecked());
    QVERIFY(_bench->connect());
    QCOMPARE(_bench->engine().hscwState(), 0);
}

void ModeSwitchesTest::highSpeedNeedsAKeyer() {
    const auto toolTip = _hscw.toolTip();
    QVERIFY(_hscw.isEnabled());
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(!_hscw.isEnabled());
    QVERIFY(_hscw.toolTip().contains(u"none is connected"));
    QVERIFY(_bench->connect());
    QVERIFY(_hscw.isEnabled());
    QCOMPARE(_hscw.toolTip(), toolTip);
}

/// It empties the keyer's buffer, which puts it back to the speed of its pot.
void ModeSwitchesTest::aStopEndsHighSpeed() {
    _hscw.click();
    static_cast<void>(_bench->written());
    _bench->engine().stopMessageSending(nullptr);
    QVERIFY(!_hscw.isChecked());
    QCOMPARE(_bench->engine().hscwState(), 0);
    QCOMPARE(_bench->written(), "0a");
    _hscw.click();
    QCOMPARE(_bench->written(), "1d 0a");
}

/// As a change of the knob's range in the preferences has it.
void ModeSwitchesTest::theKnobsSpeedEndsHighSpeed() {
    _hscw.click();
    _bench->engine().putToWinKeyer(KeyerCommand::setWpmSpeedFromPot());
    QVERIFY(!_hscw.isChecked());
}

void ModeSwitchesTest::aBreakInEndsHighSpeed() {
    _hscw.click();
    static_cast<void>(_bench->written());
    _bench->receive({0xC6});
    QVERIFY(!_hscw.isChecked());
    QCOMPARE(_bench->written(), "");
}

/// The keyer throws away what it would put in its buffer.
void ModeSwitchesTest::highSpeedDoesNotBeginDuringABreakIn() {
    _bench->receive({0xC6});
    _hscw.click();
    QVERIFY(!_hscw.isChecked());
    QCOMPARE(_bench->engine().hscwState(), 0);
    QCOMPARE(_bench->written(), "");
    _bench->receive({0xC0});
    QVERIFY(!_hscw.isChecked());
    _hscw.click();
    QVERIFY(_hscw.isChecked());
    QCOMPARE(_bench->written(), "1d 0a");
}

void ModeSwitchesTest::highSpeedThatBeginsInATextIsSeen() {
    _bench->type(u"e%e^"_s);
    QVERIFY(!_hscw.isChecked());
    _bench->receive({'E'});
    QVERIFY(_hscw.isChecked());
    QCOMPARE(_bench->written(), "45 1d 0a 45");
    _bench->receive({'E'});
    QVERIFY(!_hscw.isChecked());
    QCOMPARE(_bench->written(), "1e");
    // Both within one step.
    _bench->type(u"e%e^%^"_s);
    QVERIFY(!_hscw.isChecked());
}

void ModeSwitchesTest::withoutAKeyerNoTextBeginsHighSpeed() {
    QVERIFY(_bench->engine().disconnect(nullptr));
    _bench->type(u"%e"_s);
    QVERIFY(!_hscw.isChecked());
}

void ModeSwitchesTest::beaconIsTheEngines() {
    _beacon.click();
    QCOMPARE(_bench->engine().beaconState(), 1);
    _beacon.click();
    QCOMPARE(_bench->engine().beaconState(), 0);
    _bench->engine().setBeaconState(1);
    QVERIFY(_beacon.isChecked());
    QCOMPARE(_bench->written(), "");
}

void ModeSwitchesTest::aStopEndsTheBeacon() {
    _beacon.click();
    _bench->engine().stopMessageSending(nullptr);
    QVERIFY(!_beacon.isChecked());
}

void ModeSwitchesTest::theSwitchesStartAsTheEngineIs() {
    _switches.reset();
    _bench->engine().setPauseState(1);
    _bench->engine().setHscwState(1);
    _bench->engine().setBeaconState(1);
    _switches.emplace(_bench->engine(),
                      ModeSwitches::Buttons{.pause = &_pause, .hscw = &_hscw, .beacon = &_beacon},
                      nullptr);
    QVERIFY(_pause.isChecked());
    QVERIFY(_hscw.isChecked());
    QVERIFY(_beacon.isChecked());
}

static const RegisteredTest<ModeSwitchesTest> registered;
#include "ModeSwitchesTest.moc"
