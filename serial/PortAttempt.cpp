#include "serial/PortAttempt.h"

#include "serial/DriverCall.h"

#include <cerrno>
#include <mutex>
#include <utility>

/// Between the thread that waits for the driver and the one that may have gone on.
class PortAttempt::State {
  public:
    bool open(const QString& path) {
        auto device = ExclusiveDevice::open(path);
        const int number = errno;
        const std::scoped_lock lock(_mutex);
        if (_isGivenUp && device.isValid()) {
            static_cast<void>(ExclusiveDevice::release(device.descriptor));
            return false;
        }
        _device = std::move(device);
        _number = number;
        return _device.isValid();
    }

    ExclusiveDevice::Device take() {
        const std::scoped_lock lock(_mutex);
        _isGivenUp = true;
        errno = _number;
        return std::move(_device);
    }

  private:
    std::mutex _mutex;
    ExclusiveDevice::Device _device;
    int _number = ETIMEDOUT;
    bool _isGivenUp = false;
};

PortAttempt::PortAttempt(const QString& path, std::chrono::milliseconds limit)
    : _state(std::make_shared<State>()),
      _end(DriverCall::run(
          "port opening", [state = _state, path] { return state->open(path); }, limit)) {}

ExclusiveDevice::Device PortAttempt::takeDevice() {
    return _state->take();
}
