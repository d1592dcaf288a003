#pragma once

#include "platform/Clock.h"

/// The machine's own clock, its timers on the main thread's event loop.
class SystemClock final : public Clock {
  public:
    [[nodiscard]] Duration now() const override;
    void sleep(Duration duration) override;
    std::shared_ptr<Timer> scheduleTimer(Duration interval, QObject* target,
                                         std::function<void()> action) override;
};
