#include "app/window/SpokenChanges.h"

#include "app/keyboard/KeyboardView.h"
#include "app/window/SpokenNotice.h"
#include "app/window/SwitchButton.h"
#include "keyer/ChosenSpeed.h"
#include "keyer/WinKeyerUsb.h"

#include <utility>

SpokenChanges::SpokenChanges(const WinKeyerUsb& engine, const KeyboardView& view, QWidget* window)
    : QObject(window), _engine(engine), _notice(new SpokenNotice(window)) {
    connect(&view, &KeyboardView::waitingCountChanged, this, &SpokenChanges::followText);
}

/// Where the focus is, a screen reader speaks of itself.
void SpokenChanges::follow(const SwitchButton& button) {
    connect(&button, &SwitchButton::toggled, this, [this, &button](bool isOn) {
        if (!button.hasFocus()) {
            _notice->say((isOn ? tr("%1: on") : tr("%1: off")).arg(button.accessibleName()));
        }
    });
}

void SpokenChanges::follow(const ChosenSpeed& speed, const QWidget& label) {
    connect(&speed, &ChosenSpeed::changed, this, [this, &label] {
        if (_engine.activity() != KeyerActivity::NotConnected) {
            _notice->say(label.accessibleDescription());
        }
    });
}

/// The engine has none any more while the paddle is in use; what is typed meanwhile is kept
/// elsewhere.
void SpokenChanges::followText() {
    const auto unsent = _engine.keyboardBuffer().size() - _engine.outputBufferIndex();
    const auto before = std::exchange(_unsent, unsent);
    if (before > 0 && unsent == 0 && _engine.activity() == KeyerActivity::BreakIn) {
        _notice->say(tr("Break-in: what waited was dropped"));
    }
}
