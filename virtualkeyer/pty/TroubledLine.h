#pragma once

#include "virtualkeyer/pty/Chance.h"
#include "virtualkeyer/pty/PacedLine.h"
#include "virtualkeyer/pty/Troubles.h"

#include <cstdint>
#include <deque>
#include <optional>

namespace virtualkeyer {

/// One direction of a serial line, with what goes wrong on it behind the time that each byte takes.
/// Without troubles it hands over every byte when it is complete. It reads no clock.
class TroubledLine {
  public:
    enum class Direction { ToKeyer, ToHost };

    /// The same seed has the same happen to the same bytes.
    TroubledLine(Direction direction, std::uint32_t seed) : _direction(direction), _chance(seed) {}

    /// A byte is complete, which none after it is earlier.
    void put(const PacedByte& byte, const Troubles& troubles);
    /// Takes the oldest byte if it has arrived by `until`; `completeAt` is when it did.
    [[nodiscard]] std::optional<PacedByte> take(Time until);
    /// When the oldest byte arrives; nothing while none is under way.
    [[nodiscard]] std::optional<Time> nextArrival() const;
    /// What is under way is lost.
    void clear() {
        _underWay.clear();
        _last = Time{0};
    }

  private:
    [[nodiscard]] bool isLost(std::uint8_t byte, const Troubles& troubles);
    [[nodiscard]] Time arrivalOf(const PacedByte& byte, const Troubles& troubles);

    Direction _direction;
    Chance _chance;
    std::deque<PacedByte> _underWay;
    Time _last{0};
};

} // namespace virtualkeyer
