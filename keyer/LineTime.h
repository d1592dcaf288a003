#pragma once

#include "platform/Clock.h"

#include <QtGlobal>

/// How long the line to the keyer takes for so many bytes: 11 bits each, at 1200 baud.
[[nodiscard]] constexpr Clock::Duration lineTime(qsizetype bytes) {
    return Clock::Duration(std::chrono::seconds(11)) * bytes / 1200;
}
