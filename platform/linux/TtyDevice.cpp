#include "platform/linux/TtyDevice.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

enum class Kind { Usb, Uart, Bluetooth };

struct Family {
    QLatin1StringView kernelName;
    Kind kind;
    QLatin1StringView baseName;
};

constexpr std::array families{
    Family{"ttyUSB"_L1, Kind::Usb, "usbserial-"_L1},
    Family{"ttyACM"_L1, Kind::Usb, "usbmodem-"_L1},
    Family{"ttyS"_L1, Kind::Uart, "ttyS"_L1},
    Family{"ttyAMA"_L1, Kind::Uart, "ttyAMA"_L1},
    Family{"rfcomm"_L1, Kind::Bluetooth, "Bluetooth-rfcomm"_L1},
};

bool isNumber(QStringView text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(),
                                          [](QChar each) { return each >= u'0' && each <= u'9'; });
}

/// A serial number is best, for it stays with the adapter; what tells equal ones apart comes next.
/// The kernel's name, which no two have, is the last resort.
QStringList usbSuffixes(const TtyDevice& tty) {
    const QStringList places{tty.usbPath, tty.usbInterface, tty.kernelName};
    QStringList suffixes{tty.usbSerialNumber};
    for (const auto& place : places) {
        if (!place.isEmpty()) {
            suffixes.append(tty.usbSerialNumber.isEmpty() ? place
                                                          : tty.usbSerialNumber + u'-' + place);
        }
    }
    suffixes.removeAll(QString());
    return suffixes;
}

QString stableLink(const TtyDevice& tty) {
    for (const auto directory : {"/dev/serial/by-id/"_L1, "/dev/serial/by-path/"_L1}) {
        const auto found =
            std::find_if(tty.links.begin(), tty.links.end(),
                         [&](const QString& link) { return link.startsWith(directory); });
        if (found != tty.links.end()) {
            return *found;
        }
    }
    return tty.node;
}

} // namespace

QByteArrayList TtyDevice::kernelNamePatterns() {
    QByteArrayList patterns;
    for (const auto& family : families) {
        patterns.append(QByteArray(family.kernelName.data(), family.kernelName.size()) + '*');
    }
    return patterns;
}

std::optional<SerialDevice> TtyDevice::serialDevice() const {
    const auto* const family = std::find_if(families.begin(), families.end(), [&](const auto& one) {
        return kernelName.startsWith(one.kernelName) &&
               isNumber(QStringView(kernelName).sliced(one.kernelName.size()));
    });
    if (family == families.end() || (family->kind == Kind::Uart && !hasUart)) {
        return std::nullopt;
    }
    const bool isUsb = family->kind == Kind::Usb;
    return SerialDevice{.identity = identity,
                        .isUsb = isUsb,
                        .calloutPath = node,
                        .dialinPath = isUsb ? stableLink(*this) : node,
                        .baseName = family->baseName,
                        .suffixes =
                            isUsb ? usbSuffixes(*this)
                                  : QStringList{kernelName.sliced(family->kernelName.size())}};
}
