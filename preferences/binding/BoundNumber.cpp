#include "preferences/binding/BoundNumber.h"

#include <utility>

using namespace Qt::StringLiterals;

BoundNumber::BoundNumber(NumberBox& box, const Setting& setting, QObject& controller)
    : BoundControl(box, setting, controller),
      _box(box),
      _range(setting.range.value_or(Range{box.minimum(), box.maximum()})) {
    if (isWhole()) {
        box.setDecimals(0);
    }
    box.setRange(_range.minimum, _range.maximum);
    connect(&box, &NumberBox::valueChanged, this, &BoundNumber::store);
    connect(&box, &NumberBox::editingFinished, this, &BoundNumber::settle);
    connect(&box, &NumberBox::typed, this, &BoundNumber::follow);
}

bool BoundNumber::isWhole() const {
    return std::holds_alternative<int>(setting().defaultValue);
}

void BoundNumber::store(double number) {
    change(isWhole() ? QVariant(qRound(number)) : QVariant(number));
}

void BoundNumber::showStored() {
    _isTyped = false;
    _box.showNumber(storedNumber());
}

bool BoundNumber::offersStored() const {
    return storedNumber() >= _range.minimum && storedNumber() <= _range.maximum;
}

void BoundNumber::follow(bool byTool) {
    if (!_box.isEnabled()) {
        show();
        return;
    }
    if (!_isTyped) {
        Q_EMIT aboutToChange(); // what was typed elsewhere came first
    }
    _isTyped = true;
    describe();
    if (byTool) {
        settleSoon();
    }
}

/// The box may have had the number all the time, behind a stored one that lies outside the range.
void BoundNumber::finishTyping() {
    if (!std::exchange(_isTyped, false)) {
        return;
    }
    _box.interpretText();
    if (!_box.isHeld()) {
        store(_box.value());
    }
    describe();
}

QString BoundNumber::trouble() const {
    const auto typed = _box.typedText();
    if (_box.isBetweenSteps()) {
        return tr("%1 will become %2.")
            .arg(typed + unit(), numberText(_box.valueFromText(_box.text())) + unit());
    }
    const bool isStored = _box.shownNumber() == storedNumber();
    if (!_box.isHeld() || (isStored && !offersStored())) {
        return {};
    }
    const auto inForce = numberText(storedNumber()) + unit();
    if (!_box.isNumber()) {
        return tr("“%1” is not a number. It stays at %2.").arg(typed, inForce);
    }
    return tr("%1 is out of range: %2 to %3. It stays at %4.")
        .arg(typed + unit(), numberText(_range.minimum), numberText(_range.maximum) + unit(),
             inForce);
}
