#include "platform/Log.h"
#include "serial/ExclusiveDevice.h"
#include "serial/LowLatency.h"
#include "serial/ORSSerialPort.h"
#include "serial/PortOpening.h"

#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

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
    auto descriptor = ExclusiveDevice::open(_path);
    FileDescriptor wakeUp(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!descriptor.isValid() || !wakeUp.isValid()) {
        queueErrorReport();
        return;
    }
    const auto self = shared_from_this();
    _opening = std::make_unique<PortOpening>(std::move(descriptor), std::move(wakeUp));
    _fileDescriptor = _opening->descriptor();
    requestLowLatency();
    setPortOptions();
    synchronizeOutputLines();
    if (!isOpen()) {
        // An observer of the lines closed the port.
        return;
    }
    _mainQueue->async([self] {
        if (auto* const told = self->delegate()) {
            told->serialPortWasOpened(*self);
        }
    });
    _opening->startWorkers(self, _mainQueue);
    Q_EMIT isOpenChanged();
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
    _writeBuffer.clear();
    if (!_opening->close()) {
        _opening->startWorkers(self, _mainQueue);
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

void ORSSerialPort::cleanup() {
    const auto self = shared_from_this();
    close();
    if (auto* const told = delegate()) {
        told->serialPortWasRemovedFromSystem(*this);
    }
}

// One attempt a call: what the device did not take waits for the next call.
bool ORSSerialPort::sendData(const QByteArray& data) {
    if (!isOpen()) {
        return false;
    }
    _writeBuffer += data;
    if (_writeBuffer.isEmpty()) {
        return true;
    }
    const auto count = ::write(_fileDescriptor, _writeBuffer.constData(),
                               static_cast<size_t>(_writeBuffer.size()));
    if (count < 0) {
        notifyDelegateOfPosixError();
        return false;
    }
    _writeBuffer.remove(0, count);
    return true;
}
