#pragma once

#include "virtualkeyer/core/Event.h"

#include <string>

namespace virtualkeyer {

/// One event as a line of text without its end: the time in ms with three decimals and what
/// happened, such as "1234.567 key down 1", "1300.000 host C4", "0.000 tone 800" or "5.000 ptt on".
[[nodiscard]] std::string transcriptLine(const Event& event);

} // namespace virtualkeyer
