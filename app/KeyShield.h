#pragma once

#include "platform/Clock.h"

#include <QObject>

class QWidget;

/// Keeps keys from a window that opened while the operator may be typing something else.
///
/// No key reaches the window before it has had the keyboard for a while and the keyboard has been
/// still, and what is typed meanwhile goes nowhere: a space that was meant for the text answers no
/// question. The mouse and assistive programs work the window at once, and keys that are the
/// application's wherever they are pressed, such as Escape, are still the application's.
class KeyShield final : public QObject {
    Q_OBJECT
  public:
    /// How long the keyboard has to be still.
    static constexpr std::chrono::seconds stillness{1};

    /// Shields `window`, which owns the shield.
    explicit KeyShield(QWidget& window);

  Q_SIGNALS:
    /// The window takes keys from now on.
    void lifted();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void beginAnew();
    void wait();
    void endWaiting();
    [[nodiscard]] bool isInWindow(const QObject* object) const;

    QWidget& _window;
    Clock::Duration _end{0};
    bool _isWaiting = false;
};
