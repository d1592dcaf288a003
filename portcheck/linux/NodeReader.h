#pragma once

#include "portcheck/PortFacts.h"

/// What can be told about a node's permissions without opening it.
namespace NodeReader {

/// What this user may do with the node at `path`.
[[nodiscard]] NodeAccess access(const QString& path);

} // namespace NodeReader
