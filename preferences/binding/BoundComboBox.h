#pragma once

#include "preferences/binding/BoundControl.h"

#include <QComboBox>

/// A text that is chosen from a list.
///
/// A choice from the opened list acts at once. Keys and the wheel on the closed one act when they
/// have settled; where every choice acts (`actsOnEveryChoice`), keys open the list instead.
///
/// A setting with choices has exactly those for items; another one keeps the box's own, and what
/// is stored beside them is one more item. An item's data is stored in place of its text, where it
/// has any.
class BoundComboBox final : public BoundControl {
    Q_OBJECT
  public:
    BoundComboBox(QComboBox& box, const Setting& setting, QObject& controller);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void showStored() override;
    [[nodiscard]] bool offersStored() const override;

  private:
    void choose(int index);
    void chosen(int index);
    [[nodiscard]] bool actsOnEveryChoice() const;
    [[nodiscard]] bool preventChoice(QEvent& event);
    [[nodiscard]] bool step(QEvent& event);
    [[nodiscard]] QString textToStore(int index) const;
    [[nodiscard]] int indexOf(const QString& stored) const;
    [[nodiscard]] bool isExtra(int index) const;
    void removeExtraItem();
    void addExtraItem(const QString& stored);

    QComboBox& _box;
    QString _missingText;
    /// Keys or the wheel are choosing on the closed list.
    bool _isStepping = false;
};
