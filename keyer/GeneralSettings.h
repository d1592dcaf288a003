#pragma once

#include "keyer/Setting.h"

#include <array>

/// Name of the keyer's serial port, or noPortName.
inline constexpr QLatin1StringView WKPortName{"WKPortName"};
/// The operator's own call sign.
inline constexpr QLatin1StringView MyCall{"MyCall"};

/// After how many seconds Tune lets go by itself; the code of a choice is the number.
inline constexpr std::array<Choice, 5> tuneLimits{{{QLatin1StringView{"Off"}, 0},
                                                   {QLatin1StringView{"10 s"}, 10},
                                                   {QLatin1StringView{"30 s"}, 30},
                                                   {QLatin1StringView{"60 s"}, 60},
                                                   {QLatin1StringView{"120 s"}, 120}}};
inline constexpr Setting TuneLimit{QLatin1StringView{"TuneLimit"}, QLatin1StringView{"Off"},
                                   tuneLimits};

/// What WKPortName holds while no port is chosen.
inline constexpr QLatin1StringView noPortName{"None"};

inline constexpr auto generalSettings = std::to_array<Setting>({
    {WKPortName, noPortName},
    {MyCall, QLatin1StringView{"your call"}},
    TuneLimit,
});
