#include "platform/linux/LinuxDeviceRegistry.h"

#include "platform/linux/DeviceNaming.h"
#include "platform/linux/PortsDirectorySource.h"
#include "platform/linux/UdevSource.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

LinuxDeviceRegistry::Sources standardSources() {
    LinuxDeviceRegistry::Sources sources;
    sources.push_back(std::make_unique<UdevSource>());
    sources.push_back(std::make_unique<PortsDirectorySource>(PortsDirectorySource::standardPath()));
    return sources;
}

/// The properties of a device that goes by this suffix.
QHash<QString, QString> propertiesOf(const SerialDevice& device, const QString& suffix) {
    return {{DeviceKey::calloutDevice, device.calloutPath},
            {DeviceKey::dialinDevice, device.dialinPath},
            {DeviceKey::ttyDevice, device.baseName + suffix},
            {DeviceKey::ttyBaseName, device.baseName},
            {DeviceKey::ttySuffix, suffix.isNull() ? u""_s : suffix},
            {DeviceKey::clientType, u"IOSerialStream"_s}};
}

} // namespace

LinuxDeviceRegistry::LinuxDeviceRegistry() : LinuxDeviceRegistry(standardSources()) {}

LinuxDeviceRegistry::LinuxDeviceRegistry(Sources sources) : _sources(std::move(sources)) {
    _refreshSoon.setSingleShot(true);
    _refreshSoon.setInterval(0);
    connect(&_refreshSoon, &QTimer::timeout, this, [this] {
        refresh();
        announce();
    });
    for (const auto& source : _sources) {
        connect(source.get(), &DeviceSource::changed, &_refreshSoon, qOverload<>(&QTimer::start));
    }
    refresh();
    announce();
}

LinuxDeviceRegistry::~LinuxDeviceRegistry() = default;

bool LinuxDeviceRegistry::isThere(DeviceHandle device) {
    const auto described = _described.constFind(device);
    return described != _described.constEnd() &&
           std::any_of(_sources.begin(), _sources.end(),
                       [&](const auto& source) { return source->has(*described); });
}

/// Compares what the sources have with what is known, and notes what is to be announced.
void LinuxDeviceRegistry::refresh() {
    const auto found = devicesOfSources();
    QSet<QString> identities;
    for (const auto& device : found) {
        identities.insert(device.identity);
    }
    enqueue(DeviceEvent::Terminate, forgetAllBut(identities));
    enqueue(DeviceEvent::Publish, addNew(found));
    reorder(sorted(present()));
}

QList<SerialDevice> LinuxDeviceRegistry::devicesOfSources() const {
    QList<SerialDevice> found;
    for (const auto& source : _sources) {
        found.append(source->devices());
    }
    return found;
}

/// Strikes the devices that have gone off the list, and returns them in the order of the list.
QList<DeviceHandle> LinuxDeviceRegistry::forgetAllBut(const QSet<QString>& identities) {
    QList<DeviceHandle> gone;
    for (const auto handle : present()) {
        if (!identities.contains(_described[handle].identity)) {
            gone.append(handle);
        }
    }
    strike(gone);
    _described.removeIf([&](const auto& each) { return gone.contains(each.key()); });
    return gone;
}

/// Lists the devices whose node is not listed yet, and returns them in the order of the list.
QList<DeviceHandle> LinuxDeviceRegistry::addNew(const QList<SerialDevice>& found) {
    QSet<QString> paths;
    for (const auto& device : std::as_const(_described)) {
        paths.insert(device.calloutPath);
    }
    QList<DeviceHandle> arrived;
    for (const auto& device : found) {
        if (!paths.contains(device.calloutPath)) {
            paths.insert(device.calloutPath);
            arrived.append(add(device));
        }
    }
    return sorted(arrived);
}

DeviceHandle LinuxDeviceRegistry::add(const SerialDevice& device) {
    QSet<QString> names;
    for (const auto handle : present()) {
        names.insert(nameOf(handle));
    }
    const auto suffix = DeviceNaming::freeSuffix(device, names);
    const auto handle = DeviceRegistry::add(propertiesOf(device, suffix));
    _described.insert(handle, device);
    return handle;
}

QString LinuxDeviceRegistry::nameOf(DeviceHandle device) const {
    return stringProperty(device, DeviceKey::ttyDevice);
}

/// USB first, and each in natural order.
QList<DeviceHandle> LinuxDeviceRegistry::sorted(QList<DeviceHandle> devices) const {
    std::stable_sort(devices.begin(), devices.end(), [this](DeviceHandle left, DeviceHandle right) {
        const bool isUsb = _described[left].isUsb;
        return isUsb != _described[right].isUsb
                   ? isUsb
                   : DeviceNaming::comesNaturallyBefore(nameOf(left), nameOf(right));
    });
    return devices;
}
