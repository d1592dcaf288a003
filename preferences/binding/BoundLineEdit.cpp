#include "preferences/binding/BoundLineEdit.h"

#include "formatters/MessageFormatter.h"

BoundLineEdit::BoundLineEdit(QLineEdit& field, const Setting& setting, QObject& controller)
    : BoundControl(field, setting, controller), _field(field) {
    // Also what an assistive tool puts there, which is no editing.
    connect(&field, &QLineEdit::textChanged, this, &BoundLineEdit::change);
    connect(&field, &QLineEdit::editingFinished, this, &BoundLineEdit::settle);
}

/// A message reads as it will be sent. Other texts stay as they are, so that the "your call" that
/// the program comes with reads as the request that it is.
QString BoundLineEdit::shown(const QString& stored) const {
    const auto* formatter = qobject_cast<const MessageFormatter*>(_field.validator());
    return formatter != nullptr ? formatter->stringForObjectValue(stored) : stored;
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
