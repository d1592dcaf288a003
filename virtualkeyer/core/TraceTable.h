#pragma once

#include "virtualkeyer/core/KeyTrace.h"

#include <string>

namespace virtualkeyer {

/// A trace as comma-separated values with a heading: each mark, space, letter and transmission,
/// with its beginning, end and length in ms.
[[nodiscard]] std::string traceTable(const KeyTrace& trace);

} // namespace virtualkeyer
