#include "tests/platform/linux/UdevTestbed.h"

#include <QDir>
#include <QFile>

#include <filesystem>
#include <stdexcept>
#include <umockdev.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Pairs = QList<std::pair<QByteArray, QByteArray>>;

/// Names and values in turn, ended by nothing, as umockdev takes them. `pairs` must stay.
QList<char*> flattened(Pairs& pairs) {
    QList<char*> flat;
    for (auto& [name, value] : pairs) {
        flat.append(name.data());
        flat.append(value.data());
    }
    flat.append(nullptr);
    return flat;
}

QString add(UMockdevTestbed* testbed, const QByteArray& subsystem, const QString& name,
            const QString& parent, Pairs attributes, Pairs properties) {
    const auto parentPath = parent.toUtf8();
    gchar* const path =
        umockdev_testbed_add_devicev(testbed, subsystem.constData(), name.toUtf8().constData(),
                                     parent.isNull() ? nullptr : parentPath.constData(),
                                     flattened(attributes).data(), flattened(properties).data());
    if (path == nullptr) {
        throw std::runtime_error("umockdev did not add the device");
    }
    auto result = QString::fromUtf8(path);
    g_free(path);
    return result;
}

} // namespace

UdevTestbed::UdevTestbed() : _testbed(umockdev_testbed_new()) {
    if (!umockdev_in_mock_environment()) {
        throw std::runtime_error(
            "This test needs umockdev: run it through ctest or umockdev-wrapper.");
    }
}

UdevTestbed::~UdevTestbed() {
    g_object_unref(_testbed);
}

QString UdevTestbed::addAdapter(const Adapter& adapter) {
    const bool hasNumber = !adapter.serialNumber.isNull();
    const auto number = adapter.serialNumber.toUtf8();
    const auto node = adapter.kernelName.toUtf8();
    Pairs usbAttributes{{"idVendor", "0403"}, {"idProduct", "6001"}};
    if (hasNumber) {
        usbAttributes.append({"serial", number + '\n'});
    }
    const auto usb =
        add(_testbed, "usb", adapter.place, QString(), usbAttributes, {{"DEVTYPE", "usb_device"}});
    const auto interface =
        add(_testbed, "usb", adapter.place + u":1.0"_s, usb, {}, {{"DEVTYPE", "usb_interface"}});
    Pairs properties{{"DEVNAME", "/dev/" + node}, {"USEC_INITIALIZED", "1"}};
    if (hasNumber && adapter.isNumberKnownToUdev) {
        properties.append({"ID_SERIAL_SHORT", number});
    }
    if (!adapter.links.isEmpty()) {
        properties.append({"DEVLINKS", adapter.links.join(u' ').toUtf8()});
    }
    for (const auto& each : adapter.links) {
        link(each, adapter.kernelName);
    }
    return add(_testbed, "tty", adapter.kernelName, interface, {{"dev", "188:0"}}, properties);
}

QString UdevTestbed::addPort(const QString& kernelName, const QString& type) {
    Pairs attributes{{"dev", "4:64"}};
    if (!type.isNull()) {
        attributes.append({"type", type.toUtf8() + '\n'});
    }
    return add(_testbed, "tty", kernelName, QString(), attributes,
               {{"DEVNAME", "/dev/" + kernelName.toUtf8()}, {"USEC_INITIALIZED", "1"}});
}

void UdevTestbed::remove(const QString& path) {
    umockdev_testbed_remove_device(_testbed, path.toUtf8().constData());
}

void UdevTestbed::replace(const QString& path) {
    const std::filesystem::path folder = (root() + path).toStdString();
    const auto old = folder.parent_path() / "old";
    std::filesystem::rename(folder, old);
    std::filesystem::copy(old, folder,
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::copy_symlinks);
    std::filesystem::remove_all(old);
}

QString UdevTestbed::root() const {
    gchar* const name = umockdev_testbed_get_root_dir(_testbed);
    auto root = QString::fromUtf8(name);
    g_free(name);
    return root;
}

void UdevTestbed::announce(const QString& path, const QString& action) {
    umockdev_testbed_uevent(_testbed, path.toUtf8().constData(), action.toUtf8().constData());
}

void UdevTestbed::link(const QString& link, const QString& kernelName) {
    const QString place = root() + link;
    QDir().mkpath(QFileInfo(place).path());
    QFile::remove(place);
    // A link that leads nowhere would not be seen.
    QFile node(root() + u"/dev/"_s + kernelName);
    if (!node.open(QIODevice::WriteOnly)) {
        throw std::runtime_error("The node could not be made.");
    }
    if (!QFile::link(QString(u"../"_s).repeated(link.count(u'/') - 2) + kernelName, place)) {
        throw std::runtime_error("The link could not be made.");
    }
}
