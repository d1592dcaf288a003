#pragma once

#include "virtualkeyer/pty/Troubles.h"

#include <optional>
#include <span>
#include <string_view>

namespace virtualkeyer {

/// What the number behind a trouble's name means.
enum class TroubleNumber { None, Share, Seconds };

/// A trouble that can be asked for by name, as "name" or "name:number".
struct NamedTrouble {
    std::string_view name;
    std::string_view description;
    TroubleNumber number;
    /// Where none is given.
    double usual;
    void (*begin)(Troubles& troubles, double number);
};

/// All of them.
[[nodiscard]] std::span<const NamedTrouble> namedTroubles();

/// Asks for no trouble at all.
inline constexpr std::string_view noTroubles = "none";

/// The troubles called `names`, separated by commas; nothing when one of them is none, or its
/// number is: a share is from 0 to 1, and seconds are up to an hour.
[[nodiscard]] std::optional<Troubles> troublesNamed(std::string_view names);

} // namespace virtualkeyer
