#pragma once

#include "preferences/binding/BoundControl.h"
#include "preferences/binding/NumberBox.h"

#include <optional>

/// A number that is typed or stepped. A stored number that lies outside the range stands there as
/// it is until another one is chosen.
class BoundNumber final : public BoundControl {
    Q_OBJECT
  public:
    BoundNumber(NumberBox& box, const Setting& setting, QObject& controller);

    [[nodiscard]] QString trouble() const override;

  protected:
    void showStored() override;
    [[nodiscard]] bool offersStored() const override;
    void finishTyping() override;
    [[nodiscard]] std::optional<Range> range() const override { return _range; }
    [[nodiscard]] QString unit() const override { return _box.suffix(); }

  private:
    [[nodiscard]] bool isWhole() const;
    void store(double number);
    void follow(bool byTool);

    NumberBox& _box;
    Range _range;
    /// What stands there was typed, and has not been looked at.
    bool _isTyped = false;
};
