#include "platform/linux/DeviceNaming.h"

#include <QCollator>

#include <algorithm>

namespace DeviceNaming {

QString freeSuffix(const SerialDevice& device, const QSet<QString>& taken) {
    const auto found =
        std::find_if(device.suffixes.begin(), device.suffixes.end(), [&](const QString& suffix) {
            return !taken.contains(device.baseName + suffix);
        });
    return found != device.suffixes.end() ? *found : device.suffixes.constLast();
}

bool comesNaturallyBefore(const QString& first, const QString& second) {
    // Of one language for everybody: the list has the same order on every desktop. The C locale
    // would do, but knows no numbers.
    static const auto collator = [] {
        QCollator natural{QLocale(QLocale::English)};
        natural.setNumericMode(true);
        return natural;
    }();
    const auto order = collator.compare(first, second);
    // "a01" and "a1" are equal up to here; something must still tell them apart.
    return order != 0 ? order < 0 : first < second;
}

bool isPresentable(const QString& name) {
    return std::none_of(name.begin(), name.end(),
                        [](QChar each) { return each.category() == QChar::Other_Control; });
}

} // namespace DeviceNaming
