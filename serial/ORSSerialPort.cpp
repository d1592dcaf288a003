#include "serial/ORSSerialPort.h"

#include "platform/Platform.h"
#include "serial/InternalInconsistency.h"
#include "serial/LivePorts.h"
#include "serial/PortOpening.h"

#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>

namespace {

constexpr int longestBlock = 1024;

/// A line that has no modem lines is reported a hundred times a second, in the same words, which
/// nobody may read.
Error posixError(int number, const QString& path) {
    struct Report {
        int number = 0;
        QString path;
        Error error;
    };
    static thread_local Report last;
    if (last.number != number || last.path != path) {
        last = {number, path, Error::ofPosix(number, path)};
    }
    return last.error;
}

} // namespace

std::shared_ptr<ORSSerialPort> ORSSerialPort::serialPortWithPath(const QString& path) {
    const auto device = deviceFromBSDPath(path);
    return device != noDevice ? serialPortWithDevice(device) : nullptr;
}

std::shared_ptr<ORSSerialPort> ORSSerialPort::serialPortWithDevice(DeviceHandle device) {
    if (device == noDevice) {
        throw InternalInconsistency(
            "-[ORSSerialPort initWithDevice:] requires non-zero device argument.");
    }
    const auto path = bsdCalloutPathFromDevice(device);
    if (auto existing = existingPortWithPath(path)) {
        if (existing->name() == modemNameFromDevice(device)) {
            return existing;
        }
        // Another adapter has that node by now, and whoever holds the old one's port keeps it.
        removeSerialPort(*existing);
    }
    std::shared_ptr<ORSSerialPort> port(new ORSSerialPort(device, path));
    addSerialPort(*port);
    return port;
}

void ORSSerialPort::addSerialPort(ORSSerialPort& port) {
    LivePorts::current().add(port);
}

void ORSSerialPort::removeSerialPort(const ORSSerialPort& port) {
    LivePorts::current().remove(port);
}

std::shared_ptr<ORSSerialPort> ORSSerialPort::existingPortWithPath(const QString& path) {
    return LivePorts::current().withPath(path);
}

DeviceHandle ORSSerialPort::deviceFromBSDPath(const QString& path) {
    if (path.isEmpty()) {
        return noDevice;
    }
    const auto devices = Platform::current().devices().matchingDevices();
    if (!devices) {
        return noDevice;
    }
    for (const auto device : *devices) {
        if (path == bsdCalloutPathFromDevice(device) || path == bsdDialinPathFromDevice(device)) {
            return device;
        }
    }
    return noDevice;
}

QString ORSSerialPort::stringPropertyOf(DeviceHandle device, const QString& key) {
    return Platform::current().devices().stringProperty(device, key);
}

QString ORSSerialPort::bsdCalloutPathFromDevice(DeviceHandle device) {
    return stringPropertyOf(device, DeviceKey::calloutDevice);
}

QString ORSSerialPort::bsdDialinPathFromDevice(DeviceHandle device) {
    return stringPropertyOf(device, DeviceKey::dialinDevice);
}

QString ORSSerialPort::baseNameFromDevice(DeviceHandle device) {
    return stringPropertyOf(device, DeviceKey::ttyBaseName);
}

QString ORSSerialPort::serviceTypeFromDevice(DeviceHandle device) {
    return stringPropertyOf(device, DeviceKey::clientType);
}

QString ORSSerialPort::modemNameFromDevice(DeviceHandle device) {
    return stringPropertyOf(device, DeviceKey::ttyDevice);
}

QString ORSSerialPort::suffixFromDevice(DeviceHandle device) {
    return stringPropertyOf(device, DeviceKey::ttySuffix);
}

ORSSerialPort::ORSSerialPort() {
    throw InternalInconsistency("ORSSerialPort must be init'd using -initWithPath:");
}

// The device is retained and never released: its properties stay readable for whoever still has
// the handle when the port has gone, and a session sees only a handful of devices.
ORSSerialPort::ORSSerialPort(DeviceHandle device, const QString& path)
    : _livePorts(&LivePorts::current()),
      _mainQueue(Platform::current().mainQueue()),
      _ioKitDevice(device),
      _path(path),
      _name(modemNameFromDevice(device)),
      _maximumBlockSize(longestBlock) {
    Platform::current().devices().retain(device);
}

ORSSerialPort::~ORSSerialPort() {
    if (_livePorts) {
        _livePorts->remove(*this);
    }
}

bool ORSSerialPort::isEqual(const ORSSerialPort& other) const {
    return _path == other._path;
}

size_t ORSSerialPort::hash() const {
    return qHash(_path);
}

QString ORSSerialPort::description() const {
    return _name;
}

ORSSerialPortDelegate* ORSSerialPort::delegate() const {
    return _delegateLifetime.expired() ? nullptr : _delegate;
}

void ORSSerialPort::setDelegate(ORSSerialPortDelegate* delegate) {
    _delegate = delegate;
    _areErrorsHeard = delegate != nullptr && delegate->hearsErrorsOfOpenPort();
    _delegateLifetime = delegate != nullptr ? delegate->lifetime() : std::weak_ptr<const void>();
}

QString ORSSerialPort::path() const {
    return _path;
}

QString ORSSerialPort::name() const {
    return _name;
}

DeviceHandle ORSSerialPort::IOKitDevice() const {
    return _ioKitDevice;
}

int ORSSerialPort::maximumBlockSize() const {
    return _maximumBlockSize;
}

void ORSSerialPort::setMaximumBlockSize(int size) {
    const int reduced = std::clamp(size, 1, longestBlock);
    if (_maximumBlockSize.exchange(reduced) != reduced) {
        Q_EMIT maximumBlockSizeChanged();
    }
}

void ORSSerialPort::receiveData(const QByteArray& data) {
    if (auto* const told = delegate()) {
        told->serialPortDidReceiveData(*this, data);
    }
}

void ORSSerialPort::notifyDelegateOfPosixError() {
    const auto number = errno;
    if (auto* const told = delegate()) {
        told->serialPortDidEncounterError(*this, posixError(number, _path));
    }
}

// The report tells the errno of the main thread when it runs, not that of the failed call.
void ORSSerialPort::queueErrorReport() {
    _mainQueue->async([port = shared_from_this()] { port->notifyDelegateOfPosixError(); });
}
