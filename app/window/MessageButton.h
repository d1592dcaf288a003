#pragma once

#include <QPushButton>

/// A button for one stored message: its label, and in a second, smaller line what it sends. What is
/// too long for it is shown cut short, so that the operator's own words never widen the window; the
/// second line is left out where there is no room for it.
class MessageButton final : public QPushButton {
    Q_OBJECT
  public:
    using QPushButton::QPushButton;

    /// What the second line shows.
    void setPreview(const QString& preview);
    [[nodiscard]] QString preview() const { return _preview; }
    /// Shows that the message has been pressed and waits.
    void setHeld(bool isHeld);
    [[nodiscard]] bool isHeld() const { return _isHeld; }

    /// Has room for some words, whatever the text.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QFont smallFont() const;
    [[nodiscard]] QSize sizeFor(int characters, int height) const;
    void drawLine(QPainter& painter, QRect rect, const QString& text) const;

    QString _preview;
    bool _isHeld = false;
};
