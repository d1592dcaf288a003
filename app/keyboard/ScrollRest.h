#pragma once

#include "platform/Clock.h"

#include <QObject>

#include <functional>
#include <memory>

/// Whether the operator has left a view alone for so long that it may scroll by itself.
class ScrollRest final : public QObject {
    Q_OBJECT
  public:
    /// How long after its last use the view is the operator's.
    static constexpr std::chrono::seconds length{5};

    explicit ScrollRest(QObject* parent) : QObject(parent) {}

    /// The operator types, clicks or scrolls just now.
    void noteUse();

    [[nodiscard]] bool isOver() const;

  Q_SIGNALS:
    /// The view has not been used for long enough now.
    void over();

  private:
    void waitForEnd();

    Clock::Duration _end{0};
    std::shared_ptr<Timer> _timer;
};
