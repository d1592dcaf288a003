#pragma once

#include "virtualkeyer/core/Memory.h"
#include "virtualkeyer/core/Registers.h"

#include <cstdint>

namespace virtualkeyer {

/// What a panel shows of a keyer.
struct KeyerState {
    bool isPluggedIn = true;
    bool isKeyDown = false;
    bool isPttOn = false;
    /// As a host would be told.
    std::uint8_t status = 0xC0;
    Registers registers;
    Memory memory;

    bool operator==(const KeyerState&) const = default;
};

} // namespace virtualkeyer
