#pragma once

#include <optional>

/// Speeds of a terminal line in bit/s, those without a constant of their own included.
namespace LineSpeed {

struct Speed {
    unsigned input;
    unsigned output;

    bool operator==(const Speed&) const = default;
};

/// The speeds of the line; nothing on failure.
[[nodiscard]] std::optional<Speed> current(int descriptor);

/// Sets speeds that have no constant. 0, else -1 and errno.
[[nodiscard]] int setNonStandard(int descriptor, Speed speed);

} // namespace LineSpeed
