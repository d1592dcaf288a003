#pragma once

#include "virtualkeyer/core/Profile.h"

#include <optional>
#include <span>
#include <string_view>

namespace virtualkeyer {

/// A kind of keyer that can be asked for by name.
struct NamedProfile {
    std::string_view name;
    std::string_view description;
    void (*differFromDefault)(Profile&);
};

/// All of them, the default first.
[[nodiscard]] std::span<const NamedProfile> namedProfiles();

/// The profile of a keyer that is all the kinds called `names`, separated by commas; nothing when
/// there is none by one of the names.
[[nodiscard]] std::optional<Profile> profileNamed(std::string_view names);

} // namespace virtualkeyer
