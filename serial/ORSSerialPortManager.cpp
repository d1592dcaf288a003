#include "serial/ORSSerialPortManager.h"

#include "platform/Log.h"
#include "platform/Platform.h"

#include <QPointer>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// An image of the keyer's memory is out by then. Whoever announces the sleep waits a little
/// longer.
constexpr auto longestLastOutput = 3s;

/// For how long a device that is still being closed is waited for after a wake, and how often it is
/// looked at.
constexpr Clock::Duration longestWait = 10s;
constexpr Clock::Duration lookInterval = 100ms;

QString describe(const QObject* object) {
    if (object == nullptr) {
        return u"(null)"_s;
    }
    return u"<%1: 0x%2>"_s.arg(QLatin1StringView(object->metaObject()->className()))
        .arg(reinterpret_cast<quintptr>(object), 0, 16);
}

void logUnexpectedContext(const QObject* context, QLatin1StringView function) {
    logLine(u"Unexpected context object "_s + describe(context) + u" in "_s + function +
            u". Context object should be an instance of ORSSerialPortManager"_s);
}

bool containsEqual(const ORSSerialPortManager::Ports& ports, const ORSSerialPort& port) {
    return std::any_of(ports.begin(), ports.end(),
                       [&](const auto& each) { return each->isEqual(port); });
}

/// Bluetooth devices of the machine's own (a paired telephone, say) are there all the time and
/// are no keyer. One that arrives while the program runs is what the operator has just set up.
bool isListedAtStart(const ORSSerialPort& port) {
    return !port.name().contains("bluetooth"_L1, Qt::CaseInsensitive);
}

} // namespace

void ORSSerialPortManagerPortsPublishedNotificationCallback(QObject* context,
                                                            const QList<DeviceHandle>& devices) {
    if (auto* const manager = qobject_cast<ORSSerialPortManager*>(context)) {
        manager->serialPortsWerePublished(devices);
        return;
    }
    logUnexpectedContext(
        context,
        "void ORSSerialPortManagerPortsPublishedNotificationCallback(void *, io_iterator_t)"_L1);
}

void ORSSerialPortManagerPortsTerminatedNotificationCallback(QObject* context,
                                                             const QList<DeviceHandle>& devices) {
    if (auto* const manager = qobject_cast<ORSSerialPortManager*>(context)) {
        manager->serialPortsWereTerminated(devices);
        return;
    }
    logUnexpectedContext(
        context,
        "void ORSSerialPortManagerPortsTerminatedNotificationCallback(void *, io_iterator_t)"_L1);
}

ORSSerialPortManager& ORSSerialPortManager::sharedSerialPortManager() {
    static QPointer<ORSSerialPortManager> shared;
    if (!shared) {
        shared = new ORSSerialPortManager(&Platform::current());
    }
    return *shared;
}

ORSSerialPortManager::ORSSerialPortManager(QObject* parent) : QObject(parent) {
    getAvailablePortsAndRegisterForChangeNotifications();
    registerForNotifications();
}

ORSSerialPortManager::~ORSSerialPortManager() {
    NotificationCenter::defaultCenter().removeObserver(this);
    setPortPublishedNotificationIterator(0);
    setPortTerminatedNotificationIterator(0);
}

void ORSSerialPortManager::setAvailablePorts(const std::optional<Ports>& ports) {
    _availablePorts = ports;
    Q_EMIT availablePortsReplaced();
}

qsizetype ORSSerialPortManager::countOfAvailablePorts() const {
    return _availablePorts ? _availablePorts->size() : 0;
}

std::shared_ptr<ORSSerialPort>
ORSSerialPortManager::objectInAvailablePortsAtIndex(qsizetype index) const {
    return _availablePorts ? _availablePorts->at(index) : nullptr;
}

void ORSSerialPortManager::insertAvailablePortsAtIndexes(const Ports& ports,
                                                         const Indexes& indexes) {
    if (!_availablePorts) {
        return;
    }
    for (qsizetype i = 0; i < indexes.size(); ++i) {
        _availablePorts->insert(indexes[i], ports[i]);
    }
    Q_EMIT availablePortsInserted(indexes);
}

