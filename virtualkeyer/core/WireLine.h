#pragma once

#include "virtualkeyer/core/Event.h"
#include "virtualkeyer/core/Protocol.h"

#include <cstdint>
#include <vector>

namespace virtualkeyer {

/// One thing that was said on the line between host and keyer: a whole command, an answer with all
/// its bytes, an echo, a status.
struct WireLine {
    enum class Kind : std::uint8_t {
        Command,    ///< of the host
        Discarded,  ///< of the host: no keyer takes it, or not while it is closed
        Lost,       ///< of the host: the keyer was starting
        Unfinished, ///< of the host: the beginning of a command
        Restarted,  ///< nobody's: the keyer has forgotten its host
        Echo,
        Status,
        Buttons,
        Knob,
        Answer, ///< to `question`
    };

    Kind kind;
    /// When its last byte had come to the keyer, or was handed to the line by it.
    Time at;
    std::vector<std::uint8_t> bytes;
    AdminCommand question{};
    /// Of Knob: what its byte counts from, in words per minute.
    int knobMinimum = 0;

    [[nodiscard]] bool isFromHost() const { return kind < Kind::Restarted; }
    bool operator==(const WireLine&) const = default;
};

} // namespace virtualkeyer
