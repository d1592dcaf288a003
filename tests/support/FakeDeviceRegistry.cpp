#include "tests/support/FakeDeviceRegistry.h"

#include <QScopedValueRollback>

#include <algorithm>

FakeDeviceRegistry::FakeDeviceRegistry() {
    connect(this, &DeviceRegistry::announcementsResumed, this, &FakeDeviceRegistry::announceWaiting,
            Qt::QueuedConnection);
}

FakeDeviceRegistry::Properties FakeDeviceRegistry::device(const QString& name,
                                                          const QString& calloutPath,
                                                          const QString& dialinPath) {
    return {{DeviceKey::ttyDevice, name},
            {DeviceKey::ttyBaseName, name},
            {DeviceKey::calloutDevice, calloutPath},
            {DeviceKey::dialinDevice, dialinPath.isNull() ? calloutPath : dialinPath}};
}

QList<DeviceHandle> FakeDeviceRegistry::plug(const QList<Properties>& devices) {
    QList<DeviceHandle> arrived;
    for (const auto& properties : devices) {
        const auto handle = ++_lastHandle;
        _properties.insert(handle, properties);
        arrived.append(handle);
    }
    _present.append(arrived);
    enqueue(DeviceEvent::Publish, arrived);
    return arrived;
}

DeviceHandle FakeDeviceRegistry::plug(const QString& name, const QString& calloutPath,
                                      const QString& dialinPath) {
    return plug({device(name, calloutPath, dialinPath)}).constFirst();
}

void FakeDeviceRegistry::unplug(const QList<DeviceHandle>& devices) {
    _present.removeIf([&](DeviceHandle each) { return devices.contains(each); });
    enqueue(DeviceEvent::Terminate, devices);
}

void FakeDeviceRegistry::unplug(DeviceHandle device) {
    unplug(QList{device});
}

void FakeDeviceRegistry::failNotifications(DeviceEvent event, bool fails) {
    _failingEvents.removeAll(event);
    if (fails) {
        _failingEvents.append(event);
    }
}

int FakeDeviceRegistry::retainCount(DeviceHandle device) const {
    return _retains.value(device);
}

qsizetype FakeDeviceRegistry::registrationCount(DeviceEvent event) const {
    return std::count_if(_registrations.begin(), _registrations.end(),
                         [event](const auto& each) { return each.event == event; });
}

std::optional<QList<DeviceHandle>> FakeDeviceRegistry::matchingDevices() {
    return _matchingFails ? std::nullopt : std::optional(_present);
}

std::optional<DeviceNotification>
FakeDeviceRegistry::addMatchingNotification(DeviceEvent event, DeviceCallback callback,
                                            QObject* context) {
    if (_failingEvents.contains(event)) {
        return {};
    }
    _registrations.append({++_lastIterator, event, callback, context});
    return DeviceNotification{_lastIterator, _present};
}

void FakeDeviceRegistry::removeNotification(quint32 iterator) {
    _registrations.removeIf([=](const auto& each) { return each.iterator == iterator; });
}

QString FakeDeviceRegistry::stringProperty(DeviceHandle device, const QString& key) const {
    return _properties.value(device).value(key);
}

void FakeDeviceRegistry::retain(DeviceHandle device) {
    ++_retains[device];
}

void FakeDeviceRegistry::release(DeviceHandle device) {
    if (--_retains[device] == 0) {
        _retains.remove(device);
    }
    forgetUnlessNeeded(device);
}

void FakeDeviceRegistry::enqueue(DeviceEvent event, const QList<DeviceHandle>& devices) {
    const bool isFirst = _announcements.isEmpty();
    _announcements.append({event, devices, _lastIterator});
    if (isFirst) {
        announceWaiting();
    }
}

void FakeDeviceRegistry::announceWaiting() {
    if (_isAnnouncing) {
        return;
    }
    const QScopedValueRollback guard(_isAnnouncing, true);
    while (!_announcements.isEmpty() && !areAnnouncementsHeld()) {
        const auto announcement = _announcements.takeFirst();
        announce(announcement);
        for (const auto device : announcement.devices) {
            forgetUnlessNeeded(device);
        }
    }
}

void FakeDeviceRegistry::announce(const Announcement& announcement) {
    const auto registrations = _registrations;
    for (const auto& each : registrations) {
        if (each.event == announcement.event && each.iterator <= announcement.lastIterator &&
            isRegistered(each.iterator)) {
            each.callback(each.context, announcement.devices);
        }
    }
}

bool FakeDeviceRegistry::isRegistered(quint32 iterator) const {
    return std::any_of(_registrations.begin(), _registrations.end(),
                       [iterator](const auto& each) { return each.iterator == iterator; });
}

bool FakeDeviceRegistry::isAwaited(DeviceHandle device) const {
    return std::any_of(_announcements.begin(), _announcements.end(),
                       [device](const auto& each) { return each.devices.contains(device); });
}

void FakeDeviceRegistry::forgetUnlessNeeded(DeviceHandle device) {
    if (!_present.contains(device) && !isAwaited(device) && retainCount(device) <= 0) {
        _properties.remove(device);
    }
}
