#include "app/window/ModeSwitches.h"

#include "app/window/EngineSwitch.h"
#include "keyer/WinKeyerUsb.h"

#include <QAbstractButton>

#include <algorithm>

ModeSwitches::ModeSwitches(WinKeyerUsb& engine, const Buttons& buttons, QObject* parent)
    : QObject(parent), _engine(engine), _hscwToolTip(buttons.hscw->toolTip()) {
    setUpPause(*buttons.pause);
    setUpHSCW(*buttons.hscw);
    setUpBeacon(*buttons.beacon);
}

void ModeSwitches::setUpPause(QAbstractButton& button) {
    new EngineSwitch(
        _engine, button, {&WinKeyerUsb::pauseState, &WinKeyerUsb::pauseStateChanged},
        [this](bool isOn) { _engine.setPauseState(isOn ? 1 : 0); }, this);
}

void ModeSwitches::setUpHSCW(QAbstractButton& button) {
    new EngineSwitch(
        _engine, button, {&WinKeyerUsb::hscwState, &WinKeyerUsb::hscwStateChanged},
        [this, &button](bool isOn) {
            if (isOn && _engine.activity() == KeyerActivity::BreakIn) {
                return; // the keyer would throw it away
            }
            _engine.setHscwState(isOn ? 1 : 0);
            _engine.changeHSCWMode(&button);
        },
        this);
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this,
                     [this, &button] { followKeyer(button); });
    QObject::connect(&_engine, &WinKeyerUsb::sendingProgressed, this, &ModeSwitches::followText);
    QObject::connect(&_engine, &WinKeyerUsb::messageSendingStopped, this,
                     &ModeSwitches::noteKnobsSpeed);
    QObject::connect(&_engine, &WinKeyerUsb::setSpeedEnded, this, &ModeSwitches::noteKnobsSpeed);
    followKeyer(button);
}

/// Tells the keyer nothing: it is at that speed already.
void ModeSwitches::noteKnobsSpeed() {
    _engine.setHscwState(0);
}

/// A break-in empties the keyer's buffer, and with it goes the speed that is set there. A keyer
/// that is connected again is at the speed of its pot.
void ModeSwitches::followKeyer(QAbstractButton& hscw) {
    const bool isConnected = _engine.activity() != KeyerActivity::NotConnected;
    if (!isConnected || _engine.activity() == KeyerActivity::BreakIn) {
        noteKnobsSpeed();
    }
    hscw.setEnabled(isConnected);
    hscw.setToolTip(isConnected ? _hscwToolTip
                                : tr("High-speed CW needs a keyer, and none is connected"));
}

void ModeSwitches::followText() {
    const auto end = _engine.outputBufferIndex();
    const auto begin = std::min(_textSeen, end);
    const auto handedOver = _engine.keyboardBuffer().mid(begin, end - begin);
    _textSeen = end;
    const bool isLinked = _engine.activity() != KeyerActivity::NotConnected;
    if (isLinked && handedOver.lastIndexOf(u'%') > handedOver.lastIndexOf(u'^')) {
        _engine.setHscwState(1);
    }
}

void ModeSwitches::setUpBeacon(QAbstractButton& button) {
    new EngineSwitch(
        _engine, button, {&WinKeyerUsb::beaconState, &WinKeyerUsb::beaconStateChanged},
        [this](bool isOn) { _engine.setBeaconState(isOn ? 1 : 0); }, this);
}
