#pragma once

#include "virtualkeyer/core/Event.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>

namespace virtualkeyer {

/// A byte and the moment at which it is complete on the line.
struct PacedByte {
    std::uint8_t value;
    Time completeAt;
    bool operator==(const PacedByte&) const = default;
};

/// One direction of the serial line, which a pseudo-terminal does not pace.
///
/// A byte takes 11 bits (start, 8 data, 2 stop). It starts when it is handed over, or when the
/// byte before it is complete if that is later. Completion times are rounded up to the nanosecond
/// without adding up over a run of bytes, so no byte is ever early. It reads no clock.
class PacedLine {
  public:
    /// `baud` is positive.
    explicit PacedLine(int baud);

    /// Hands a byte to the line at `at`, which must not lie before an earlier call's time.
    void put(std::uint8_t byte, Time at);

    /// Bytes that start at or after `at` go at `baud`; the byte under way keeps its rate.
    void setBaud(int baud, Time at);

    /// What was handed over and is not taken is lost.
    void clear() { _waiting.clear(); }

    /// Takes the oldest byte if it is complete at `until`.
    [[nodiscard]] std::optional<PacedByte> take(Time until);

    /// When the oldest byte is complete; nothing while the line is idle.
    [[nodiscard]] std::optional<Time> nextCompletion() const;

    /// Bytes handed over and not yet taken.
    [[nodiscard]] std::size_t waiting() const { return _waiting.size(); }

  private:
    struct Waiting {
        std::uint8_t value;
        Time since;
    };

    [[nodiscard]] Time runTime(std::int64_t bytes) const;
    void startOldest();

    int _baud;                  // of the run below
    int _baudOfNext;            // of the next byte that starts
    Time _runStart{};           // the run is the bytes that follow each other without a gap
    std::int64_t _runBytes = 0; // complete bytes of the run
    std::deque<Waiting> _waiting;
};

} // namespace virtualkeyer
