#include "platform/SettingsStore.h"

#include "platform/Platform.h"

#include <QDateTime>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// Moves a file that QSettings cannot parse out of its way. Returns its new path, else null.
QString putAsideIfCorrupt(const QString& path) {
    if (!QFile::exists(path)) {
        return {};
    }
    {
        const QSettings probe(path, QSettings::IniFormat);
        if (probe.status() != QSettings::FormatError) {
            return {};
        }
    }
    const auto date = QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss"_s);
    const QString aside = path + u".corrupt-"_s + date;
    return QFile::rename(path, aside) ? aside : QString();
}

bool isNumber(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

QString leading(const QVariant& value, const QRegularExpression& pattern) {
    return pattern.match(value.toString()).captured(1);
}

qint64 saturated(double value) {
    constexpr auto limit = 9223372036854774784.0;
    if (std::isnan(value)) {
        return 0;
    }
    return static_cast<qint64>(std::trunc(std::clamp(value, -limit, limit)));
}

} // namespace

SettingsStore& SettingsStore::standardUserDefaults() {
    return Platform::current().settings();
}

QString SettingsStore::standardPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           u"/quorvel/quorvel.conf"_s;
}

SettingsStore::SettingsStore(const QString& path)
    : _corruptFile(putAsideIfCorrupt(path)), _settings(path, QSettings::IniFormat) {}

void SettingsStore::registerDefaults(const QHash<QString, QVariant>& defaults) {
    _defaults.insert(defaults);
}

QVariant SettingsStore::objectForKey(const QString& key) const {
    return _settings.value(key, _defaults.value(key));
}

bool SettingsStore::boolForKey(const QString& key) const {
    const auto value = objectForKey(key);
    if (isNumber(value)) {
        return value.toDouble() != 0;
    }
    static const QRegularExpression truth(u"^\\s*[-+]?0*[YyTt1-9]"_s);
    return truth.match(value.toString()).hasMatch();
}

qint64 SettingsStore::integerForKey(const QString& key) const {
    const auto value = objectForKey(key);
    if (isNumber(value)) {
        return value.typeId() == QMetaType::LongLong ? value.toLongLong()
                                                     : saturated(value.toDouble());
    }
    static const QRegularExpression integer(u"^\\s*([-+]?[0-9]+)"_s);
    return saturated(leading(value, integer).toDouble());
}

double SettingsStore::doubleForKey(const QString& key) const {
    const auto value = objectForKey(key);
    if (isNumber(value)) {
        return value.toDouble();
    }
    static const QRegularExpression real(
        u"^\\s*([-+]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:[eE][-+]?[0-9]+)?)"_s);
    return leading(value, real).toDouble();
}

QString SettingsStore::stringForKey(const QString& key) const {
    const auto value = objectForKey(key);
    return value.isValid() ? value.toString() : QString();
}

void SettingsStore::setObject(const QVariant& value, const QString& key) {
    const auto old = objectForKey(key);
    _settings.setValue(key, value);
    if (objectForKey(key) != old) {
        Q_EMIT changed(key);
    }
}

bool SettingsStore::synchronize() {
    _settings.sync();
    return _settings.status() == QSettings::NoError;
}
