#pragma once

#include "virtualkeyer/core/Keyer.h"
#include "virtualkeyer/pty/KeyerListener.h"
#include "virtualkeyer/pty/PacedLine.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace virtualkeyer {

/// A keyer behind its serial line: each byte in either direction takes its time on the line.
///
/// Like the keyer it reads no clock. Times must not lie before an earlier call's. Not thread-safe.
class SerialKeyer {
  public:
    /// The bytes of the host that the line's transmitter holds, as a UART's queue does; what
    /// exceeds them waits in the terminal, and makes the host wait when that is full too.
    static constexpr std::size_t queueDepth = 16;

    /// The listeners must outlive this.
    SerialKeyer(const Profile& profile, std::vector<KeyerListener*> listeners);

    /// Whether the line takes another byte of the host.
    [[nodiscard]] bool hasRoom() const { return _fromHost.waiting() < queueDepth; }

    /// The host hands a byte to the line at `at`; the keyer receives it when it is complete.
    void send(std::uint8_t byte, Time at);

    /// The host has opened the port at `at`.
    void portOpened(Time at);

    /// The paddle's contacts are closed or open from `at` on.
    void setPaddle(bool dit, bool dah, Time at);

    /// Lets time pass until `until`.
    void advance(Time until);

    /// The bytes that have completely arrived at the host since the last call.
    [[nodiscard]] std::vector<std::uint8_t> takeArrived();

    /// When advance() next has something to do.
    [[nodiscard]] std::optional<Time> nextEvent() const;

  private:
    void handOn();

    static constexpr int initialBaud = 1200;

    Keyer _keyer;
    std::vector<KeyerListener*> _listeners;
    PacedLine _fromHost{initialBaud};
    PacedLine _toHost{initialBaud};
    std::vector<std::uint8_t> _arrived;
};

} // namespace virtualkeyer
