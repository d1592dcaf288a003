#pragma once

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>

/// A one-shot timer. The clock keeps it until it fires; whoever lets go of it does not stop it.
class Timer {
  public:
    explicit Timer(std::function<void()> action) : _action(std::move(action)) {}

    /// Stops the timer: its action never runs. Nothing happens once it has fired.
    void invalidate();
    [[nodiscard]] bool isValid() const { return _action != nullptr; }

    /// Runs the action, once, unless the timer was invalidated. For clocks.
    void fire();

  private:
    std::function<void()> _action;
};

/// Time as the main thread sees it: what waits for it asks here, so that tests can move it.
/// Main thread only.
class Clock {
  public:
    using Duration = std::chrono::nanoseconds;

    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    /// Time since an arbitrary start; it never runs backwards.
    [[nodiscard]] virtual Duration now() const = 0;

    /// Blocks the main thread, its event loop included.
    virtual void sleep(Duration duration) = 0;

    /// Has `action` run on the main loop after `interval` (at once if that is not positive),
    /// unless the timer is invalidated or `target` destroyed before.
    virtual std::shared_ptr<Timer> scheduleTimer(Duration interval, QObject* target,
                                                 std::function<void()> action) = 0;
};
