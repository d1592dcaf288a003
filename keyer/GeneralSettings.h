#pragma once

#include "keyer/Setting.h"

#include <array>

/// Name of the keyer's serial port, or noPortName.
inline constexpr QLatin1StringView WKPortName{"WKPortName"};
/// The operator's own call sign.
inline constexpr QLatin1StringView MyCall{"MyCall"};

/// After how many seconds Tune lets go by itself; the code of a choice is the number.
inline constexpr std::array<Choice, 5> tuneLimits{
    {{QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "Off")}, 0},
     {QLatin1StringView{"10 s"}, 10},
     {QLatin1StringView{"30 s"}, 30},
     {QLatin1StringView{"60 s"}, 60},
     {QLatin1StringView{"120 s"}, 120}}};
inline constexpr Setting TuneLimit{QLatin1StringView{"TuneLimit"}, QLatin1StringView{"Off"},
                                   tuneLimits};

/// Whether loggers of this machine may send.
inline constexpr QLatin1StringView AcceptLoggers{"AcceptLoggers"};
/// The UDP port on which they are heard.
inline constexpr Setting LoggerPort{QLatin1StringView{"LoggerPort"}, 6789, {}, Range{1024, 65535}};

/// How many plain characters may be with the keyer beyond its echo, for a keyer far away.
inline constexpr Setting CharactersAhead{QLatin1StringView{"CharactersAhead"}, 1, {}, Range{1, 8}};

/// What WKPortName holds while no port is chosen.
inline constexpr QLatin1StringView noPortName{QT_TRANSLATE_NOOP("Setting", "None")};

inline constexpr auto generalSettings = std::to_array<Setting>({
    {WKPortName, noPortName},
    {MyCall, QLatin1StringView{"your call"}},
    TuneLimit,
    {AcceptLoggers, false},
    LoggerPort,
    CharactersAhead,
});
