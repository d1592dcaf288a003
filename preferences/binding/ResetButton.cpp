#include "preferences/binding/ResetButton.h"

#include "platform/SettingsStore.h"

using namespace Qt::StringLiterals;

ResetButton::ResetButton(QToolButton& button, BoundControl& control)
    : QObject(&button), _button(button), _control(&control) {
    const auto purpose = control.resetText();
    button.setAccessibleName(purpose);
    button.setToolTip(purpose);
    button.setFocusPolicy(Qt::StrongFocus);
    if (button.text().isEmpty() && button.icon().isNull()) {
        button.setText(u"↺"_s);
    }
    connect(&button, &QToolButton::clicked, this, &ResetButton::press);
    connect(&SettingsStore::standardUserDefaults(), &SettingsStore::changed, this,
            &ResetButton::showAvailability);
    connect(&control, &BoundControl::availabilityChanged, this, &ResetButton::showAvailability);
    showAvailability();
}

void ResetButton::press() {
    if (_control) {
        // The button is about to be disabled, and the focus would wander off to the next control.
        _control->takeFocus();
        _control->reset();
    }
}

void ResetButton::showAvailability() {
    _button.setEnabled(_control && _control->isAvailable() && !_control->isDefault());
}
