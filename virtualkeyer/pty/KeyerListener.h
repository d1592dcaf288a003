#pragma once

#include "virtualkeyer/core/Event.h"
#include "virtualkeyer/core/Memory.h"
#include "virtualkeyer/core/Registers.h"

#include <cstdint>
#include <optional>

namespace virtualkeyer {

/// Watches what the keyer does. Called on the keyer's thread, in order of time; what it throws
/// ends the keyer's loop.
class KeyerListener {
  public:
    virtual ~KeyerListener() = default;

    /// The keyer did something; `registers` are the ones in force.
    virtual void keyerDid(const Event& event, const Registers& registers) = 0;

    /// A byte of the host has come to the keyer's end of the line, and is lost there if `isLost`;
    /// what the keyer does about it comes afterwards.
    virtual void hostSent(std::uint8_t /*byte*/, bool /*isLost*/, Time /*at*/) {}

    /// The keyer has lost its power, or starts anew for another reason, and forgets its host.
    virtual void keyerRestarted(Time /*at*/) {}

    /// What the keyer holds now, whether that has changed or not: told at the start, after every
    /// byte from the host, and when time has passed.
    virtual void keyerHolds(const Registers& /*registers*/, const Memory& /*memory*/) {}

    /// Nothing more happens up to `now`.
    virtual void timePassed(Time /*now*/) {}

    /// When the listener next wants to hear timePassed(); nothing while it only waits for events.
    [[nodiscard]] virtual std::optional<Time> nextWish() const { return std::nullopt; }
};

} // namespace virtualkeyer
