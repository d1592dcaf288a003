#pragma once

#include <cstdint>

/// What a byte from the keyer is. Echoes are whatever is nothing else: the characters that the
/// keyer has sent, and its answers.
enum class ReceivedByte { Error, SpeedPot, Status, Echo };

[[nodiscard]] constexpr ReceivedByte classify(std::uint8_t byte) {
    if (byte == 0xFF) {
        return ReceivedByte::Error;
    }
    switch (byte & 0xE0) {
    case 0x80:
        return ReceivedByte::SpeedPot;
    case 0xC0:
        return ReceivedByte::Status;
    default:
        return ReceivedByte::Echo;
    }
}

/// The bits of a status byte. With PushButton set, bits 0, 1, 2 and 4 are buttons 1 to 4.
namespace KeyerStatus {
inline constexpr std::uint8_t bufferNearlyFull = 0x01;
inline constexpr std::uint8_t breakIn = 0x02;
inline constexpr std::uint8_t busy = 0x04;
inline constexpr std::uint8_t pushButton = 0x08;
inline constexpr std::uint8_t anything = 0x1F;
} // namespace KeyerStatus
