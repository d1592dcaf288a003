#pragma once

#include "keyer/Setting.h"

#include <array>

/// Whether what is sent is recorded.
inline constexpr QLatin1StringView KeepRecord{"KeepRecord"};

/// How long it is kept; the code of a choice is the number of months.
inline constexpr std::array<Choice, 4> recordAges{
    {{QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "1 month")}, 1},
     {QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "3 months")}, 3},
     {QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "1 year")}, 12},
     {QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "5 years")}, 60}}};
inline constexpr Setting RecordAge{QLatin1StringView{"RecordAge"}, QLatin1StringView{"1 year"},
                                   recordAges};

inline constexpr auto recordSettings = std::to_array<Setting>({
    {KeepRecord, true},
    RecordAge,
});
