#pragma once

#include <optional>
#include <string_view>

namespace virtualkeyer {

/// The elements of `character`, dots for dits and dashes for dahs; empty if it has no Morse. Lower
/// case is as upper case.
[[nodiscard]] std::string_view elementsOf(char character);

/// The character that `elements` make; the first in the table where several share them.
[[nodiscard]] std::optional<char> characterOf(std::string_view elements);

} // namespace virtualkeyer
