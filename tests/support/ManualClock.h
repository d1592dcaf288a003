#pragma once

#include "platform/Clock.h"

#include <QList>
#include <QPointer>

/// A clock that moves only when a test moves it.
class ManualClock final : public Clock {
  public:
    /// Lets time pass; timers fire as it passes them, in the order in which they are due, each
    /// with now() at its own moment. Timers set meanwhile fire too if they fall within the time.
    void advance(Duration duration);

    /// How long until each timer that is still to fire, in the order in which they are due.
    [[nodiscard]] QList<Duration> pendingTimers() const;

    /// The naps that the main thread took, in order.
    [[nodiscard]] const QList<Duration>& naps() const { return _naps; }

    /// Runs at the start of each nap, with its length: the world outside goes on meanwhile.
    void setWhileNapping(std::function<void(Duration)> action) {
        _whileNapping = std::move(action);
    }

    [[nodiscard]] Duration now() const override { return _now; }
    /// Time passes, but nothing fires before the next advance(): the event loop stands still.
    void sleep(Duration duration) override;
    std::shared_ptr<Timer> scheduleTimer(Duration interval, QObject* target,
                                         std::function<void()> action) override;

  private:
    struct Entry {
        Duration due;
        QPointer<QObject> target;
        std::shared_ptr<Timer> timer;

        [[nodiscard]] bool isAlive() const { return target && timer->isValid(); }
    };

    Duration _now{0};
    QList<Entry> _entries;
    QList<Duration> _naps;
    std::function<void(Duration)> _whileNapping;
};
