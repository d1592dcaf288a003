#include "platform/linux/UdevSource.h"

#include "platform/Log.h"
#include "platform/VisibleText.h"
#include "platform/linux/DeviceNaming.h"
#include "platform/linux/TtyDevice.h"

#include <QFileInfo>
#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Between the parts of an identity.
constexpr QChar separator = u'#';

/// A text of udev's; null for none.
QString text(const char* bytes) {
    return bytes != nullptr ? QString::fromUtf8(bytes) : QString();
}

QString property(udev_device* device, const char* key) {
    return text(udev_device_get_property_value(device, key));
}

/// The ancestor in the USB tree of that type; it lives as long as the device. nullptr for none.
udev_device* usbAncestor(udev_device* device, const char* type) {
    return udev_device_get_parent_with_subsystem_devtype(device, "usb", type);
}

QString kernelName(udev_device* device) {
    return device != nullptr ? text(udev_device_get_sysname(device)) : QString();
}

/// The adapter's serial number as udev gives it, else as the adapter does, made fit for a name.
QString usbSerialNumber(udev_device* device, udev_device* adapter) {
    auto number = property(device, "ID_SERIAL_SHORT");
    if (number.isEmpty() && adapter != nullptr) {
        number = text(udev_device_get_sysattr_value(adapter, "serial")).trimmed();
    }
    std::replace_if(
        number.begin(), number.end(),
        [](QChar each) {
            return each.category() == QChar::Other_Control || each.isSpace() || each == u'/';
        },
        QChar(u'_'));
    return visibleText(number);
}

/// The device's links that lead to it. Of adapters with equal serial numbers, each claims the
/// link that names the number, and one has it.
QStringList links(udev_device* device, const QString& node) {
    auto found = property(device, "DEVLINKS").split(u' ', Qt::SkipEmptyParts);
    found.removeIf([&](const QString& link) { return QFileInfo(link).symLinkTarget() != node; });
    std::sort(found.begin(), found.end());
    return found;
}

TtyDevice ttyDevice(udev_device* device) {
    auto* const adapter = usbAncestor(device, "usb_device");
    const auto node = text(udev_device_get_devnode(device));
    const auto uartType = text(udev_device_get_sysattr_value(device, "type"));
    return {.kernelName = kernelName(device),
            .node = node,
            .links = links(device, node),
            .usbSerialNumber = usbSerialNumber(device, adapter),
            .usbPath = kernelName(adapter),
            .usbInterface = kernelName(usbAncestor(device, "usb_interface")),
            .hasUart = !uartType.isEmpty() && uartType != u"0",
            .identity = text(udev_device_get_syspath(device))};
}

/// Nothing is read of the consoles then, of which there are dozens.
bool matchNames(udev_enumerate* enumerate) {
    const auto patterns = TtyDevice::kernelNamePatterns();
    return std::all_of(patterns.begin(), patterns.end(), [=](const QByteArray& pattern) {
        return udev_enumerate_add_match_sysname(enumerate, pattern.constData()) >= 0;
    });
}

void complain(const QString& what, int number) {
    logLine(u"%1: %2"_s.arg(what, QString::fromStdString(std::generic_category().message(number))));
}

} // namespace

UdevSource::UdevSource()
    : _udev(udev_new()), _isDaemonRunning(::access("/run/udev/control", F_OK) == 0) {
    if (!_udev) {
        complain(u"Cannot use udev"_s, errno);
        return;
    }
    startMonitor();
}

UdevSource::~UdevSource() = default;

QList<SerialDevice> UdevSource::devices() {
    if (_isStale && _udev) {
        scan();
    }
    return _devices;
}

bool UdevSource::has(const SerialDevice& device) {
    const auto path = device.identity.left(device.identity.indexOf(separator));
    return identityOf(path) == device.identity;
}

/// The number of the device's folder is another one when the device is, even in the same place: so
/// that is known of an adapter whose news udev is still working on, which takes it a fifth of a
/// second.
QString UdevSource::identityOf(const QString& path) const {
    struct stat folder {};
    const bool isThere = ::stat(QFile::encodeName(path).constData(), &folder) == 0;
    return path + separator + QString::number(_removals.value(path)) + separator +
           (isThere ? QString::number(folder.st_ino) : u"gone"_s);
}

void UdevSource::startMonitor() {
    if (!_isDaemonRunning) {
        logLine(u"udev does not run: serial devices that come and go are not noticed"_s);
    }
    _monitor.reset(udev_monitor_new_from_netlink(_udev.get(), "udev"));
    if (!_monitor ||
        udev_monitor_filter_add_match_subsystem_devtype(_monitor.get(), "tty", nullptr) < 0 ||
        udev_monitor_enable_receiving(_monitor.get()) < 0) {
        complain(u"Serial devices that come and go are not noticed"_s, errno);
        _monitor.reset();
        return;
    }
    auto* const notifier =
        new QSocketNotifier(udev_monitor_get_fd(_monitor.get()), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &UdevSource::readEvents);
}

void UdevSource::readEvents() {
    while (const UdevDevice device{udev_monitor_receive_device(_monitor.get())}) {
        if (text(udev_device_get_action(device.get())) == u"remove") {
            ++_removals[text(udev_device_get_syspath(device.get()))];
        }
    }
    // Also when nothing could be read: events that were lost are found by looking.
    _isStale = true;
    Q_EMIT changed();
}

/// Looks anew. When that fails, what was there is taken to be there still: else an open port would
/// be closed for a moment's lack of memory.
void UdevSource::scan() {
    _isStale = false;
    auto found = scanned();
    if (!found) {
        return;
    }
    _devices = std::move(*found);
    std::sort(_devices.begin(), _devices.end(), [](const auto& first, const auto& second) {
        return DeviceNaming::comesNaturallyBefore(first.calloutPath, second.calloutPath);
    });
}

std::optional<QList<SerialDevice>> UdevSource::scanned() const {
    const UdevEnumerate enumerate(udev_enumerate_new(_udev.get()));
    if (!enumerate || udev_enumerate_add_match_subsystem(enumerate.get(), "tty") < 0 ||
        !matchNames(enumerate.get()) || udev_enumerate_scan_devices(enumerate.get()) < 0) {
        complain(u"Cannot list the serial devices"_s, errno);
        return std::nullopt;
    }
    QList<SerialDevice> found;
    udev_list_entry* entry = nullptr;
    udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(enumerate.get())) {
        const UdevDevice device(
            udev_device_new_from_syspath(_udev.get(), udev_list_entry_get_name(entry)));
        if (!device || !isReady(device.get())) {
            continue;
        }
        auto tty = ttyDevice(device.get());
        tty.identity = identityOf(tty.identity);
        if (const auto serial = tty.serialDevice()) {
            found.append(*serial);
        }
    }
    return found;
}

/// A device that udev is still working on has no properties and perhaps not its permissions; its
/// event is yet to come.
bool UdevSource::isReady(udev_device* device) const {
    return udev_device_get_devnode(device) != nullptr &&
           (!_isDaemonRunning || !::property(device, "USEC_INITIALIZED").isNull());
}
