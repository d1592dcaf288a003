#pragma once

#include "virtualkeyer/pty/KeyerListener.h"
#include "virtualkeyer/sidetone/LiveFeed.h"

#include <QThread>

#include <chrono>
#include <mutex>
#include <optional>

namespace virtualkeyer {

/// Plays the sidetone on the desktop's sound device while it is keyed, from a thread of its own, so
/// that it stops neither for a window nor for the keyer.
class LiveSidetone : public QThread, public KeyerListener {
    Q_OBJECT
  public:
    /// Silent until start(); who wants to know that there is no device has to listen before.
    LiveSidetone();
    /// Silent from then on.
    ~LiveSidetone() override;

    /// From 0, which is silent, to 1. Any thread.
    void setVolume(double volume);

    void keyerDid(const Event& event, const Registers& registers) override;
    void timePassed(Time now) override;

  Q_SIGNALS:
    /// There is no device, or it does not play: all is silent. Once; from the thread.
    void silent();

  protected:
    void run() override;

  private:
    using Clock = std::chrono::steady_clock;

    void noteTime(Time now);
    [[nodiscard]] std::vector<std::int16_t> next(std::size_t room, std::size_t stored);

    std::mutex _mutex;
    LiveFeed _feed;
    /// When the keyer began, by the clock.
    std::optional<Clock::time_point> _start;
};

} // namespace virtualkeyer
