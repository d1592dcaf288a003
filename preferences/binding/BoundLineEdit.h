#pragma once

#include "preferences/binding/BoundControl.h"

#include <QLineEdit>

/// A text that is stored letter by letter, so that what shows it elsewhere follows at once.
class BoundLineEdit final : public BoundControl {
    Q_OBJECT
  public:
    BoundLineEdit(QLineEdit& field, const Setting& setting, QObject& controller);

  protected:
    void showStored() override;

  private:
    [[nodiscard]] QString shown(const QString& stored) const;

    QLineEdit& _field;
};
