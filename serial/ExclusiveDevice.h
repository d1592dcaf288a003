#pragma once

#include "platform/FileDescriptor.h"

#include <QString>

/// Opening a terminal device so that nobody else opens it meanwhile.
namespace ExclusiveDevice {

/// One opened terminal, by two descriptors that are not inherited by child processes.
struct Device {
    /// Blocks, as a serial port's descriptor does.
    FileDescriptor descriptor;
    /// To read from: never blocks, also when somebody else takes the bytes that were announced.
    FileDescriptor input;

    [[nodiscard]] bool isValid() const { return descriptor.isValid(); }
};

/// Opens the terminal at `path` for reading and writing, without waiting for a carrier. Invalid
/// descriptors, and errno, when it cannot be opened, is no terminal, or is held by somebody else.
[[nodiscard]] Device open(const QString& path);

/// Lets others in again. False when that is refused: an adapter then stays locked until its last
/// descriptor is closed, a pseudo-terminal until its far end goes, for all but root.
[[nodiscard]] bool release(const FileDescriptor& descriptor);

} // namespace ExclusiveDevice
