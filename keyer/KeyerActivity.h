#pragma once

#include "keyer/ReceivedByte.h"

#include <optional>

/// What the keyer is doing, as far as it has told.
enum class KeyerActivity {
    NotConnected,
    /// Connected, and no byte has come from it yet.
    Silent,
    Idle,
    Sending,
    /// The operator is using the paddle.
    BreakIn,
    /// Told to wait until there is room in its buffer again.
    BufferFull,
    Paused
};

/// The activity of a connected keyer whose last status byte is `status`; nothing while only other
/// bytes have come.
[[nodiscard]] constexpr KeyerActivity activityOf(std::optional<std::uint8_t> status,
                                                 bool isPaused) {
    const auto has = [bits = status.value_or(0)](std::uint8_t bit) { return (bits & bit) != 0; };
    if (has(KeyerStatus::breakIn)) {
        return KeyerActivity::BreakIn;
    }
    if (has(KeyerStatus::bufferNearlyFull)) {
        return KeyerActivity::BufferFull;
    }
    if (isPaused) {
        return KeyerActivity::Paused;
    }
    return has(KeyerStatus::busy) ? KeyerActivity::Sending : KeyerActivity::Idle;
}
