#pragma once

#include "platform/Clock.h"

#include <QProgressBar>

#include <memory>

/// A progress bar for something that nobody reports on but whose length is known: it fills as time
/// passes. Main thread only.
class TimedProgressBar final : public QProgressBar {
    Q_OBJECT
  public:
    explicit TimedProgressBar(QWidget* parent = nullptr);

    /// Fills within `duration`, which is above 0, beginning anew if it was running.
    void start(Clock::Duration duration);
    /// Ends it before its time; finished() is not emitted.
    void stop();
    [[nodiscard]] bool isRunning() const { return _timer != nullptr; }

  Q_SIGNALS:
    /// The time is over.
    void finished();

  private:
    void scheduleStep();
    void step();

    Clock::Duration _begin{0};
    Clock::Duration _duration{0};
    std::shared_ptr<Timer> _timer;
};
