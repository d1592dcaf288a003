#pragma once

#include "preferences/BoundControl.h"

#include <QSlider>

/// A whole number that is set by dragging.
class BoundSlider final : public BoundControl {
    Q_OBJECT
  public:
    BoundSlider(QSlider& slider, const Setting& setting, QObject& controller);

  protected:
    void showStored() override;
    [[nodiscard]] bool offersStored() const override;
    [[nodiscard]] std::optional<Range> range() const override;
    [[nodiscard]] QString unit() const override;

  private:
    QSlider& _slider;
    QString _labelText;
};
