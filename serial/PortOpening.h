#pragma once

#include "platform/FileDescriptor.h"
#include "serial/ExclusiveDevice.h"
#include "serial/LineSettings.h"
#include "serial/PinPoller.h"
#include "serial/PortReader.h"

#include <future>
#include <memory>
#include <optional>

/// All that one opening of a port has for itself: the descriptor, the line settings found on it,
/// and the workers that use it. Main thread only.
class PortOpening {
  public:
    /// `wakeUp` is an event counter that does not block.
    PortOpening(ExclusiveDevice::Device device, FileDescriptor wakeUp);

    [[nodiscard]] int descriptor() const { return _device.descriptor.get(); }

    /// From here to close() the workers keep the port alive.
    /// False, and no worker left, when the system has no thread to give.
    [[nodiscard]] bool startWorkers(const std::shared_ptr<ORSSerialPort>& port,
                                    const std::shared_ptr<MainQueue>& mainQueue);

    /// Ends the workers, puts the old line settings back, and closes the descriptor. When that
    /// last step is refused it returns false, and the descriptor is still held, without workers.
    /// With output on its way, a device that takes its time is closed behind the caller's back.
    [[nodiscard]] bool close(bool hasOutput);
    /// Of such a device: ready once it is free. Not valid else.
    [[nodiscard]] const std::shared_future<void>& restOfClosing() const { return _restOfClosing; }
    /// Whether close() was refused to let others in again.
    [[nodiscard]] bool staysLocked() const { return _staysLocked; }

  private:
    ExclusiveDevice::Device _device;
    FileDescriptor _wakeUp;
    SavedLineSettings _savedSettings;
    /// Expires with the opening.
    std::shared_ptr<const void> _lifetime = std::make_shared<int>();
    std::optional<PortReader> _reader;
    std::optional<PinPoller> _pinPoller;
    bool _staysLocked = false;
    std::shared_future<void> _restOfClosing;
};
