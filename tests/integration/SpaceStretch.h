#pragma once

#include "tests/integration/VirtualTimeLink.h"

/// The spaces of one kind that were keyed.
struct Spaces {
    /// How many are more than 1 ms too long.
    int late = 0;
    /// By how much the longest one is too long.
    VirtualTimeLink::Time worst{0};
};

/// By how much the keyer stretches the spaces of PARIS, keyed five times, beyond what is set.
struct SpaceStretch {
    Spaces letters;
    Spaces words;

    /// Begins anew on `link`. Throws std::runtime_error when something else is keyed.
    [[nodiscard]] static SpaceStretch measure(VirtualTimeLink& link,
                                              const VirtualTimeLink::Line& line);

    [[nodiscard]] bool isNone() const { return letters.late == 0 && words.late == 0; }
};
