#include "preferences/binding/ScaledSpinBox.h"

#include <algorithm>

void ScaledSpinBox::setScale(int scale) {
    _scale = scale;
    setSuffix(suffix()); // shows the value anew
}

QString ScaledSpinBox::textFromValue(int value) const {
    return QSpinBox::textFromValue(value * _scale);
}

int ScaledSpinBox::valueFromText(const QString& text) const {
    return locale().toInt(bare(text)) / _scale;
}

QValidator::State ScaledSpinBox::validate(QString& text, int&) const {
    const auto digits = bare(text);
    if (digits.isEmpty()) {
        return QValidator::Intermediate;
    }
    bool isNumber = false;
    const auto number = locale().toInt(digits, &isNumber);
    if (!isNumber || number < 0 || number > maximum() * _scale) {
        return QValidator::Invalid;
    }
    return number < minimum() * _scale || number % _scale != 0 ? QValidator::Intermediate
                                                               : QValidator::Acceptable;
}

void ScaledSpinBox::fixup(QString& text) const {
    bool isNumber = false;
    const auto number = locale().toInt(bare(text), &isNumber);
    if (isNumber) {
        const auto nearest = (number + _scale / 2) / _scale;
        text = prefix() + textFromValue(std::clamp(nearest, minimum(), maximum())) + suffix();
    }
}

/// What is typed between prefix and suffix.
QString ScaledSpinBox::bare(const QString& text) const {
    auto digits = text;
    if (!prefix().isEmpty() && digits.startsWith(prefix())) {
        digits.remove(0, prefix().size());
    }
    if (!suffix().isEmpty() && digits.endsWith(suffix())) {
        digits.chop(suffix().size());
    }
    return digits.trimmed();
}
