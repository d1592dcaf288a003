#include "platform/Log.h"
#include "serial/DeviceUsers.h"
#include "serial/ExclusiveDevice.h"
#include "serial/LowLatency.h"
#include "serial/ORSSerialPort.h"
#include "serial/PortOpening.h"

#include <cerrno>
#include <chrono>
#include <sys/eventfd.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What is sent last is out by then, unless a block is ahead of it or the device takes nothing.
constexpr auto longestDrain = 100ms;

/// A device that has nothing to send takes some milliseconds, on a busy machine more; one whose
/// driver hangs is waited for no longer.
constexpr auto longestClose = 1s;

/// Some drivers rest for two seconds when they close, and a block may be ahead of the keyer's end
/// of the link: whoever wants the device again then gets it late rather than not at all.
constexpr auto longestRest = 1500ms;

} // namespace

bool ORSSerialPort::isOpen() const {
    return _fileDescriptor != 0;
}

int ORSSerialPort::fileDescriptor() const {
    return _fileDescriptor;
}

void ORSSerialPort::open() {
    if (isOpen()) {
        return;
    }
    static_cast<void>(awaitFreeDevice(longestRest));
    if (isUsedElsewhere()) {
        errno = EBUSY;
        queueErrorReport();
        return;
    }
    // The device comes last: given up here, a pseudo-terminal would stay locked.
    FileDescriptor wakeUp(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    auto device = wakeUp.isValid() ? ExclusiveDevice::open(_path) : ExclusiveDevice::Device();
    if (!device.isValid()) {
        queueErrorReport();
        return;
    }
    // Whoever opened it since it was looked at has it still; from here on nobody can.
    if (isUsedElsewhere()) {
        static_cast<void>(ExclusiveDevice::release(device.descriptor));
        device = {};
        errno = EBUSY;
        queueErrorReport();
        return;
    }
    const auto self = shared_from_this();
    _opening = std::make_unique<PortOpening>(std::move(device), std::move(wakeUp));
    _fileDescriptor = _opening->descriptor();
    requestLowLatency();
    setPortOptions();
    // What somebody said to whoever had the device before is not meant for us.
    static_cast<void>(::tcflush(_fileDescriptor, TCIFLUSH));
    synchronizeOutputLines();
    if (!isOpen()) {
        // An observer of the lines closed the port.
        return;
    }
    // Queued ahead of the reader's first bytes, yet told only if there is a reader.
    const auto hasWorkers = std::make_shared<bool>(false);
    _mainQueue->async([self, hasWorkers] {
        if (auto* const told = self->delegate(); *hasWorkers && told != nullptr) {
            told->serialPortWasOpened(*self);
        }
    });
    *hasWorkers = _opening->startWorkers(self, _mainQueue);
    if (!*hasWorkers) {
        static_cast<void>(closeOpening());
        _fileDescriptor = 0;
        _opening.reset();
        queueErrorReport();
        return;
    }
    Q_EMIT isOpenChanged();
}

/// Programs that ask for no lock can open the device, and be shut out by none: both would read, and
/// each would get half.
bool ORSSerialPort::isUsedElsewhere() const {
    const auto users = DeviceUsers::of(_path);
    if (!users.isEmpty()) {
        logLine(u"%1 is in use by %2"_s.arg(description(), users.join(u", ")));
    }
    return !users.isEmpty();
}

void ORSSerialPort::requestLowLatency() {
    if (LowLatency::obtain(_fileDescriptor) && !std::exchange(_hasToldOfLowLatency, true)) {
        logLine(u"Low latency is on for %1"_s.arg(description()));
    }
}

bool ORSSerialPort::close() {
    if (!isOpen()) {
        return true;
    }
    const auto self = shared_from_this();
    Q_EMIT willClose();
    _writeBuffer.clear();
    endWatchForRoom();
    if (!closeOpening()) {
        static_cast<void>(_opening->startWorkers(self, _mainQueue));
        Q_EMIT isOpenChanged();
        return false;
    }
    _fileDescriptor = 0;
    _opening.reset();
    Q_EMIT isOpenChanged();
    if (auto* const told = delegate()) {
        told->serialPortWasClosed(*this);
    }
    return true;
}

// A device that is not let go of is closed all the same: held open, it would stay locked too, with
// its lines raised. The log says why the next one to open it finds it busy.
bool ORSSerialPort::closeOpening() {
    const bool isClosed = _opening->close(isSending() ? longestDrain : longestClose);
    _endOfLast = _opening->end();
    if (_opening->staysLocked()) {
        logLine(u"Unable to leave exclusive mode on %1"_s.arg(description()));
    }
    return isClosed;
}

bool ORSSerialPort::awaitFreeDevice(std::chrono::milliseconds limit) const {
    return !_endOfLast.valid() || _endOfLast.wait_for(limit) == std::future_status::ready;
}

bool ORSSerialPort::closeForeseen() {
    const auto self = shared_from_this();
    if (auto* const told = delegate(); isOpen() && told != nullptr) {
        told->serialPortWillBeClosed(*this);
    }
    return close();
}

void ORSSerialPort::cleanup() {
    const auto self = shared_from_this();
    closeForeseen();
    if (auto* const told = delegate()) {
        told->serialPortWasRemovedFromSystem(*this);
    }
}
