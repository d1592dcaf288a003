#pragma once

#include "preferences/BoundControl.h"

#include <QComboBox>

/// A text that is chosen from a list, or typed where the box is editable.
///
/// A setting with choices has exactly those for items; another one keeps the box's own, and what
/// is stored beside them is one more item. An item's data is stored in place of its text, where it
/// has any.
class BoundComboBox final : public BoundControl {
    Q_OBJECT
  public:
    BoundComboBox(QComboBox& box, const Setting& setting, QObject& controller);

  protected:
    void showStored() override;
    [[nodiscard]] bool offersStored() const override;

  private:
    void choose(int index);
    void chosen(int index);
    [[nodiscard]] QString textToStore(int index) const;
    [[nodiscard]] int indexOf(const QString& stored) const;
    [[nodiscard]] bool isExtra(int index) const;
    void removeExtraItem();
    void addExtraItem(const QString& stored);

    QComboBox& _box;
    QString _missingText;
};
