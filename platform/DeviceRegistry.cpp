#include "platform/DeviceRegistry.h"

#include <QScopedValueRollback>

#include <algorithm>

DeviceRegistry::DeviceRegistry(QObject* parent) : QObject(parent) {}

DeviceRegistry::~DeviceRegistry() = default;

bool DeviceRegistry::isThere(DeviceHandle device) {
    return _present.contains(device);
}

std::optional<DeviceNotification> DeviceRegistry::addMatchingNotification(DeviceEvent event,
                                                                          DeviceCallback callback,
                                                                          QObject* context) {
    _registrations.append({++_lastIterator, event, callback, context});
    return DeviceNotification{_lastIterator, _present};
}

void DeviceRegistry::removeNotification(quint32 iterator) {
    _registrations.removeIf(
        [iterator](const Registration& each) { return each.iterator == iterator; });
}

QString DeviceRegistry::stringProperty(DeviceHandle device, const QString& key) const {
    return _properties.value(device).value(key);
}

void DeviceRegistry::retain(DeviceHandle device) {
    if (_properties.contains(device)) {
        _retained.insert(device);
    }
}

void DeviceRegistry::holdAnnouncements() {
    ++_holds;
}

void DeviceRegistry::resumeAnnouncements() {
    if (--_holds == 0) {
        QMetaObject::invokeMethod(this, &DeviceRegistry::announce, Qt::QueuedConnection);
    }
}

DeviceHandle DeviceRegistry::add(const Properties& properties) {
    _properties.insert(++_lastDevice, properties);
    _present.append(_lastDevice);
    return _lastDevice;
}

void DeviceRegistry::strike(const QList<DeviceHandle>& devices) {
    _present.removeIf([&](DeviceHandle each) { return devices.contains(each); });
}

void DeviceRegistry::reorder(const QList<DeviceHandle>& devices) {
    _present = devices;
}

void DeviceRegistry::enqueue(DeviceEvent event, const QList<DeviceHandle>& devices) {
    auto announced = devices;
    if (event == DeviceEvent::Terminate) {
        announced.removeIf([this](DeviceHandle device) { return takeBack(device); });
    }
    if (!announced.isEmpty()) {
        _announcements.append({event, announced, _lastIterator});
    }
}

/// Drops an arrival that nobody has been told of, and returns whether there was one. Whoever
/// registered since then was told that the device is present.
bool DeviceRegistry::takeBack(DeviceHandle device) {
    const auto arrival =
        std::find_if(_announcements.begin(), _announcements.end(), [&](const Announcement& each) {
            return each.event == DeviceEvent::Publish && each.devices.contains(device) &&
                   each.lastIterator == _lastIterator;
        });
    if (arrival == _announcements.end()) {
        return false;
    }
    arrival->devices.removeOne(device);
    if (arrival->devices.isEmpty()) {
        _announcements.erase(arrival);
    }
    forgetUnlessNeeded(device);
    return true;
}

void DeviceRegistry::announce() {
    if (_isAnnouncing) {
        return;
    }
    const QScopedValueRollback guard(_isAnnouncing, true);
    while (!_announcements.isEmpty() && _holds == 0) {
        announceNext();
    }
}

void DeviceRegistry::announceNext() {
    const auto announcement = _announcements.takeFirst();
    const auto registrations = _registrations;
    for (const auto& each : registrations) {
        if (each.event == announcement.event && each.iterator <= announcement.lastIterator &&
            each.context && isRegistered(each.iterator)) {
            each.callback(each.context, announcement.devices);
        }
    }
    for (const auto device : announcement.devices) {
        forgetUnlessNeeded(device);
    }
}

qsizetype DeviceRegistry::registrationCount(DeviceEvent event) const {
    return std::count_if(_registrations.begin(), _registrations.end(),
                         [event](const Registration& each) { return each.event == event; });
}

bool DeviceRegistry::isRegistered(quint32 iterator) const {
    return std::any_of(_registrations.begin(), _registrations.end(),
                       [iterator](const Registration& each) { return each.iterator == iterator; });
}

bool DeviceRegistry::isAwaited(DeviceHandle device) const {
    return std::any_of(
        _announcements.begin(), _announcements.end(),
        [device](const Announcement& each) { return each.devices.contains(device); });
}

void DeviceRegistry::forgetUnlessNeeded(DeviceHandle device) {
    if (!_present.contains(device) && !isAwaited(device) && !_retained.contains(device)) {
        _properties.remove(device);
    }
}
