#include "serial/PortOpening.h"

#include "serial/ExclusiveDevice.h"

#include <system_error>

PortOpening::PortOpening(FileDescriptor descriptor, FileDescriptor wakeUp)
    : _descriptor(std::move(descriptor)),
      _wakeUp(std::move(wakeUp)),
      _savedSettings(_descriptor.get()) {}

bool PortOpening::startWorkers(const std::shared_ptr<ORSSerialPort>& port,
                               const std::shared_ptr<MainQueue>& mainQueue) {
    try {
        _reader.emplace(_descriptor.get(), _wakeUp.get(), _lifetime, port, mainQueue);
        _pinPoller.emplace(_descriptor.get(), port, mainQueue);
        return true;
    } catch (const std::system_error&) {
        _reader.reset();
        return false;
    }
}

// The workers end first: with the old settings back, which may make it a line of whole lines, a
// read could wait for ever; and a closed descriptor's number may be somebody else's at once.
bool PortOpening::close() {
    _reader.reset();
    _pinPoller.reset();
    _savedSettings.restore(_descriptor.get());
    _staysLocked = !ExclusiveDevice::release(_descriptor);
    return _descriptor.close();
}
