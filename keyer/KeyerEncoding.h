#pragma once

#include "keyer/KeyerSettings.h"
#include "keyer/SettingsSource.h"

#include <algorithm>
#include <array>

/// How settings become the bytes of the keyer's registers. The same function serves every place
/// that a byte goes to: its own command, the Load Defaults block and the memory image.
///
/// Nothing is range-checked: every value is cut to its low 8 bits.
namespace KeyerEncoding {

[[nodiscard]] constexpr std::uint8_t lowByte(qint64 value) {
    return static_cast<std::uint8_t>(value & 0xFF);
}

/// The integer part of `value`, cut to its low 8 bits.
[[nodiscard]] constexpr std::uint8_t truncatedByte(double value) {
    constexpr double limit = 9223372036854774784.0; // the greatest that still is an integer
    return value == value ? lowByte(static_cast<qint64>(std::clamp(value, -limit, limit))) : 0;
}

[[nodiscard]] constexpr int bit(bool isSet, int mask) {
    return isSet ? mask : 0;
}

inline constexpr std::uint8_t paddleEchoBit = 0x40;
inline constexpr std::uint8_t serialEchoBit = 0x04;

template <SettingsSource Source>
[[nodiscard]] constexpr std::uint8_t modeRegister(const Source& settings) {
    return lowByte(
        bit(settings.flag(WKDisablePaddleWatchdog), 0x80) |
        bit(settings.flag(WKPaddleEchoback), paddleEchoBit) |
        settings.code(WKKeyMode, KeyerChoices::keyMode) | bit(settings.flag(WKPaddleSwap), 0x08) |
        bit(settings.flag(WKSerialEchoback), serialEchoBit) |
        bit(settings.flag(WKAutospace), 0x02) | bit(settings.flag(WKContestSpacing), 0x01));
}

template <SettingsSource Source>
[[nodiscard]] constexpr std::uint8_t sidetone(const Source& settings) {
    return lowByte(bit(settings.flag(WKPaddleOnlySidetone), 0x80) |
                   settings.code(WKSidetoneFrequency, KeyerChoices::sidetoneFrequency));
}

template <SettingsSource Source>
[[nodiscard]] constexpr std::uint8_t pinConfiguration(const Source& settings) {
    return lowByte(
        settings.code(WKDitDahPriority, KeyerChoices::ditDahPriority) |
        settings.code(WKPaddleHang, KeyerChoices::paddleHang) |
        bit(settings.flag(WKKeyOut2Enable), 0x08) | bit(settings.flag(WKKeyOut1Enable), 0x04) |
        bit(settings.flag(WKSidetoneEnable), 0x02) | bit(settings.flag(WKPTTEnable), 0x01));
}

/// The setting is an offset from the keyer's neutral weighting, 50.
template <SettingsSource Source>
[[nodiscard]] constexpr std::uint8_t weighting(const Source& settings) {
    return lowByte(settings.integer(WKWeighting) + 50);
}

/// Units of 10 ms.
template <SettingsSource Source>
[[nodiscard]] constexpr std::uint8_t pttLeadTime(const Source& settings) {
    return lowByte(settings.integer(WKPTTLeadTime));
}

/// Units of 10 ms.
template <SettingsSource Source>
[[nodiscard]] constexpr std::uint8_t pttTailTime(const Source& settings) {
    return lowByte(settings.integer(WKPTTTailTime));
}

/// wpm.
template <SettingsSource Source>
[[nodiscard]] constexpr std::uint8_t speedPotMinimum(const Source& settings) {
    return lowByte(settings.integer(WKSpeedPotMinimum));
}

/// wpm.
template <SettingsSource Source>
[[nodiscard]] constexpr std::uint8_t speedPotRange(const Source& settings) {
    return lowByte(settings.integer(WKSpeedPotRange));
}

/// ms.
template <SettingsSource Source>
[[nodiscard]] constexpr std::uint8_t firstExtension(const Source& settings) {
    return lowByte(settings.integer(WKFirstExtension));
}

/// ms.
template <SettingsSource Source>
[[nodiscard]] constexpr std::uint8_t keyingCompensation(const Source& settings) {
    return lowByte(settings.integer(WKKeyingCompensation));
}

/// wpm.
template <SettingsSource Source>
[[nodiscard]] constexpr std::uint8_t farnsworthSpeed(const Source& settings) {
    return lowByte(settings.integer(WKFarnsworthSpeed));
}

/// Where in a dit or dah the keyer looks at the paddle again, 50 being one dit.
template <SettingsSource Source>
[[nodiscard]] constexpr std::uint8_t paddleSwitchpoint(const Source& settings) {
    return lowByte(settings.integer(WKPaddleSwitchpoint));
}

/// The switchpoint where dit/dah memory is on, else 0, which turns it off.
template <SettingsSource Source>
[[nodiscard]] constexpr std::uint8_t paddleMemory(const Source& settings) {
    return settings.flag(WKEnableDitDahMemory) ? paddleSwitchpoint(settings) : std::uint8_t{0};
}

/// The setting is dits per dah; the keyer takes 50 for 3.
template <SettingsSource Source>
[[nodiscard]] constexpr std::uint8_t ditDahRatio(const Source& settings) {
    return truncatedByte(settings.real(WKRatio) / 0.06);
}

/// The fifteen values of the Load Defaults command.
using DefaultsBlock = std::array<std::uint8_t, 15>;

template <SettingsSource Source>
[[nodiscard]] constexpr DefaultsBlock defaultsBlock(const Source& settings) {
    return {
        modeRegister(settings),
        0, // speed: left to the speed pot
        sidetone(settings),
        weighting(settings),
        pttLeadTime(settings),
        pttTailTime(settings),
        speedPotMinimum(settings),
        speedPotRange(settings),
        firstExtension(settings),
        keyingCompensation(settings),
        farnsworthSpeed(settings),
        paddleMemory(settings),
        ditDahRatio(settings),
        pinConfiguration(settings),
        0,
    };
}

} // namespace KeyerEncoding