void ORSSerialPortManager::insertObjectInAvailablePortsAtIndex(
    const std::shared_ptr<ORSSerialPort>& port, qsizetype index) {
    insertAvailablePortsAtIndexes({port}, {index});
}

void ORSSerialPortManager::removeAvailablePortsAtIndexes(const Indexes& indexes) {
    if (!_availablePorts) {
        return;
    }
    std::for_each(indexes.rbegin(), indexes.rend(),
                  [this](qsizetype index) { _availablePorts->removeAt(index); });
    Q_EMIT availablePortsRemoved(indexes);
}

void ORSSerialPortManager::removeObjectFromAvailablePortsAtIndex(qsizetype index) {
    removeAvailablePortsAtIndexes({index});
}

quint32 ORSSerialPortManager::portPublishedNotificationIterator() const {
    return _portPublishedNotificationIterator;
}

void ORSSerialPortManager::setPortPublishedNotificationIterator(quint32 iterator) {
    replaceIterator(_portPublishedNotificationIterator, iterator);
}

quint32 ORSSerialPortManager::portTerminatedNotificationIterator() const {
    return _portTerminatedNotificationIterator;
}

void ORSSerialPortManager::setPortTerminatedNotificationIterator(quint32 iterator) {
    replaceIterator(_portTerminatedNotificationIterator, iterator);
}

void ORSSerialPortManager::systemWillSleep(const Notification&) {
    _isAsleep = true;
    endWaitForDevices();
    const auto ports = _availablePorts.value_or(Ports());
    for (const auto& port : ports) {
        if (port->isOpen() && port->closeForeseen()) {
            _portsToReopenAfterSleep.append(port);
        }
    }
    awaitLastOutput();
}

// A machine that sleeps cuts off what an adapter has not sent.
void ORSSerialPortManager::awaitLastOutput() const {
    const auto deadline = std::chrono::steady_clock::now() + longestLastOutput;
    for (const auto& port : _portsToReopenAfterSleep) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        static_cast<void>(port->awaitFreeDevice(std::max(left, std::chrono::milliseconds{0})));
    }
}

void ORSSerialPortManager::systemDidWake(const Notification&) {
    _isAsleep = false;
    endWaitForDevices();
    _endOfWait = Platform::current().clock().now() + longestWait;
    reopenAfterSleep();
}

/// A device that takes nothing more is given up in the end: opening it fails, and is reported.
void ORSSerialPortManager::reopenAfterSleep() {
    auto& clock = Platform::current().clock();
    const bool isLast = clock.now() >= _endOfWait;
    const auto ports = _portsToReopenAfterSleep;
    for (const auto& port : ports) {
        if (!isLast && !port->awaitFreeDevice(std::chrono::milliseconds{0})) {
            continue;
        }
        if (isPresent(*port)) {
            port->open();
        }
        _portsToReopenAfterSleep.removeAll(port);
    }
    if (!_portsToReopenAfterSleep.isEmpty()) {
        _waitForDevices = clock.scheduleTimer(lookInterval, this, [this] { reopenAfterSleep(); });
    }
}

void ORSSerialPortManager::endWaitForDevices() {
    if (_waitForDevices) {
        std::exchange(_waitForDevices, nullptr)->invalidate();
    }
}

// Looked for anew: at the end of a sleep, or of an alert, nobody may have told of a removal yet.
bool ORSSerialPortManager::isPresent(const ORSSerialPort& port) const {
    const auto ports = _availablePorts.value_or(Ports());
    auto& registry = Platform::current().devices();
    const auto devices = registry.matchingDevices();
    return std::any_of(ports.begin(), ports.end(),
                       [&](const auto& each) { return each.get() == &port; }) &&
           devices && std::any_of(devices->begin(), devices->end(), [&](DeviceHandle device) {
               return ORSSerialPort::bsdCalloutPathFromDevice(device) == port.path() &&
                      ORSSerialPort::modemNameFromDevice(device) == port.name() &&
                      registry.isThere(device);
           });
}

