#pragma once

#include "preferences/binding/BoundControl.h"

#include <QDoubleSpinBox>
#include <QSpinBox>

/// A number that is typed or stepped, in a QSpinBox or a QDoubleSpinBox.
///
/// A stored number beyond the range is shown as a text that stands one step below the range.
template <typename Box>
class BoundSpinBox final : public BoundControl {
  public:
    BoundSpinBox(Box& box, const Setting& setting, QObject& controller)
        : BoundControl(box, setting, controller),
          _box(box),
          _range(setting.range.value_or(
              Range{static_cast<double>(box.minimum()), static_cast<double>(box.maximum())})) {
        box.setRange(number(_range.minimum), number(_range.maximum));
        // The first digit of a number is no number that anybody wants to hear.
        box.setKeyboardTracking(false);
        connect(&box, &Box::valueChanged, this, [this](auto value) { change(value); });
        connect(&box, &Box::editingFinished, this, &BoundSpinBox::settle);
    }

  protected:
    void showStored() override {
        const bool isOffered = offersStored();
        _box.setSpecialValueText(isOffered ? QString() : strangeText());
        _box.setMinimum(number(_range.minimum) - (isOffered ? Number(0) : _box.singleStep()));
        _box.setValue(isOffered ? number(storedNumber()) : _box.minimum());
    }

    [[nodiscard]] bool offersStored() const override {
        return storedNumber() >= _range.minimum && storedNumber() <= _range.maximum;
    }

    void finishTyping() override { _box.interpretText(); }
    [[nodiscard]] std::optional<Range> range() const override { return _range; }
    [[nodiscard]] QString unit() const override { return _box.suffix(); }

  private:
    using Number = decltype(std::declval<Box>().value());

    [[nodiscard]] static Number number(double value) { return static_cast<Number>(value); }

    Box& _box;
    Range _range;
};
