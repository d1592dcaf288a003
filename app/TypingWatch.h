#pragma once

#include "platform/Clock.h"

#include <QObject>

#include <optional>

class QWidget;

/// Shields every modal window that opens while the operator is typing, and has its title say so;
/// see KeyShield. A window that was asked for by a click, a menu or a key with Ctrl or Alt takes
/// keys at once.
class TypingWatch final : public QObject {
    Q_OBJECT
  public:
    explicit TypingWatch(QObject* parent = nullptr);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    static void shield(QWidget& window);
    [[nodiscard]] bool isTyping() const;

    std::optional<Clock::Duration> _lastKey;
};
