#include "serial/PortOpening.h"

#include "serial/DriverCall.h"

#include <utility>

PortOpening::PortOpening(ExclusiveDevice::Device device, FileDescriptor wakeUp)
    : _device(std::make_shared<OpenedDevice>(std::move(device), std::move(wakeUp))) {}

bool PortOpening::startWorkers(const std::shared_ptr<ORSSerialPort>& port,
                               const std::shared_ptr<MainQueue>& mainQueue) {
    return _device->startWorkers(_lifetime, port, mainQueue);
}

bool PortOpening::close(std::chrono::milliseconds limit) {
    const auto device = std::exchange(_device, nullptr);
    // From here, so that a worker which waits for this thread gives up.
    device->stopWorkers();
    _end = DriverCall::run(
        "port closing", [device] { return device->close(); }, limit);
    if (_end.wait_for(std::chrono::milliseconds{0}) != std::future_status::ready) {
        return true;
    }
    if (!_end.get()) {
        _device = device;
    }
    _staysLocked = device->staysLocked();
    return !_device;
}
