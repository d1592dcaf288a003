#pragma once

#include "platform/FileDescriptor.h"
#include "serial/LineSettings.h"

#include <chrono>
#include <future>

/// The end of an opening: its output goes out, the old line settings are put back, others are let
/// in again, and the descriptor is closed. A device takes as long for it as it likes, so that a
/// thread of its own waits for that.
namespace PortClosing {

struct Outcome {
    /// Empty, unless the system refused to close it.
    FileDescriptor descriptor;
    /// Whether letting others in again was refused.
    bool staysLocked = false;
    /// Of a closing that goes on behind the caller's back: ready once the device is free.
    std::shared_future<void> rest;
};

/// Of a device that has no output on its way.
[[nodiscard]] Outcome closeIdle(FileDescriptor descriptor, const SavedLineSettings& settings);

/// There is a rest when it takes longer than `limit`: the device is closed then once it has taken
/// what was written, or has gone. A program that ends waits for it a second longer.
[[nodiscard]] Outcome close(FileDescriptor descriptor, const SavedLineSettings& settings,
                            std::chrono::milliseconds limit);

} // namespace PortClosing
