#include "tests/support/FakeDeviceRegistry.h"

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
        arrived.append(add(properties));
    }
    enqueue(DeviceEvent::Publish, arrived);
    announce();
    return arrived;
}

DeviceHandle FakeDeviceRegistry::plug(const QString& name, const QString& calloutPath,
                                      const QString& dialinPath) {
    return plug({device(name, calloutPath, dialinPath)}).constFirst();
}

void FakeDeviceRegistry::unplug(const QList<DeviceHandle>& devices) {
    strike(devices);
    enqueue(DeviceEvent::Terminate, devices);
    announce();
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

std::optional<QList<DeviceHandle>> FakeDeviceRegistry::matchingDevices() {
    return _matchingFails ? std::nullopt : DeviceRegistry::matchingDevices();
}

bool FakeDeviceRegistry::isThere(DeviceHandle device) {
    return !_vanished.contains(device) && DeviceRegistry::isThere(device);
}

std::optional<DeviceNotification>
FakeDeviceRegistry::addMatchingNotification(DeviceEvent event, DeviceCallback callback,
                                            QObject* context) {
    return _failingEvents.contains(event)
               ? std::nullopt
               : DeviceRegistry::addMatchingNotification(event, callback, context);
}

void FakeDeviceRegistry::retain(DeviceHandle device) {
    ++_retains[device];
}
