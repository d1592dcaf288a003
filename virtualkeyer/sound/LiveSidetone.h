#pragma once

#include "virtualkeyer/pty/KeyerListener.h"
#include "virtualkeyer/sidetone/LiveFeed.h"

#include <QThread>

#include <chrono>
#include <mutex>
#include <optional>

class QTimer;

namespace virtualkeyer {

/// Plays the sidetone on the desktop's sound device while it is keyed, from a thread of its own, so
/// that it stops neither for a window nor for the keyer. After some seconds of silence it gives the
/// device nothing more, and does nothing, until the next tone.
class LiveSidetone : public QThread, public KeyerListener {
    Q_OBJECT
  public:
    /// Silent until start(); who wants to know that there is no device has to listen before.
    LiveSidetone();
    /// Silent from then on.
    ~LiveSidetone() override;

    /// From 0, which is silent, to 1. Any thread.
    void setVolume(double volume);

    /// Edges of tones that are still to be played. Any thread.
    [[nodiscard]] std::size_t waiting();

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
    [[nodiscard]] bool mayRest();
    void setFeeder(QTimer* feeder);

    std::mutex _mutex;
    LiveFeed _feed;
    /// When the keyer began, by the clock.
    std::optional<Clock::time_point> _start;
    /// What feeds the device, on the thread; none while nothing is played.
    QTimer* _feeder = nullptr;
    bool _isResting = false;
    Clock::time_point _lastSound;
};

} // namespace virtualkeyer
