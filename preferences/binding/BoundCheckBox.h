#pragma once

#include "preferences/binding/BoundControl.h"

#include <QCheckBox>

/// A setting that is on or off.
class BoundCheckBox final : public BoundControl {
    Q_OBJECT
  public:
    BoundCheckBox(QCheckBox& box, const Setting& setting, QObject& controller);

  protected:
    void showStored() override;

  private:
    QCheckBox& _box;
};
