#include "portcheck/linux/UsbReader.h"

#include "portcheck/SerialChips.h"
#include "serial/DeviceUsers.h"

#include <algorithm>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A text of udev's; null for none.
QString text(const char* bytes) {
    return bytes != nullptr ? QString::fromUtf8(bytes) : QString();
}

udev_device* adapterOf(udev_device* terminal) {
    return udev_device_get_parent_with_subsystem_devtype(terminal, "usb", "usb_device");
}

UsbChip chipOf(udev_device* adapter) {
    return {.vendor = text(udev_device_get_sysattr_value(adapter, "idVendor")).trimmed(),
            .product = text(udev_device_get_sysattr_value(adapter, "idProduct")).trimmed()};
}

/// Whether the terminal or its adapter has a property, with any value but 0.
bool has(udev_device* terminal, const char* key) {
    const auto isSet = [key](udev_device* device) {
        const auto value =
            device != nullptr ? text(udev_device_get_property_value(device, key)) : QString();
        return !value.isEmpty() && value != "0"_L1;
    };
    return isSet(terminal) || isSet(adapterOf(terminal));
}

void describeLatency(PortFacts& port, udev_device* terminal) {
    auto* const channel =
        udev_device_get_parent_with_subsystem_devtype(terminal, "usb-serial", nullptr);
    if (channel == nullptr) {
        return;
    }
    port.latency = text(udev_device_get_sysattr_value(channel, "latency_timer")).toInt();
    const auto path = QByteArray(udev_device_get_syspath(channel)) + "/latency_timer";
    port.isLatencyWritable = ::access(path.constData(), W_OK) == 0;
}

} // namespace

UsbReader::UsbReader() : _udev(udev_new()), _terminals(devicesOf("tty")), _usb(devicesOf("usb")) {}

std::vector<UdevDevice> UsbReader::devicesOf(const char* subsystem) const {
    std::vector<UdevDevice> found;
    const UdevEnumerate enumerate(_udev ? udev_enumerate_new(_udev.get()) : nullptr);
    if (!enumerate || udev_enumerate_add_match_subsystem(enumerate.get(), subsystem) < 0 ||
        udev_enumerate_scan_devices(enumerate.get()) < 0) {
        return found;
    }
    udev_list_entry* entry = nullptr;
    udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(enumerate.get())) {
        UdevDevice device(
            udev_device_new_from_syspath(_udev.get(), udev_list_entry_get_name(entry)));
        if (device) {
            found.push_back(std::move(device));
        }
    }
    return found;
}

void UsbReader::describe(PortFacts& port) const {
    const auto found = std::ranges::find_if(_terminals, [&](const UdevDevice& each) {
        return text(udev_device_get_devnode(each.get())) == port.node;
    });
    auto* const terminal = found != _terminals.end() ? found->get() : nullptr;
    auto* const adapter = terminal != nullptr ? adapterOf(terminal) : nullptr;
    if (adapter == nullptr) {
        return;
    }
    port.isUsb = true;
    port.chip = chipOf(adapter);
    port.isForTheSeatedUser =
        text(udev_device_get_property_value(terminal, "TAGS")).contains(":uaccess:"_L1);
    port.isNoModem = has(terminal, "ID_MM_PORT_IGNORE") || has(terminal, "ID_MM_DEVICE_IGNORE");
    port.isForBraille = has(terminal, "BRLTTY_BRAILLE_DRIVER");
    describeLatency(port, terminal);
}

QList<AdapterFacts> UsbReader::adaptersWithoutPort() const {
    QList<AdapterFacts> found;
    for (const auto& device : _usb) {
        const auto path = text(udev_device_get_syspath(device.get()));
        const auto chip = chipOf(device.get());
        const bool hasPort = std::ranges::any_of(_terminals, [&](const UdevDevice& each) {
            return text(udev_device_get_syspath(each.get())).startsWith(path + u'/');
        });
        if (text(udev_device_get_devtype(device.get())) != "usb_device"_L1 || hasPort ||
            SerialChips::find(chip) == nullptr) {
            continue;
        }
        const auto node = text(udev_device_get_devnode(device.get()));
        found.append({.place = text(udev_device_get_sysname(device.get())),
                      .chip = chip,
                      .driver = driverOf(path),
                      .users = node.isNull() ? QStringList() : DeviceUsers::of(node)});
    }
    return found;
}

/// That of the adapter's interfaces, of which one that a program has taken away counts first.
QString UsbReader::driverOf(const QString& adapterPath) const {
    QString driver;
    for (const auto& device : _usb) {
        const auto its = text(udev_device_get_driver(device.get()));
        if (text(udev_device_get_syspath(device.get())).startsWith(adapterPath + u'/') &&
            text(udev_device_get_devtype(device.get())) == "usb_interface"_L1 && !its.isNull() &&
            driver != "usbfs"_L1) {
            driver = its;
        }
    }
    return driver;
}
