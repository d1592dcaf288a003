#include "platform/linux/LinuxDeviceRegistry.h"

#include "platform/linux/DeviceNaming.h"
#include "platform/linux/PortsDirectorySource.h"
#include "platform/linux/UdevSource.h"

#include <QScopedValueRollback>

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

void runInNextPass(QTimer& timer) {
    timer.setSingleShot(true);
    timer.setInterval(0);
}

} // namespace

LinuxDeviceRegistry::LinuxDeviceRegistry() : LinuxDeviceRegistry(standardSources()) {}

LinuxDeviceRegistry::LinuxDeviceRegistry(Sources sources) : _sources(std::move(sources)) {
    runInNextPass(_refreshSoon);
    runInNextPass(_announceSoon);
    connect(&_refreshSoon, &QTimer::timeout, this, [this] {
        refresh();
        announce();
    });
    connect(&_announceSoon, &QTimer::timeout, this, &LinuxDeviceRegistry::announce);
    connect(this, &DeviceRegistry::announcementsResumed, &_announceSoon,
            qOverload<>(&QTimer::start));
    for (const auto& source : _sources) {
        connect(source.get(), &DeviceSource::changed, &_refreshSoon, qOverload<>(&QTimer::start));
    }
    refresh();
    announce();
}

LinuxDeviceRegistry::~LinuxDeviceRegistry() = default;

std::optional<QList<DeviceHandle>> LinuxDeviceRegistry::matchingDevices() {
    return _present;
}

std::optional<DeviceNotification>
LinuxDeviceRegistry::addMatchingNotification(DeviceEvent event, DeviceCallback callback,
                                             QObject* context) {
    _registrations.append({++_lastIterator, event, callback, context});
    return DeviceNotification{_lastIterator, _present};
}

void LinuxDeviceRegistry::removeNotification(quint32 iterator) {
    _registrations.removeIf(
        [iterator](const Registration& each) { return each.iterator == iterator; });
}

QString LinuxDeviceRegistry::stringProperty(DeviceHandle device, const QString& key) const {
    const auto found = _entries.find(device);
    if (found == _entries.end()) {
        return {};
    }
    if (key == DeviceKey::calloutDevice) {
        return found->device.calloutPath;
    }
    if (key == DeviceKey::dialinDevice) {
        return found->device.dialinPath;
    }
    if (key == DeviceKey::ttyDevice) {
        return found->name();
    }
    if (key == DeviceKey::ttyBaseName) {
        return found->device.baseName;
    }
    if (key == DeviceKey::ttySuffix) {
        return found->suffix.isNull() ? u""_s : found->suffix;
    }
    return key == DeviceKey::clientType ? u"IOSerialStream"_s : QString();
}

void LinuxDeviceRegistry::retain(DeviceHandle device) {
    if (const auto found = _entries.find(device); found != _entries.end()) {
        ++found->holders;
    }
}

void LinuxDeviceRegistry::release(DeviceHandle device) {
    const auto found = _entries.find(device);
    if (found == _entries.end() || found->holders == 0) {
        return;
    }
    if (--found->holders == 0 && found->listings == 0) {
        _entries.erase(found);
    }
}

void LinuxDeviceRegistry::unlist(DeviceHandle device) {
    const auto found = _entries.find(device);
    if (--found->listings == 0 && found->holders == 0) {
        _entries.erase(found);
    }
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
    sort(_present);
}

QList<SerialDevice> LinuxDeviceRegistry::devicesOfSources() const {
    QList<SerialDevice> found;
    for (const auto& source : _sources) {
        found.append(source->devices());
    }
    return found;
}

/// Strikes the devices that have gone off the list, and returns them. They stay listed, for the
/// announcement that the caller makes of them.
QList<DeviceHandle> LinuxDeviceRegistry::forgetAllBut(const QSet<QString>& identities) {
    QList<DeviceHandle> gone;
    _present.removeIf([&](DeviceHandle handle) {
        const bool isGone = !identities.contains(_entries[handle].device.identity);
        if (isGone) {
            gone.append(handle);
        }
        return isGone;
    });
    return gone;
}

QList<DeviceHandle> LinuxDeviceRegistry::addNew(const QList<SerialDevice>& found) {
    QSet<QString> paths;
    for (const auto handle : std::as_const(_present)) {
        paths.insert(_entries[handle].device.calloutPath);
    }
    QList<DeviceHandle> arrived;
    for (const auto& device : found) {
        if (!paths.contains(device.calloutPath)) {
            paths.insert(device.calloutPath);
            arrived.append(add(device));
        }
    }
    return arrived;
}

DeviceHandle LinuxDeviceRegistry::add(const SerialDevice& device) {
    QSet<QString> names;
    for (const auto handle : std::as_const(_present)) {
        names.insert(_entries[handle].name());
    }
    _entries.insert(
        ++_lastDevice,
        {.device = device, .suffix = DeviceNaming::freeSuffix(device, names), .listings = 1});
    _present.append(_lastDevice);
    return _lastDevice;
}

void LinuxDeviceRegistry::sort(QList<DeviceHandle>& devices) const {
    std::stable_sort(devices.begin(), devices.end(), [this](DeviceHandle left, DeviceHandle right) {
        const auto& first = *_entries.constFind(left);
        const auto& second = *_entries.constFind(right);
        return first.device.isUsb != second.device.isUsb
                   ? first.device.isUsb
                   : DeviceNaming::comesNaturallyBefore(first.name(), second.name());
    });
}

void LinuxDeviceRegistry::enqueue(DeviceEvent event, QList<DeviceHandle> devices) {
    if (devices.isEmpty()) {
        return;
    }
    sort(devices);
    if (event == DeviceEvent::Publish) {
        for (const auto device : std::as_const(devices)) {
            ++_entries[device].listings;
        }
    }
    _announcements.append({event, devices, _lastIterator});
}

/// Tells of everything that waits, in order, and never of one set while another one is being
/// handled, even if its handler runs an event loop.
void LinuxDeviceRegistry::announce() {
    if (_isAnnouncing) {
        return;
    }
    const QScopedValueRollback guard(_isAnnouncing, true);
    while (!_announcements.isEmpty() && !areAnnouncementsHeld()) {
        announceNext();
    }
}

void LinuxDeviceRegistry::announceNext() {
    const auto announcement = _announcements.takeFirst();
    const auto registrations = _registrations;
    for (const auto& each : registrations) {
        if (each.event == announcement.event && each.iterator <= announcement.lastIterator &&
            each.context && isRegistered(each.iterator)) {
            each.callback(each.context, announcement.devices);
        }
    }
    for (const auto device : announcement.devices) {
        unlist(device);
    }
}

bool LinuxDeviceRegistry::isRegistered(quint32 iterator) const {
    return std::any_of(_registrations.begin(), _registrations.end(),
                       [iterator](const Registration& each) { return each.iterator == iterator; });
}
