#pragma once

#include <string>

namespace virtualkeyer {

/// The directory in which this user's session keeps what ends with it.
///
/// $XDG_RUNTIME_DIR; when that is unset or empty, Qt's RuntimeLocation. The application finds the
/// ports directory by the same rule, or it would not see the keyer. Empty when there is none.
[[nodiscard]] std::string runtimeDirectory();

} // namespace virtualkeyer
