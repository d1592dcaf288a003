#include "preferences/binding/BoundLineEdit.h"

#include <QValidator>

BoundLineEdit::BoundLineEdit(QLineEdit& field, const Setting& setting, QObject& controller)
    : BoundControl(field, setting, controller), _field(field) {
    // Also what an assistive tool puts there, which is no editing.
    connect(&field, &QLineEdit::textChanged, this, &BoundLineEdit::change);
    connect(&field, &QLineEdit::editingFinished, this, &BoundLineEdit::settle);
}

QString BoundLineEdit::shown(const QString& stored) const {
    auto text = stored;
    if (const auto* validator = _field.validator()) {
        validator->fixup(text);
    }
    return text;
}

void BoundLineEdit::showStored() {
    const auto text = shown(storedText());
    if (_field.text() == text) {
        return; // most often it is the field that stored it: the insertion point stays
    }
    // A validator is for what is typed: it would change a stored text that was never looked at.
    const auto* validator = _field.validator();
    _field.setValidator(nullptr);
    _field.setText(text);
    _field.setValidator(validator);
}
