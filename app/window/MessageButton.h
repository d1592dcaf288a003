#pragma once

#include <QPushButton>

/// A button for one stored message. A label that is too long for it is shown cut short, so that
/// the operator's own words never widen the window.
class MessageButton final : public QPushButton {
    Q_OBJECT
  public:
    using QPushButton::QPushButton;

    /// Shows that the message has been pressed and waits.
    void setHeld(bool isHeld);
    [[nodiscard]] bool isHeld() const { return _isHeld; }

    /// Has room for some words, whatever the text.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QSize sizeFor(int characters) const;

    bool _isHeld = false;
};
