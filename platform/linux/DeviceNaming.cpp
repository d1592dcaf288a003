#include "platform/linux/DeviceNaming.h"

#include <algorithm>

namespace {

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

/// Takes the digits at the start of `text` off it. Returns them without leading zeros.
QStringView takeNumber(QStringView& text) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), isDigit);
    const auto length = end - text.begin();
    auto number = text.first(length);
    text = text.sliced(length);
    while (number.size() > 1 && number.front() == u'0') {
        number = number.sliced(1);
    }
    return number;
}

} // namespace

namespace DeviceNaming {

QString freeSuffix(const SerialDevice& device, const QSet<QString>& taken) {
    const auto found =
        std::find_if(device.suffixes.begin(), device.suffixes.end(), [&](const QString& suffix) {
            return !taken.contains(device.baseName + suffix);
        });
    return found != device.suffixes.end() ? *found : device.suffixes.constLast();
}

bool comesNaturallyBefore(const QString& first, const QString& second) {
    QStringView left = first;
    QStringView right = second;
    while (!left.isEmpty() && !right.isEmpty()) {
        if (isDigit(left.front()) && isDigit(right.front())) {
            const auto leftNumber = takeNumber(left);
            const auto rightNumber = takeNumber(right);
            if (leftNumber.size() != rightNumber.size()) {
                return leftNumber.size() < rightNumber.size();
            }
            if (leftNumber != rightNumber) {
                return leftNumber < rightNumber;
            }
        } else {
            if (left.front() != right.front()) {
                return left.front() < right.front();
            }
            left = left.sliced(1);
            right = right.sliced(1);
        }
    }
    // "a01" and "a1" are equal up to here; something must still tell them apart.
    return left.isEmpty() && right.isEmpty() ? first < second : left.isEmpty();
}

} // namespace DeviceNaming
