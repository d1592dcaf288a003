#include "preferences/BoundSlider.h"

#include <algorithm>

using namespace Qt::StringLiterals;

BoundSlider::BoundSlider(QSlider& slider, const Setting& setting, QObject& controller)
    : BoundControl(slider, setting, controller), _slider(slider) {
    if (setting.range) {
        slider.setRange(static_cast<int>(setting.range->minimum),
                        static_cast<int>(setting.range->maximum));
    }
    if (buddyLabel() != nullptr) {
        _labelText = buddyLabel()->text();
    }
    connect(&slider, &QSlider::valueChanged, this, &BoundSlider::change);
    connect(&slider, &QSlider::sliderReleased, this, &BoundSlider::settle);
}

std::optional<Range> BoundSlider::range() const {
    return Range{static_cast<double>(_slider.minimum()), static_cast<double>(_slider.maximum())};
}

QString BoundSlider::unit() const {
    const auto unit = _slider.property("unit").toString();
    return unit.isEmpty() ? QString() : u' ' + unit;
}

bool BoundSlider::offersStored() const {
    return storedNumber() >= _slider.minimum() && storedNumber() <= _slider.maximum();
}

/// A slider has no place for words: its label tells of a value beyond its ends.
void BoundSlider::showStored() {
    _slider.setValue(
        static_cast<int>(std::clamp<double>(storedNumber(), _slider.minimum(), _slider.maximum())));
    if (buddyLabel() != nullptr) {
        buddyLabel()->setText(offersStored() ? _labelText
                                             : _labelText + u" ("_s + strangeText() + u')');
    }
}
