#pragma once

#include "serial/ExclusiveDevice.h"

#include <QString>

#include <chrono>
#include <future>
#include <memory>

/// One try to open a device, which may last longer than anybody waits for it: what comes of it
/// then is given back at once. Main thread.
class PortAttempt {
  public:
    /// Waits for the device at `path`, no longer than `limit`.
    PortAttempt(const QString& path, std::chrono::milliseconds limit);

    /// Once. An invalid one, and errno, when there was none to be had: ETIMEDOUT when the driver
    /// has not answered, which it may do yet.
    [[nodiscard]] ExclusiveDevice::Device takeDevice();

    /// Ready once the driver has answered, and nothing but what takeDevice() gave is held any more.
    [[nodiscard]] const std::shared_future<bool>& end() const { return _end; }

  private:
    class State;

    std::shared_ptr<State> _state;
    std::shared_future<bool> _end;
};
