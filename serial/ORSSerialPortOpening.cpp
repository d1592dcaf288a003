#include "platform/Log.h"
#include "serial/DeviceUsers.h"
#include "serial/ExclusiveDevice.h"
#include "serial/LowLatency.h"
#include "serial/ORSSerialPort.h"
#include "serial/PortAttempt.h"
#include "serial/PortOpening.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <sys/eventfd.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using std::chrono::steady_clock;

namespace {

/// What is sent last is out by then, unless a block is ahead of it or the device takes nothing.
constexpr auto longestDrain = 100ms;

/// A device that has nothing to send takes some milliseconds, on a busy machine more; one whose
/// driver hangs is waited for no longer.
constexpr auto longestClose = 1s;

/// Some drivers rest for two seconds when they close, and a block may be ahead of the keyer's end
/// of the link: whoever wants the device again within that time gets it late rather than not at
/// all. One that takes longer is not waited for any more.
constexpr auto longestRest = 1500ms;

/// An adapter answers within some milliseconds; one that has hung itself up takes several times
/// the five seconds that its driver gives to each request.
constexpr auto longestOpen = 2s;

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
    const auto self = shared_from_this();
    // The device comes last: given up here, a pseudo-terminal would stay locked.
    FileDescriptor wakeUp(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    auto device = wakeUp.isValid() ? obtainDevice() : ExclusiveDevice::Device();
    if (!device.isValid()) {
        queueErrorReport();
        return;
    }
    _opening = std::make_unique<PortOpening>(std::move(device), std::move(wakeUp));
    _fileDescriptor = _opening->descriptor();
    prepareLine();
    // An observer of the lines may have closed the port.
    if (isOpen()) {
        startWorkers();
    }
}

/// An invalid one, and errno, when it cannot be had.
ExclusiveDevice::Device ORSSerialPort::obtainDevice() {
    if (isStillHeld() || isUsedElsewhere()) {
        errno = EBUSY;
        return {};
    }
    auto device = openDevice();
    // Whoever opened it since it was looked at has it still; from here on nobody can.
    if (device.isValid() && isUsedElsewhere()) {
        static_cast<void>(ExclusiveDevice::release(device.descriptor));
        device = {};
        errno = EBUSY;
    }
    return device;
}

/// A device that this program has yet to let go of. Its driver is not asked then: it might answer
/// only when it has closed.
bool ORSSerialPort::isStillHeld() const {
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(_endOfRest - steady_clock::now());
    const bool isFree = awaitFreeDevice(std::max(left, std::chrono::milliseconds{0}));
    if (!isFree) {
        logLine(u"The driver of %1 has not let go of it yet"_s.arg(description()));
    }
    return !isFree;
}

ExclusiveDevice::Device ORSSerialPort::openDevice() {
    PortAttempt attempt(_path, longestOpen);
    auto device = attempt.takeDevice();
    if (!device.isValid() && errno == ETIMEDOUT) {
        logLine(u"The driver of %1 does not answer"_s.arg(description()));
        errno = ETIMEDOUT;
    }
    _endOfLast = attempt.end();
    _endOfRest = {};
    return device;
}

void ORSSerialPort::prepareLine() {
    requestLowLatency();
    setPortOptions();
    // What somebody said to whoever had the device before is not meant for us.
    static_cast<void>(::tcflush(_fileDescriptor, TCIFLUSH));
    synchronizeOutputLines();
}

void ORSSerialPort::startWorkers() {
    const auto self = shared_from_this();
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
    _endOfRest = steady_clock::now() + longestRest;
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
