#pragma once

#include <QObject>

#include <functional>

class QAbstractButton;
class WinKeyerUsb;

/// Keeps a checkable button in step with what the keyer engine has on or off. A screen reader
/// toggles a button without a click, so that it is the change of the button which counts, where the
/// engine differs. Main thread only.
class EngineSwitch final : public QObject {
    Q_OBJECT
  public:
    /// Something that the engine has on or off, which is 0, and its signal of another value.
    struct State {
        int (WinKeyerUsb::*value)() const;
        void (WinKeyerUsb::*changed)();
    };

    /// `turn` brings the engine to where the operator has turned the button, which goes back where
    /// it does not. The button and `engine` must outlive the switch.
    EngineSwitch(WinKeyerUsb& engine, QAbstractButton& button, const State& state,
                 std::function<void(bool)> turn, QObject* parent);
};
