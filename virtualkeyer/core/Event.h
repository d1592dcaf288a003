#pragma once

#include <chrono>
#include <cstdint>
#include <variant>

namespace virtualkeyer {

/// A point in the keyer's own time, counted from power-up.
using Time = std::chrono::nanoseconds;

/// A byte handed to the line towards the host; the line itself adds the 9.17 ms that it takes.
struct HostByte {
    std::uint8_t value;
    bool operator==(const HostByte&) const = default;
};

/// The transmitter's key line goes down or up. `output` is 1 or 2.
struct KeyLine {
    bool isDown;
    int output;
    bool operator==(const KeyLine&) const = default;
};

/// The push-to-talk line is raised or let go.
struct PttLine {
    bool isOn;
    bool operator==(const PttLine&) const = default;
};

/// The sidetone starts at `frequency` Hz, or stops (0).
struct Tone {
    int frequency;
    bool operator==(const Tone&) const = default;
};

/// The host asked for another line speed; it holds from the next byte on.
struct LineSpeed {
    int baud;
    bool operator==(const LineSpeed&) const = default;
};

/// Something the keyer did, and when.
struct Event {
    Time at;
    std::variant<HostByte, KeyLine, PttLine, Tone, LineSpeed> what;
    bool operator==(const Event&) const = default;
};

} // namespace virtualkeyer
