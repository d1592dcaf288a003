#include "preferences/binding/NumberBox.h"

#include "preferences/binding/TypedNumber.h"

#include <QLineEdit>
#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>
#include <utility>

NumberBox::NumberBox(QWidget* parent) : QDoubleSpinBox(parent) {
    // The first digit of a number is no number that anybody wants to hear.
    setKeyboardTracking(false);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { _isEdited = true; });
    connect(lineEdit(), &QLineEdit::textChanged, this, &NumberBox::followText);
}

void NumberBox::setScale(int scale) {
    _scale = scale;
    setSuffix(suffix()); // shows the value anew
}

void NumberBox::showNumber(double number) {
    _held.reset();
    if (!isOffered(number)) {
        _held = textFromValue(number);
    }
    QDoubleSpinBox::setValue(number);
}

void NumberBox::setValue(double number) {
    if (!isEnabled()) {
        return;
    }
    if (isOffered(number)) {
        choose(number);
    } else {
        lineEdit()->setText(prefix() + QDoubleSpinBox::textFromValue(number * _scale) + suffix());
    }
}

double NumberBox::shownNumber() const {
    const auto number = _held ? read(*_held).value : std::nullopt;
    return number ? *number / _scale : value();
}

bool NumberBox::isNumber() const {
    return read(typedText()).value.has_value();
}

bool NumberBox::isBetweenSteps() const {
    const auto number = _held ? std::nullopt : read(typedText()).value;
    return number && !qFuzzyIsNull(*number - valueFromText(text()) * _scale);
}

void NumberBox::stepBy(int steps) {
    if (_held) {
        choose(std::clamp(shownNumber(), minimum(), maximum()));
        selectAll();
    } else {
        QDoubleSpinBox::stepBy(steps);
    }
}

QAbstractSpinBox::StepEnabled NumberBox::stepEnabled() const {
    return _held ? StepUpEnabled | StepDownEnabled : QDoubleSpinBox::stepEnabled();
}

/// Says that a number was chosen also where the box had it all the time behind what stood there.
void NumberBox::choose(double number) {
    _held.reset();
    const auto before = value();
    QDoubleSpinBox::setValue(number);
    if (value() == before) {
        Q_EMIT valueChanged(before);
    }
}

QSize NumberBox::sizeHint() const {
    const QScopedValueRollback allOfTheRange(_held, std::optional<QString>());
    return QDoubleSpinBox::sizeHint();
}

QSize NumberBox::minimumSizeHint() const {
    const QScopedValueRollback allOfTheRange(_held, std::optional<QString>());
    return QDoubleSpinBox::minimumSizeHint();
}

QString NumberBox::textFromValue(double value) const {
    return _held ? *_held : QDoubleSpinBox::textFromValue(value * _scale);
}

double NumberBox::valueFromText(const QString& text) const {
    const auto power = std::pow(10.0, decimals());
    return std::round(read(bare(text)).value.value_or(value()) / _scale * power) / power;
}

QValidator::State NumberBox::validate(QString& text, int&) const {
    const auto number = read(bare(text));
    if (!number.isPossible) {
        return QValidator::Invalid;
    }
    return number.value && isInRange(*number.value) ? QValidator::Acceptable
                                                    : QValidator::Intermediate;
}

bool NumberBox::isInRange(double shown) const {
    return shown >= minimum() * _scale && shown <= maximum() * _scale;
}

bool NumberBox::isOffered(double number) const {
    return number >= minimum() && number <= maximum();
}

TypedNumber NumberBox::read(const QString& text) const {
    return TypedNumber::read(text, locale());
}

void NumberBox::followText(const QString& text) {
    const bool byTool = !std::exchange(_isEdited, false);
    const auto typed = bare(text);
    const auto number = read(typed);
    const bool isHeld = number.value ? !isInRange(*number.value) : !number.isPossible;
    _held = isHeld ? std::optional(typed) : std::nullopt;
    Q_EMIT this->typed(byTool);
}

/// What is typed between prefix and suffix.
QString NumberBox::bare(const QString& text) const {
    auto number = text;
    if (!prefix().isEmpty() && number.startsWith(prefix())) {
        number.remove(0, prefix().size());
    }
    if (!suffix().isEmpty() && number.endsWith(suffix())) {
        number.chop(suffix().size());
    }
    return number.trimmed();
}
