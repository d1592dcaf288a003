#include "serial/OpenedDevice.h"

#include "platform/MainQueue.h"
#include "serial/ORSSerialPort.h"

#include <system_error>
#include <utility>

namespace {

/// A reference that the workers hold. The last of them may be given up by the thread that waits for
/// the driver, but a port ends on the main thread.
std::shared_ptr<ORSSerialPort> heldFor(const std::shared_ptr<MainQueue>& mainQueue,
                                       const std::shared_ptr<ORSSerialPort>& port) {
    return {port.get(), [port, mainQueue](ORSSerialPort*) mutable {
                mainQueue->async([held = std::move(port)] {});
            }};
}

} // namespace

OpenedDevice::OpenedDevice(ExclusiveDevice::Device device, FileDescriptor wakeUp)
    : _device(std::move(device)), _wakeUp(std::move(wakeUp)), _savedSettings(descriptor()) {}

bool OpenedDevice::startWorkers(const std::weak_ptr<const void>& opening,
                                const std::shared_ptr<ORSSerialPort>& port,
                                const std::shared_ptr<MainQueue>& mainQueue) {
    const auto held = heldFor(mainQueue, port);
    try {
        _reader.emplace(_device.input.get(), _wakeUp.get(), opening, held, mainQueue);
        _pinPoller.emplace(descriptor(), held, mainQueue);
        return true;
    } catch (const std::system_error&) {
        _reader.reset();
        return false;
    }
}

void OpenedDevice::stopWorkers() {
    if (_reader) {
        _reader->stop();
    }
    if (_pinPoller) {
        _pinPoller->stop();
    }
}

// The workers end first, for a closed descriptor's number may be somebody else's at once.
bool OpenedDevice::close() {
    _reader.reset();
    _pinPoller.reset();
    _savedSettings.restore(descriptor());
    _staysLocked = !ExclusiveDevice::release(_device.descriptor);
    if (!_device.descriptor.close()) {
        return false;
    }
    _device = {};
    return true;
}
