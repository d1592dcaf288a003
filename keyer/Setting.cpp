#include "keyer/Setting.h"

namespace {

QVariant toVariant(bool value) {
    return value;
}

QVariant toVariant(int value) {
    return value;
}

QVariant toVariant(double value) {
    return value;
}

QVariant toVariant(QLatin1StringView value) {
    return QString(value);
}

} // namespace

QHash<QString, QVariant> defaultsOf(std::span<const Setting> settings) {
    QHash<QString, QVariant> defaults;
    for (const auto& setting : settings) {
        defaults.insert(setting.key, std::visit([](const auto& value) { return toVariant(value); },
                                                setting.defaultValue));
    }
    return defaults;
}
