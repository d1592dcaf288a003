#pragma once

#include "portcheck/PortFacts.h"

#include <QLatin1StringView>

/// What a board with a chip does when its port is opened or closed.
enum class BoardHabit {
    None,
    /// Boards with it start anew when the port is opened.
    ResetsOnOpen,
    /// The board leaves its program for its boot loader when a port at 1200 baud is closed.
    LeavesAt1200Baud
};

/// A chip that keyers, and the adapters in front of them, have on the USB side.
struct SerialChip {
    QLatin1StringView vendor;
    /// One product, or the beginning of several; empty for all of the vendor's.
    QLatin1StringView product;
    QLatin1StringView name;
    /// The kernel's module that drives it.
    QLatin1StringView module;
    BoardHabit habit = BoardHabit::None;
};

namespace SerialChips {

/// The chip's entry; nullptr for a chip that is not known.
[[nodiscard]] const SerialChip* find(const UsbChip& chip);

} // namespace SerialChips
