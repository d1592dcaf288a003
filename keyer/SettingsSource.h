#pragma once

#include "keyer/Setting.h"

#include <concepts>

/// Where encoders read settings from: the settings store, or the table of defaults, which is known
/// to the compiler.
template <typename Source>
concept SettingsSource = requires(const Source& source, QLatin1StringView key,
                                  std::span<const Choice> choices) {
    { source.flag(key) } -> std::same_as<bool>;
    { source.integer(key) } -> std::same_as<qint64>;
    { source.real(key) } -> std::same_as<double>;
    { source.code(key, choices) } -> std::same_as<std::uint8_t>;
};
