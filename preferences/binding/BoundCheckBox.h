#pragma once

#include "preferences/binding/BoundControl.h"

#include <QCheckBox>

/// A setting that is on or off. A box that is neither stands for off, and acts as such.
class BoundCheckBox final : public BoundControl {
    Q_OBJECT
  public:
    BoundCheckBox(QCheckBox& box, const Setting& setting, QObject& controller);

  protected:
    void showStored() override;

  private:
    void takeState();
    [[nodiscard]] bool isStoredOn() const;
    [[nodiscard]] bool isOn() const { return _box.checkState() == Qt::Checked; }

    QCheckBox& _box;
};
