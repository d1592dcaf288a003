#pragma once

#include "keyer/Setting.h"

#include <array>

/// Name of the keyer's serial port, or noPortName.
inline constexpr QLatin1StringView WKPortName{"WKPortName"};
/// The operator's own call sign.
inline constexpr QLatin1StringView MyCall{"MyCall"};

/// What WKPortName holds while no port is chosen.
inline constexpr QLatin1StringView noPortName{"None"};

inline constexpr auto generalSettings = std::to_array<Setting>({
    {WKPortName, noPortName},
    {MyCall, QLatin1StringView{"your call"}},
});
