#pragma once

#include "keyer/KeyerEncoding.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>
#include <span>

/// The keyer's own 256-byte memory: its settings for work without a computer, and six messages.
namespace KeyerMemory {

using Image = std::array<std::uint8_t, 256>;

inline constexpr std::size_t messageCount = 6;

/// Where in the image things are.
namespace Offset {
inline constexpr std::size_t signature = 0x00;
inline constexpr std::size_t modeRegister = 0x01;
inline constexpr std::size_t sidetone = 0x03;
inline constexpr std::size_t weighting = 0x04;
inline constexpr std::size_t pttLeadTime = 0x05;
inline constexpr std::size_t pttTailTime = 0x06;
inline constexpr std::size_t speedPotMinimum = 0x07;
inline constexpr std::size_t speedPotRange = 0x08;
inline constexpr std::size_t firstExtension = 0x09;
inline constexpr std::size_t keyingCompensation = 0x0A;
inline constexpr std::size_t farnsworthSpeed = 0x0B;
inline constexpr std::size_t paddleSwitchpoint = 0x0C;
inline constexpr std::size_t ditDahRatio = 0x0D;
inline constexpr std::size_t pinConfiguration = 0x0E;
inline constexpr std::size_t standaloneFlags = 0x0F;
inline constexpr std::size_t commandSpeed = 0x10;
inline constexpr std::size_t freePointer = 0x11;
inline constexpr std::size_t messageStarts = 0x12;
inline constexpr std::size_t messages = 0x18;
} // namespace Offset

static_assert(Offset::messageStarts + messageCount == Offset::messages);

inline constexpr std::uint8_t signatureByte = 0xA5;
inline constexpr std::uint8_t emptySlot = 0x10;
inline constexpr std::uint8_t lastCharacterBit = 0x80;
/// How many bytes the messages share.
inline constexpr int messageAreaSize = 0x100 - static_cast<int>(Offset::messages);

/// The image of these settings with no message in it.
template <SettingsSource Source>
[[nodiscard]] constexpr Image imageOf(const Source& settings) {
    using namespace KeyerEncoding;
    Image image{};
    image[Offset::signature] = signatureByte;
    // Nobody listens to echoes while the keyer works alone.
    image[Offset::modeRegister] =
        lowByte(KeyerEncoding::modeRegister(settings) & ~(paddleEchoBit | serialEchoBit));
    image[Offset::sidetone] = sidetone(settings);
    image[Offset::weighting] = weighting(settings);
    image[Offset::pttLeadTime] = pttLeadTime(settings);
    image[Offset::pttTailTime] = pttTailTime(settings);
    image[Offset::speedPotMinimum] = speedPotMinimum(settings);
    image[Offset::speedPotRange] = speedPotRange(settings);
    image[Offset::firstExtension] = firstExtension(settings);
    image[Offset::keyingCompensation] = keyingCompensation(settings);
    image[Offset::farnsworthSpeed] = farnsworthSpeed(settings);
    image[Offset::paddleSwitchpoint] = paddleSwitchpoint(settings);
    image[Offset::ditDahRatio] = ditDahRatio(settings);
    image[Offset::pinConfiguration] = pinConfiguration(settings);
    image[Offset::standaloneFlags] =
        lowByte(bit(settings.flag(WKStandaloneEnableMessageBreak), 0x04) |
                bit(settings.flag(WKStandaloneCutSerialNumbers), 0x08));
    image[Offset::commandSpeed] = lowByte(settings.integer(WKStandaloneCommandSpeed));
    image[Offset::freePointer] = Offset::messages;
    for (std::size_t message = 0; message < messageCount; ++message) {
        image[Offset::messageStarts + message] = emptySlot;
    }
    return image;
}

/// What becomes of one message in the memory.
struct Placement {
    /// The text as it is stored, in upper case; a byte a character.
    QString text;
    /// Where it begins; nothing when it is empty or does not fit.
    std::optional<std::uint8_t> start = {};
    /// The first character that has no code, if there is one: nothing can be saved with it.
    std::optional<QChar> rejected = {};
    /// The first character that takes a byte and is sent as nothing.
    std::optional<QChar> silent = {};
    /// The first character whose code is an end mark too: the keyer sends nothing behind it.
    std::optional<QChar> ending = {};
    /// How many bytes it is too long for the room that the messages before it leave; 0 when it
    /// fits.
    int excess = 0;

    [[nodiscard]] qsizetype length() const { return text.size(); }
    [[nodiscard]] bool isLeftOut() const { return excess > 0; }
    /// What it takes of the memory.
    [[nodiscard]] int bytes() const { return start ? static_cast<int>(length()) : 0; }
};

/// How six messages share the memory.
struct Layout {
    std::array<Placement, messageCount> messages;
    std::uint8_t freePointer = Offset::messages;

    [[nodiscard]] bool hasRejectedCharacter() const;
    /// 0 to 231: the free pointer has to stay inside the memory.
    [[nodiscard]] int usedBytes() const { return freePointer - static_cast<int>(Offset::messages); }
};

/// Places the messages in order, each behind the one before. One that is too long for the space
/// left is left out whole; a later, shorter one may still fit.
[[nodiscard]] Layout layOut(std::span<const QString, messageCount> texts);

} // namespace KeyerMemory
