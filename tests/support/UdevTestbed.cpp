#include "tests/support/UdevTestbed.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <sys/stat.h>
#include <umockdev.h>
#include <unistd.h>
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
    Pairs usbAttributes{{"idVendor", adapter.vendor.toUtf8()},
                        {"idProduct", adapter.product.toUtf8()}};
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
    for (const auto& each : adapter.properties) {
        properties.append({each.section(u'=', 0, 0).toUtf8(), each.section(u'=', 1).toUtf8()});
    }
    for (const auto& each : adapter.links) {
        link(each, adapter.kernelName);
    }
    return add(_testbed, "tty", adapter.kernelName, addChannel(adapter, interface),
               {{"dev", "188:0"}}, properties);
}

/// What stands between the interface and the terminal, where the adapter has a timer.
QString UdevTestbed::addChannel(const Adapter& adapter, const QString& interface) {
    if (adapter.latency.isNull()) {
        return interface;
    }
    return add(_testbed, "usb-serial", adapter.kernelName, interface,
               {{"latency_timer", adapter.latency.toUtf8() + '\n'}}, {});
}

void UdevTestbed::addAdapterWithoutPort(const QString& place, const QString& vendor,
                                        const QString& product, const QString& driver) {
    const auto usb = add(_testbed, "usb", place, QString(),
                         {{"idVendor", vendor.toUtf8()}, {"idProduct", product.toUtf8()}},
                         {{"DEVTYPE", "usb_device"}});
    const auto interface =
        add(_testbed, "usb", place + u":1.0"_s, usb, {}, {{"DEVTYPE", "usb_interface"}});
    if (!driver.isNull()) {
        const auto target = u"../../../bus/usb/drivers/"_s + driver;
        umockdev_testbed_set_attribute_link(_testbed, interface.toUtf8().constData(), "driver",
                                            target.toUtf8().constData());
    }
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

void UdevTestbed::setNodeMode(const QString& kernelName, unsigned mode) {
    const auto path = QFile::encodeName(root() + u"/dev/"_s + kernelName);
    const int node = ::open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, mode);
    if (node < 0 || ::fchmod(node, mode) != 0 || ::close(node) != 0) {
        throw std::runtime_error("The node could not be made.");
    }
    // Others see what is in it as they see a real /dev.
    if (::chmod(QFile::encodeName(root()).constData(), 0755) != 0) {
        throw std::runtime_error("The folder could not be opened to others.");
    }
}
