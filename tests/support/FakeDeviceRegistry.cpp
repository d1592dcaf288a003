#include "tests/support/FakeDeviceRegistry.h"

#include <algorithm>

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
    announce(DeviceEvent::Publish, arrived);
    return arrived;
}

DeviceHandle FakeDeviceRegistry::plug(const QString& name, const QString& calloutPath,
                                      const QString& dialinPath) {
    return plug({device(name, calloutPath, dialinPath)}).constFirst();
}

void FakeDeviceRegistry::unplug(const QList<DeviceHandle>& devices) {
    _present.removeIf([&](DeviceHandle each) { return devices.contains(each); });
    announce(DeviceEvent::Terminate, devices);
    for (const auto handle : devices) {
        forgetUnlessNeeded(handle);
    }
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
    --_retains[device];
    forgetUnlessNeeded(device);
}

void FakeDeviceRegistry::announce(DeviceEvent event, const QList<DeviceHandle>& devices) {
    const auto registrations = _registrations;
    for (const auto& each : registrations) {
        if (each.event == event) {
            each.callback(each.context, devices);
        }
    }
}

void FakeDeviceRegistry::forgetUnlessNeeded(DeviceHandle device) {
    if (!_present.contains(device) && retainCount(device) <= 0) {
        _properties.remove(device);
    }
}
