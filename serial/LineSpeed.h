#pragma once

#include <optional>

/// Speeds of a terminal line in bit/s, those without a constant of their own included.
namespace LineSpeed {

struct Speed {
    unsigned input;
    unsigned output;
};

/// The speeds of the line if they are no standard ones; nothing for standard ones, which the
/// line's ordinary settings hold, and on failure.
[[nodiscard]] std::optional<Speed> nonStandard(int descriptor);

/// Sets speeds that have no constant. 0, else -1 and errno.
[[nodiscard]] int setNonStandard(int descriptor, Speed speed);

} // namespace LineSpeed
