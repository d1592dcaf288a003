#pragma once

#include "platform/Clock.h"

#include <QObject>

#include <memory>
#include <optional>

class WinKeyerUsb;

/// Counts for how long tune is on, and says when it has been on for as long as the operator allows.
/// The limit is read when tune is switched on. Main thread only.
class TuneTimer final : public QObject {
    Q_OBJECT
  public:
    /// `engine` must outlive the timer.
    TuneTimer(const WinKeyerUsb& engine, QObject* parent);

    /// Whole seconds for which tune has been on; 0 while it is off.
    [[nodiscard]] int seconds() const { return _seconds; }
    /// Whole seconds until the limit; nothing without one.
    [[nodiscard]] std::optional<int> secondsLeft() const;

  Q_SIGNALS:
    /// seconds() is another one now.
    void secondsChanged();
    /// Tune has been on for `limit` seconds.
    void limitReached(int limit);

  private:
    void followTune();
    void waitForNextSecond();
    void tick();

    const WinKeyerUsb& _engine;
    Clock::Duration _start{0};
    int _seconds = 0;
    int _limit = 0;
    std::shared_ptr<Timer> _nextSecond;
};
