#include "app/window/EngineSwitch.h"

#include "keyer/WinKeyerUsb.h"

#include <QAbstractButton>

#include <utility>

EngineSwitch::EngineSwitch(WinKeyerUsb& engine, QAbstractButton& button, const State& state,
                           std::function<void(bool)> turn, QObject* parent)
    : QObject(parent) {
    const auto isOn = [&engine, value = state.value] { return (engine.*value)() != 0; };
    const auto follow = [&button, isOn] { button.setChecked(isOn()); };
    QObject::connect(&engine, state.changed, this, follow);
    QObject::connect(&button, &QAbstractButton::toggled, this,
                     [isOn, follow, turn = std::move(turn)](bool isTurnedOn) {
                         if (isTurnedOn != isOn()) {
                             turn(isTurnedOn);
                             follow();
                         }
                     });
    follow();
}
