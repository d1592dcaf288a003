#include "serial/PortOpening.h"

#include "serial/PortClosing.h"

#include <system_error>
#include <utility>

using namespace std::chrono_literals;

namespace {
/// What is sent last is out by then, unless a block is ahead of it or the device takes nothing.
constexpr auto longestClose = 100ms;
} // namespace

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
bool PortOpening::close(bool hasOutput) {
    _reader.reset();
    _pinPoller.reset();
    auto outcome =
        hasOutput ? PortClosing::close(std::move(_device.descriptor), _savedSettings, longestClose)
                  : PortClosing::closeIdle(std::move(_device.descriptor), _savedSettings);
    _device.descriptor = std::move(outcome.descriptor);
    _staysLocked = outcome.staysLocked;
    _restOfClosing = std::move(outcome.rest);
    return !_device.isValid();
}
