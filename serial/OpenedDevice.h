#pragma once

#include "platform/FileDescriptor.h"
#include "serial/ExclusiveDevice.h"
#include "serial/LineSettings.h"
#include "serial/PinPoller.h"
#include "serial/PortReader.h"

#include <memory>
#include <optional>

/// A device with the line settings found on it and the workers that use it. Ending any of them may
/// take as long as its driver likes.
class OpenedDevice {
  public:
    /// `wakeUp` is an event counter that does not block.
    OpenedDevice(ExclusiveDevice::Device device, FileDescriptor wakeUp);

    [[nodiscard]] int descriptor() const { return _device.descriptor.get(); }

    /// False, and no worker left, when the system has no thread to give. What is read counts only
    /// until `opening` has expired.
    [[nodiscard]] bool startWorkers(const std::weak_ptr<const void>& opening,
                                    const std::shared_ptr<ORSSerialPort>& port,
                                    const std::shared_ptr<MainQueue>& mainQueue);

    /// Has the workers end, and waits for nothing.
    void stopWorkers();

    /// Waits for the workers, and for the output to go out, puts the old line settings back, lets
    /// others in again and closes the device. False when the system refused to close it, which is
    /// then still held, without workers. Any thread.
    [[nodiscard]] bool close();

    /// Whether letting others in again was refused.
    [[nodiscard]] bool staysLocked() const { return _staysLocked; }

  private:
    ExclusiveDevice::Device _device;
    FileDescriptor _wakeUp;
    SavedLineSettings _savedSettings;
    std::optional<PortReader> _reader;
    std::optional<PinPoller> _pinPoller;
    bool _staysLocked = false;
};
