#pragma once

#include "virtualkeyer/core/Event.h"

#include <optional>

namespace virtualkeyer {

class SerialKeyer;

/// Somebody at the keyer's own side: works its paddle, knob and buttons, and its plug. Called on
/// the keyer's thread.
class Operator {
  public:
    virtual ~Operator() = default;

    /// Becomes readable when there is something to do; -1 for none.
    [[nodiscard]] virtual int descriptor() const { return -1; }

    /// Does to `keyer` what is to be done by `now`, in order of time and at no time that it has
    /// passed already. Called whenever the loop has woken, whatever for; `isReadable` says whether
    /// the descriptor is.
    virtual void work(SerialKeyer& keyer, bool isReadable, Time now) = 0;

    /// When there is something to do without the descriptor; nothing while there is not.
    [[nodiscard]] virtual std::optional<Time> nextWish() const { return std::nullopt; }

    /// Whether the keyer is to end with what was done.
    [[nodiscard]] virtual bool hasEnded() const { return false; }
};

} // namespace virtualkeyer