void ORSSerialPortManager::serialPortsWerePublished(const QList<DeviceHandle>& devices) {
    Ports ports;
    for (const auto device : devices) {
        const auto port = ORSSerialPort::serialPortWithDevice(device);
        if (!containsEqual(_availablePorts.value_or(Ports()), *port)) {
            ports.append(port);
        }
    }
    appendAvailablePorts(ports);
    NotificationCenter::defaultCenter().post(
        ORSSerialPortWasConnectedNotification, this,
        {{ORSConnectedSerialPortsKey, QVariant::fromValue(ports)}});
}

void ORSSerialPortManager::serialPortsWereTerminated(const QList<DeviceHandle>& devices) {
    Ports ports;
    for (const auto device : devices) {
        ports.append(ORSSerialPort::serialPortWithDevice(device));
    }
    for (const auto& port : std::as_const(ports)) {
        _portsToReopenAfterSleep.removeAll(port);
        port->cleanup();
    }
    removeAvailablePorts(ports);
    NotificationCenter::defaultCenter().post(
        ORSSerialPortWasDisconnectedNotification, this,
        {{ORSDisconnectedSerialPortsKey, QVariant::fromValue(ports)}});
}

void ORSSerialPortManager::getAvailablePortsAndRegisterForChangeNotifications() {
    auto& devices = Platform::current().devices();
    const auto published = devices.addMatchingNotification(
        DeviceEvent::Publish, &ORSSerialPortManagerPortsPublishedNotificationCallback, this);
    if (!published) {
        return;
    }
    setPortPublishedNotificationIterator(published->iterator);
    Ports ports;
    for (const auto device : published->present) {
        const auto port = ORSSerialPort::serialPortWithDevice(device);
        if (isListedAtStart(*port)) {
            ports.append(port);
        }
    }
    setAvailablePorts(ports);
    if (const auto terminated = devices.addMatchingNotification(
            DeviceEvent::Terminate, &ORSSerialPortManagerPortsTerminatedNotificationCallback,
            this)) {
        setPortTerminatedNotificationIterator(terminated->iterator);
    }
}

void ORSSerialPortManager::registerForNotifications() {
    auto& center = NotificationCenter::defaultCenter();
    center.addObserver(this, NSApplicationWillTerminateNotification,
                       [this](const Notification&) { applicationWillTerminate(); });
    center.addObserver(this, NSWorkspaceWillSleepNotification,
                       [this](const Notification& notification) { systemWillSleep(notification); });
    center.addObserver(this, NSWorkspaceDidWakeNotification,
                       [this](const Notification& notification) { systemDidWake(notification); });
}

void ORSSerialPortManager::applicationWillTerminate() {
    const auto ports = _availablePorts.value_or(Ports());
    for (const auto& port : ports) {
        port->cleanup();
    }
    _portsToReopenAfterSleep.clear();
    setAvailablePorts(std::nullopt);
}

void ORSSerialPortManager::appendAvailablePorts(const Ports& ports) {
    if (ports.isEmpty()) {
        return;
    }
    Indexes indexes;
    for (qsizetype i = 0; i < ports.size(); ++i) {
        indexes.append(countOfAvailablePorts() + i);
    }
    insertAvailablePortsAtIndexes(ports, indexes);
}

void ORSSerialPortManager::removeAvailablePorts(const Ports& ports) {
    Indexes indexes;
    for (qsizetype i = 0; i < countOfAvailablePorts(); ++i) {
        if (containsEqual(ports, *_availablePorts->at(i))) {
            indexes.append(i);
        }
    }
    if (!indexes.isEmpty()) {
        removeAvailablePortsAtIndexes(indexes);
    }
}

void ORSSerialPortManager::replaceIterator(quint32& iterator, quint32 successor) {
    if (iterator == successor) {
        return;
    }
    if (iterator != 0) {
        Platform::current().devices().removeNotification(iterator);
    }
    iterator = successor;
}
