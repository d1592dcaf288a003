#include "keyer/Setting.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

/// Behind a rate of high-speed CW.
constexpr QLatin1StringView lettersPerMinute{" lpm"};

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

QString shownText(const QString& text) {
    if (text.endsWith(lettersPerMinute)) {
        return QCoreApplication::translate("Setting", "%1 lpm")
            .arg(text.chopped(lettersPerMinute.size()));
    }
    bool isNumber = false;
    static_cast<void>(text.toDouble(&isNumber));
    if (isNumber) {
        return QString(text).replace(u'.', QLocale().decimalPoint());
    }
    return QCoreApplication::translate("Setting", text.toUtf8().constData());
}

QHash<QString, QVariant> defaultsOf(std::span<const Setting> settings) {
    QHash<QString, QVariant> defaults;
    for (const auto& setting : settings) {
        defaults.insert(setting.key, std::visit([](const auto& value) { return toVariant(value); },
                                                setting.defaultValue));
    }
    return defaults;
}
