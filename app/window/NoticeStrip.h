#pragma once

#include "app/window/Strip.h"

class SpokenNotice;

/// A strip across the window that says what has happened while nobody may have looked. It stays
/// until the operator closes it; what is said next takes its place. It may offer to do something
/// about it. A screen reader speaks it.
class NoticeStrip final : public Strip {
    Q_OBJECT
  public:
    explicit NoticeStrip(QWidget* parent = nullptr);

    using Strip::addButton;
    /// Has a button of that label beside whatever is said. To be called once.
    void setOffer(const QString& offer);

    void say(const QString& text);
    void putAway();

  Q_SIGNALS:
    /// The button of the offer was pressed, and the strip has gone.
    void offerTaken();
    /// It was closed by the keyboard, which needs another place now.
    void hasGivenUpFocus();

  private:
    SpokenNotice* _spoken;
};
