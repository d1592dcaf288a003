#pragma once

#include "platform/FileDescriptor.h"

#include <QString>

/// Opening a terminal device so that nobody else opens it meanwhile.
namespace ExclusiveDevice {

/// Opens the terminal at `path` for reading and writing, without waiting for a carrier. The
/// descriptor blocks and is not inherited by child processes. An invalid one, and errno, when the
/// device cannot be opened, is no terminal, or is held by somebody else.
[[nodiscard]] FileDescriptor open(const QString& path);

/// Lets others in again. False when that is refused: an adapter then stays locked until its last
/// descriptor is closed, a pseudo-terminal until its far end goes, for all but root.
[[nodiscard]] bool release(const FileDescriptor& descriptor);

} // namespace ExclusiveDevice
