#include "app/window/ModeSwitches.h"

#include "keyer/WinKeyerUsb.h"

#include <QAbstractButton>

ModeSwitches::ModeSwitches(WinKeyerUsb& engine, const Buttons& buttons, QObject* parent)
    : QObject(parent), _engine(engine) {
    setUpPause(*buttons.pause);
    setUpHSCW(*buttons.hscw);
    setUpBeacon(*buttons.beacon);
}

void ModeSwitches::setUpPause(QAbstractButton& button) {
    const auto follow = [this, &button] { button.setChecked(_engine.pauseState() != 0); };
    QObject::connect(&_engine, &WinKeyerUsb::pauseStateChanged, this, follow);
    QObject::connect(&button, &QAbstractButton::toggled, this, [this](bool isOn) {
        if (isOn != (_engine.pauseState() != 0)) {
            _engine.setPauseState(isOn ? 1 : 0);
        }
    });
    follow();
}

void ModeSwitches::setUpHSCW(QAbstractButton& button) {
    const auto follow = [this, &button] { button.setChecked(_engine.hscwState() != 0); };
    QObject::connect(&_engine, &WinKeyerUsb::hscwStateChanged, this, follow);
    QObject::connect(&button, &QAbstractButton::toggled, this, [this, &button](bool isOn) {
        if (isOn != (_engine.hscwState() != 0)) {
            _engine.setHscwState(isOn ? 1 : 0);
            _engine.changeHSCWMode(&button);
        }
    });
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this,
                     [this, &button] { followLink(button); });
    follow();
    followLink(button);
}

/// A keyer that is connected again is at the speed of its pot.
void ModeSwitches::followLink(QAbstractButton& hscw) {
    const bool isConnected = _engine.activity() != KeyerActivity::NotConnected;
    if (!isConnected) {
        _engine.setHscwState(0);
    }
    hscw.setEnabled(isConnected);
    hscw.setToolTip(isConnected ? tr("Send at the high speed of the preferences (Ctrl+H)")
                                : tr("High-speed CW needs a keyer, and none is connected"));
}

void ModeSwitches::setUpBeacon(QAbstractButton& button) {
    const auto follow = [this, &button] { button.setChecked(_engine.beaconState() != 0); };
    QObject::connect(&_engine, &WinKeyerUsb::beaconStateChanged, this, follow);
    QObject::connect(&button, &QAbstractButton::toggled, this,
                     [this](bool isOn) { _engine.setBeaconState(isOn ? 1 : 0); });
    follow();
}
