#include "preferences/binding/ResetButton.h"

#include "platform/SettingsStore.h"

using namespace Qt::StringLiterals;

ResetButton::ResetButton(QToolButton& button, BoundControl& control)
    : QObject(&button), _button(button), _control(&control) {
    const auto purpose = tr("Reset %1 to %2").arg(control.label(), control.defaultText());
    button.setAccessibleName(purpose);
    button.setToolTip(purpose);
    button.setFocusPolicy(Qt::StrongFocus);
    if (button.text().isEmpty() && button.icon().isNull()) {
        button.setText(u"↺"_s);
    }
    connect(&button, &QToolButton::clicked, this, &ResetButton::press);
    connect(&SettingsStore::standardUserDefaults(), &SettingsStore::changed, this,
            &ResetButton::showWhetherDefault);
    showWhetherDefault();
}

void ResetButton::press() {
    if (_control) {
        // The button is about to be disabled, and the focus would wander off to the next control.
        _control->takeFocus();
        _control->reset();
    }
}

void ResetButton::showWhetherDefault() {
    _button.setEnabled(_control && !_control->isDefault());
}
