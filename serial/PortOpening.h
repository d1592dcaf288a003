#pragma once

#include "platform/FileDescriptor.h"
#include "serial/ExclusiveDevice.h"
#include "serial/OpenedDevice.h"

#include <chrono>
#include <future>
#include <memory>

/// One opening of a port: its device, for as long as the port says that it is open. Main thread
/// only.
class PortOpening {
  public:
    /// `wakeUp` is an event counter that does not block.
    PortOpening(ExclusiveDevice::Device device, FileDescriptor wakeUp);

    /// 0 when the device has been closed.
    [[nodiscard]] int descriptor() const { return _device ? _device->descriptor() : 0; }

    /// From here to close() the workers keep the port alive.
    /// False, and no worker left, when the system has no thread to give.
    [[nodiscard]] bool startWorkers(const std::shared_ptr<ORSSerialPort>& port,
                                    const std::shared_ptr<MainQueue>& mainQueue);

    /// Ends the workers, puts the old line settings back, and closes the device. When that last
    /// step is refused it returns false, and the device is still held, without workers. One that
    /// takes longer than `limit` for any of it is closed behind the caller's back.
    [[nodiscard]] bool close(std::chrono::milliseconds limit);
    /// Of a close(): ready once the device is free.
    [[nodiscard]] const std::shared_future<bool>& end() const { return _end; }
    /// Whether close() was refused to let others in again.
    [[nodiscard]] bool staysLocked() const { return _staysLocked; }

  private:
    std::shared_ptr<OpenedDevice> _device;
    /// Expires with the opening.
    std::shared_ptr<const void> _lifetime = std::make_shared<int>();
    bool _staysLocked = false;
    std::shared_future<bool> _end;
};
