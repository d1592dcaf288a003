#pragma once

#include "virtualkeyer/core/Board.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace virtualkeyer {

/// What becomes of the host's bytes while the keyer is still starting.
class Startup {
  public:
    explicit Startup(Board& board) : _board(board) {}

    /// The keyer has started cold; it swallows bytes until `deafUntil`.
    void restart(Time deafUntil, Time now);

    /// Whether `byte` goes on to the keyer now; otherwise it is lost or kept for takeHeld().
    [[nodiscard]] bool admits(std::uint8_t byte, Time now);

    /// Keeps what comes before `until`.
    void hold(Time until) { _heldUntil = until; }

    /// Whether a byte that comes at `now` is lost.
    [[nodiscard]] bool isDeaf(Time now) const { return now < _deafUntil; }

    [[nodiscard]] std::optional<Time> due() const { return _heldUntil; }
    /// Ends the beep or the silence; the bytes that came during it.
    [[nodiscard]] std::vector<std::uint8_t> takeHeld(Time now);

  private:
    Board& _board;
    Time _deafUntil{0};
    bool _hasBeeped = false;
    std::optional<Time> _heldUntil;
    std::vector<std::uint8_t> _held;
};

} // namespace virtualkeyer
