#include "platform/SettingsStore.h"

#include "platform/LeadingNumber.h"
#include "platform/Platform.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// QSettings notices most errors only when it needs a section's keys.
bool isCorrupt(const QString& path) {
    if (!QFile::exists(path)) {
        return false;
    }
    const QSettings probe(path, QSettings::IniFormat);
    static_cast<void>(probe.allKeys());
    return probe.status() == QSettings::FormatError;
}

/// A name beside the file that no file has yet.
QString nameAside(const QString& path) {
    const auto date = QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss"_s);
    const QString first = path + u".corrupt-"_s + date;
    QString name = first;
    for (int i = 2; QFile::exists(name); ++i) {
        name = first + u'-' + QString::number(i);
    }
    return name;
}

/// Moves a file that QSettings cannot parse out of its way. Returns where it is then: at its old
/// place if it cannot be moved; null if nothing is wrong with it.
QString putAsideIfCorrupt(const QString& path) {
    if (!isCorrupt(path)) {
        return {};
    }
    const auto aside = nameAside(path);
    return QFile::rename(path, aside) ? aside : path;
}

/// The file to use. QSettings would replace a file that is still in place and corrupt, or one that
/// it may not read, as soon as it writes; beside it, nothing is lost.
QString safePath(const QString& path, const QString& corruptFile) {
    const bool isUnreadable = QFileInfo(path).isFile() && !QFile(path).open(QIODevice::ReadOnly);
    return corruptFile == path || isUnreadable ? path + u".new"_s : path;
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

/// The value as one text. The file's syntax makes a list of a text that a person wrote with commas
/// and without quotes.
QString text(const QVariant& value) {
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(u", "_s)
                                                    : value.toString();
}

/// Truth comes back from the file as a word, yet counts as 1.
QString numeral(const QVariant& value) {
    const auto whole = text(value);
    return whole == u"true" ? u"1"_s : whole;
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
    : _path(path),
      _corruptFile(putAsideIfCorrupt(path)),
      _settings(safePath(path, _corruptFile), QSettings::IniFormat) {}

void SettingsStore::registerDefaults(const QHash<QString, QVariant>& defaults) {
    _defaults.insert(defaults);
}

QVariant SettingsStore::objectForKey(const QString& key) const {
    const auto stored = _settings.value(key);
    return stored.isValid() ? stored : _defaults.value(key);
}

bool SettingsStore::boolForKey(const QString& key) const {
    const auto value = objectForKey(key);
    if (isNumber(value)) {
        return value.toDouble() != 0;
    }
    static const QRegularExpression truth(u"^\\s*[-+]?0*[YyTt1-9]"_s);
    return truth.match(text(value)).hasMatch();
}

qint64 SettingsStore::integerForKey(const QString& key) const {
    const auto value = objectForKey(key);
    if (isNumber(value)) {
        return value.typeId() == QMetaType::LongLong ? value.toLongLong()
                                                     : LeadingNumber::integerPart(value.toDouble());
    }
    return LeadingNumber::integer(numeral(value));
}

double SettingsStore::doubleForKey(const QString& key) const {
    const auto value = objectForKey(key);
    if (isNumber(value)) {
        return value.toDouble();
    }
    return LeadingNumber::real(numeral(value));
}

QString SettingsStore::stringForKey(const QString& key) const {
    return text(objectForKey(key));
}

void SettingsStore::setObject(const QVariant& value, const QString& key) {
    const auto old = objectForKey(key);
    if (value.isValid()) {
        _settings.setValue(key, value);
    } else {
        _settings.remove(key);
    }
    if (objectForKey(key) != old) {
        Q_EMIT changed(key);
    }
}

bool SettingsStore::synchronize() {
    _settings.sync();
    return _settings.status() == QSettings::NoError;
}
