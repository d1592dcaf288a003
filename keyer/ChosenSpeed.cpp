#include "keyer/ChosenSpeed.h"

#include "keyer/KeyerCommand.h"
#include "keyer/WinKeyerUsb.h"

#include <algorithm>

ChosenSpeed::ChosenSpeed(WinKeyerUsb& engine, QObject* parent) : QObject(parent), _engine(engine) {
    QObject::connect(&_engine, &WinKeyerUsb::setSpeedEnded, this, &ChosenSpeed::tellAgain);
    QObject::connect(&_engine, &WinKeyerUsb::greeted, this, [this] { set({}); });
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this,
                     &ChosenSpeed::forgetWithoutKeyer);
    // What ends high-speed CW may be on its way yet, and the speed goes behind it.
    QObject::connect(&_engine, &WinKeyerUsb::hscwStateChanged, this, &ChosenSpeed::tellWhatIsDue,
                     Qt::QueuedConnection);
}

std::optional<int> ChosenSpeed::inForce() const {
    const auto knobs = _engine.speedOfPot();
    return _wpm || !knobs ? _wpm : std::optional(static_cast<int>(*knobs));
}

void ChosenSpeed::choose(int wpm) {
    if (isLinked()) {
        set(std::clamp(wpm, slowest, fastest));
        tell();
    }
}

void ChosenSpeed::change(int difference) {
    if (const auto now = inForce()) {
        choose(*now + difference);
    }
}

void ChosenSpeed::backToKnob() {
    if (_wpm) {
        set({});
        tell();
    }
}

void ChosenSpeed::set(std::optional<int> wpm) {
    _isDue = false;
    if (_wpm != wpm) {
        _wpm = wpm;
        Q_EMIT changed();
    }
}

/// A speed ends high-speed CW in the keyer, which the operator has not asked for.
void ChosenSpeed::tell() {
    _isDue = _engine.hscwState() != 0;
    if (!_isDue) {
        _engine.putToWinKeyer(_wpm ? KeyerCommand::setWpmSpeed(static_cast<std::uint8_t>(*_wpm))
                                   : KeyerCommand::setWpmSpeedFromPot());
    }
}

void ChosenSpeed::tellWhatIsDue() {
    if (_isDue && isLinked()) {
        tell();
    }
}

void ChosenSpeed::tellAgain() {
    if (_wpm && isLinked()) {
        tell();
    }
}

void ChosenSpeed::forgetWithoutKeyer() {
    if (!isLinked()) {
        set({});
    }
}

/// Not so while the keyer is being greeted, either.
bool ChosenSpeed::isLinked() const {
    return _engine.activity() != KeyerActivity::NotConnected;
}
