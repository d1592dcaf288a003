#pragma once

#include "serial/OpenedDevice.h"

#include <chrono>
#include <future>
#include <memory>

/// The end of an opening. Drivers have their own idea of how long it takes: to send what is left,
/// to answer a request that a worker waits for, to close. So a thread of its own waits for that.
namespace PortClosing {

/// Ready by the end of `limit`, or later, once the driver lets go of the device, which is the
/// thread's until then; a program that ends waits for it a second longer. False when the system
/// refused to close it. Main thread.
[[nodiscard]] std::shared_future<bool> close(const std::shared_ptr<OpenedDevice>& device,
                                             std::chrono::milliseconds limit);

} // namespace PortClosing
