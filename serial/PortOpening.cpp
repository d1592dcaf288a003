#include "serial/PortOpening.h"

#include <system_error>

PortOpening::PortOpening(ExclusiveDevice::Device device, FileDescriptor wakeUp)
    : _device(std::move(device)), _wakeUp(std::move(wakeUp)), _savedSettings(descriptor()) {}

bool PortOpening::startWorkers(const std::shared_ptr<ORSSerialPort>& port,
                               const std::shared_ptr<MainQueue>& mainQueue) {
    try {
        _reader.emplace(_device.input.get(), _wakeUp.get(), _lifetime, port, mainQueue);
        _pinPoller.emplace(descriptor(), port, mainQueue);
        return true;
    } catch (const std::system_error&) {
        _reader.reset();
        return false;
    }
}

// The workers end first, for a closed descriptor's number may be somebody else's at once.
bool PortOpening::close() {
    _reader.reset();
    _pinPoller.reset();
    _savedSettings.restore(descriptor());
    _staysLocked = !ExclusiveDevice::release(_device.descriptor);
    return _device.descriptor.close();
}
