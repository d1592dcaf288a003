#pragma once

#include "virtualkeyer/core/Keyer.h"
#include "virtualkeyer/pty/KeyerListener.h"
#include "virtualkeyer/pty/PacedLine.h"
#include "virtualkeyer/pty/TroubledLine.h"
#include "virtualkeyer/pty/Troubles.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace virtualkeyer {

/// A keyer behind its serial line: each byte in either direction takes its time on the line, which
/// may have its troubles.
///
/// Like the keyer it reads no clock. Times must not lie before an earlier call's. Not thread-safe.
class SerialKeyer {
  public:
    /// The bytes of the host that the line's transmitter holds, as a UART's queue does; what
    /// exceeds them waits in the terminal, and makes the host wait when that is full too.
    static constexpr std::size_t queueDepth = 16;

    /// The listeners must outlive this. What chance does to bytes is the same for the same seed.
    SerialKeyer(const Profile& profile, std::vector<KeyerListener*> listeners,
                const Troubles& troubles = {}, std::uint32_t seed = 1);

    /// Whether the line takes another byte of the host.
    [[nodiscard]] bool hasRoom() const {
        return !_troubles.isNotRead && _fromHost.waiting() < queueDepth;
    }

    /// The host hands a byte to the line at `at`; the keyer receives it when it is complete.
    void send(std::uint8_t byte, Time at);

    /// The host has opened the port at `at`.
    void portOpened(Time at);

    /// The paddle's contacts are closed or open from `at` on.
    void setPaddle(bool dit, bool dah, Time at);

    /// The speed pot stands at `wpm` from `at` on.
    void setPot(int wpm, Time at);

    /// The push-buttons held down from `at` on: bits 0, 1, 2 and 4.
    void setPushButtons(std::uint8_t mask, Time at);

    /// Somebody at the keyer has message `number` (1 to 6) of its memory keyed.
    void playMessage(int number, Time at);

    /// From `at` on the keyer is of another kind, as Keyer::setProfile() has it.
    void setProfile(const Profile& profile, Time at);

    /// From `at` on these are the line's troubles, and no others. A reset and a hang-up count from
    /// `at`, too, besides from each opening of the port.
    void setTroubles(const Troubles& troubles, Time at);

    /// The adapter, which gives the keyer its power, is pulled: what was on the line is lost, and
    /// the keyer does nothing until plugIn(). Paddle, knob and buttons stay as they are held.
    void pull(Time at);
    /// The keyer has power again, and starts as it did in the beginning, but for its memory.
    void plugIn(Time at);
    /// True from the beginning.
    [[nodiscard]] bool isPluggedIn() const { return _isPluggedIn; }
    /// Whether the host has lost its line since the last call, also if it is there again.
    [[nodiscard]] bool takeHangUp() { return std::exchange(_isHungUp, false); }

    /// The keyer itself, to be looked at.
    [[nodiscard]] const Keyer& keyer() const { return _keyer; }

    /// Lets time pass until `until`.
    void advance(Time until);

    /// The bytes that have completely arrived at the host since the last call.
    [[nodiscard]] std::vector<std::uint8_t> takeArrived();

    /// When advance() next has something to do.
    [[nodiscard]] std::optional<Time> nextEvent() const;

  private:
    [[nodiscard]] std::optional<Time> nextIncident() const;
    void runIncident(Time at);
    void hangUp(Time at);
    void collect(Time until);
    void plan(Time from);
    void handOn();
    void tellRestart(Time at);

    static constexpr int initialBaud = 1200;

    Keyer _keyer;
    std::vector<KeyerListener*> _listeners;
    PacedLine _fromHost{initialBaud};
    PacedLine _toHost{initialBaud};
    Troubles _troubles;
    TroubledLine _arrivingAtKeyer;
    TroubledLine _arrivingAtHost;
    std::optional<Time> _resetAt;
    std::optional<Time> _hangUpAt;
    bool _isHungUp = false;
    std::vector<std::uint8_t> _arrived;
    bool _isPluggedIn = true;
    bool _dit = false;
    bool _dah = false;
    std::uint8_t _pushButtons = 0;
};

} // namespace virtualkeyer
