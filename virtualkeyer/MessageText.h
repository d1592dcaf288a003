#pragma once

#include "virtualkeyer/core/Memory.h"

#include <string>

namespace virtualkeyer {

/// Message `number` (1 to 6) of a keyer's memory as text; "*" stands for what is no character.
[[nodiscard]] std::string messageText(const Memory& memory, int number);

} // namespace virtualkeyer
