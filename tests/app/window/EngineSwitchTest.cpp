#include "app/window/EngineSwitch.h"

#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QPushButton>
#include <QTest>

#include <optional>

class EngineSwitchTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itBeginsAsTheEngineIs();
    void theEngineIsBroughtToWhereTheButtonIsTurned();
    void theButtonFollowsTheEngineAndTurnsNothing();
    void aButtonThatTurnsNothingGoesBack();

  private:
    void make() {
        _switch.emplace(
            _bench->engine(), _button,
            EngineSwitch::State{&WinKeyerUsb::beaconState, &WinKeyerUsb::beaconStateChanged},
            [this](bool isOn) {
                _turns.append(isOn);
                _bench->engine().setBeaconState(isOn ? 1 : 0);
            },
            nullptr);
    }

    QPushButton _button;
    QList<bool> _turns;
    std::optional<EngineBench> _bench;
    std::optional<EngineSwitch> _switch;
};

void EngineSwitchTest::init() {
    _button.setCheckable(true);
    _button.setChecked(false);
    _turns.clear();
    _bench.emplace();
}

void EngineSwitchTest::cleanup() {
    _switch.reset();
    _bench.reset();
}

void EngineSwitchTest::itBeginsAsTheEngineIs() {
    _bench->engine().setBeaconState(1);
    make();
    QVERIFY(_button.isChecked());
    QVERIFY(_turns.isEmpty());
}

void EngineSwitchTest::theEngineIsBroughtToWhereTheButtonIsTurned() {
    make();
    QTest::mouseClick(&_button, Qt::LeftButton);
    QCOMPARE(_bench->engine().beaconState(), 1);
    _button.toggle(); // as a screen reader does it
    QCOMPARE(_bench->engine().beaconState(), 0);
    QCOMPARE(_turns, QList<bool>({true, false}));
}

void EngineSwitchTest::theButtonFollowsTheEngineAndTurnsNothing() {
    make();
    _bench->engine().setBeaconState(1);
    QVERIFY(_button.isChecked());
    _bench->engine().setBeaconState(0);
    QVERIFY(!_button.isChecked());
    QVERIFY(_turns.isEmpty());
}

void EngineSwitchTest::aButtonThatTurnsNothingGoesBack() {
    _switch.emplace(
        _bench->engine(), _button,
        EngineSwitch::State{&WinKeyerUsb::beaconState, &WinKeyerUsb::beaconStateChanged},
        [this](bool isOn) { _turns.append(isOn); }, nullptr);
    _button.click();
    QVERIFY(!_button.isChecked());
    QCOMPARE(_turns, QList<bool>{true});
}

static const RegisteredTest<EngineSwitchTest> registered;
#include "EngineSwitchTest.moc"
