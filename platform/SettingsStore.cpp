#include "platform/SettingsStore.h"

#include "platform/LeadingNumber.h"
#include "platform/Log.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "platform/SettingsWriter.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>

#include <limits>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using SettingsFile::areSame;
using SettingsFile::Damage;
using SettingsFile::text;

/// Whoever changes the file may do so in several steps.
constexpr auto timeToSettle = 200ms;

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

SettingsStore::SettingsStore(const QString& path, std::chrono::milliseconds retryTime)
    : _path(path), _fileName(path), _reports(std::make_shared<MainQueue>()) {
    readAtStart();
    const auto receive = [this, reports = _reports](const SettingsWriter::Report& report) {
        reports->async([this, report] {
            if (!report.problem.isNull()) {
                takeProblem(report.problem);
            } else if (report.number != 0) {
                takeStored(report);
            } else {
                takeReading(report);
            }
        });
    };
    _writer = std::make_unique<SettingsWriter>(_fileName, _values, receive, retryTime);
    _handOverSoon.setSingleShot(true);
    _handOverSoon.setInterval(0);
    connect(&_handOverSoon, &QTimer::timeout, this, &SettingsStore::handOver);
    _readSoon.setSingleShot(true);
    _readSoon.setInterval(timeToSettle);
    connect(&_readSoon, &QTimer::timeout, this, [this] {
        watch();
        _writer->read();
    });
    for (const auto signal :
         {&QFileSystemWatcher::fileChanged, &QFileSystemWatcher::directoryChanged}) {
        connect(&_watcher, signal, &_readSoon, qOverload<>(&QTimer::start));
    }
    watch();
    if (!_changes.isEmpty()) {
        _handOverSoon.start();
    }
}

SettingsStore::~SettingsStore() {
    if (_handOverSoon.isActive() || !_changes.isEmpty()) {
        if (!synchronize()) {
            logLine(u"Settings are lost, for %1 cannot be written: %2"_s.arg(
                _fileName, keysNotStored().join(u", ")));
        }
    }
    _writer.reset();
    _reports->shutDown();
}

/// A damaged file, or one that may not be read, is not written to: beside it, nothing is lost.
void SettingsStore::readAtStart() {
    const auto content = SettingsFile::read(_path);
    _isDamaged = content.damage == Damage::Folder;
    // Nothing is lost of what a folder keeps out, until there is something to store.
    _damage = _isDamaged ? Damage::None : content.damage;
    if (_damage == Damage::None) {
        _values = content.values;
        return;
    }
    if (_damage != Damage::Unreadable) {
        _corruptFile = SettingsFile::putAside(_path);
    }
    if (_damage == Damage::Unreadable || _corruptFile == _path) {
        _fileName = _path + u".new"_s;
        _values = SettingsFile::read(_fileName).values;
    }
    // What could be read has to be stored again, in the file's place.
    if (_values.isEmpty()) {
        noteChanges(content.values);
    }
}

/// The file by itself, for what is written into it, and its folder, for what takes its place.
void SettingsStore::watch() {
    const auto target = QFileInfo(_fileName).canonicalFilePath();
    for (const auto& each :
         {QFileInfo(_fileName).path(), _fileName, target, QFileInfo(target).path()}) {
        if (!each.isEmpty() && QFileInfo::exists(each)) {
            _watcher.addPath(each);
        }
    }
}

void SettingsStore::registerDefaults(const QHash<QString, QVariant>& defaults) {
    _defaults.insert(defaults);
}

QVariant SettingsStore::objectForKey(const QString& key) const {
    const auto change = _changes.constFind(key);
    const auto stored = change != _changes.constEnd() ? change->value : _values.value(key);
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
    if (!_changes.contains(key) && areSame(_values.value(key), value)) {
        return;
    }
    const auto old = objectForKey(key);
    _changes.insert(key, {value, std::chrono::system_clock::now()});
    _handOverSoon.start();
    if (objectForKey(key) != old) {
        Q_EMIT changed(key);
    }
}

bool SettingsStore::synchronize() {
    handOver();
    return _writer->finish(_lastJob);
}

QStringList SettingsStore::keysNotStored() const {
    auto keys = _changes.keys();
    keys.sort();
    return keys;
}

void SettingsStore::handOver() {
    _handOverSoon.stop();
    _changesHandedOver = _changes;
    _writer->write({_changes, ++_lastJob});
}

void SettingsStore::takeProblem(const QString& problem) {
    if (std::exchange(_problem, problem).isNull()) {
        logLine(u"Settings are not stored in %1: %2"_s.arg(_fileName, problem));
        Q_EMIT storingFailed();
    }
}

/// What has changed once more since then is still to be stored.
void SettingsStore::takeStored(const SettingsWriter::Report& report) {
    if (!std::exchange(_problem, {}).isNull()) {
        logLine(u"Settings are stored in %1 again"_s.arg(_fileName));
    }
    takeValues(report.content.values, report.overtaken);
    if (report.number == _lastJob) {
        _changes.removeIf([this](const auto& change) {
            const auto stored = _changesHandedOver.constFind(change.key());
            return stored != _changesHandedOver.constEnd() && stored->made == change->made;
        });
    }
    watch();
    if (!report.aside.isNull()) {
        _isDamaged = false;
        _damage = report.content.damage;
        _corruptFile = report.aside;
        logLine(u"%1 was damaged, and is now %2"_s.arg(_fileName, _corruptFile));
        Q_EMIT damageFound();
    }
}

/// Of what is damaged the readable part holds, and for the rest what held before. All of it has to
/// be stored then, in the file's place.
void SettingsStore::takeReading(const SettingsWriter::Report& report) {
    const bool wasDamaged = std::exchange(_isDamaged, report.content.damage != Damage::None);
    if (!_isDamaged) {
        takeValues(report.content.values, report.overtaken);
    } else if (!wasDamaged) {
        logLine(u"What is in %1 now are no settings; the last ones hold"_s.arg(_fileName));
        auto values = _values;
        values.insert(report.content.values);
        takeValues(values, report.overtaken);
        noteChanges(_values);
        handOver();
    }
}

/// Whatever is not to be stored in any case.
void SettingsStore::noteChanges(const SettingsFile::Values& values) {
    const auto now = std::chrono::system_clock::now();
    for (auto value = values.begin(); value != values.end(); ++value) {
        if (!_changes.contains(value.key())) {
            _changes.insert(value.key(), {value.value(), now});
        }
    }
}

/// Tells of what is another value now. A value that is the same in the file keeps its type. Changes
/// that somebody else has overtaken are forgotten, unless they have been made again.
void SettingsStore::takeValues(const SettingsFile::Values& values,
                               const QHash<QString, SettingsFile::Time>& overtaken) {
    auto keys = QSet<QString>(_values.keyBegin(), _values.keyEnd());
    keys.unite(QSet<QString>(values.keyBegin(), values.keyEnd()));
    keys.unite(QSet<QString>(overtaken.keyBegin(), overtaken.keyEnd()));
    QHash<QString, QVariant> before;
    for (const auto& key : std::as_const(keys)) {
        before.insert(key, objectForKey(key));
        if (!areSame(_values.value(key), values.value(key))) {
            putValue(values.value(key), key);
        }
    }
    forgetChanges(overtaken);
    QStringList others = keys.values();
    others.removeIf(
        [&](const QString& key) { return areSame(before.value(key), objectForKey(key)); });
    others.sort();
    for (const auto& key : std::as_const(others)) {
        Q_EMIT changed(key);
    }
}

void SettingsStore::putValue(const QVariant& value, const QString& key) {
    if (value.isValid()) {
        _values.insert(key, value);
    } else {
        _values.remove(key);
    }
}

void SettingsStore::forgetChanges(const QHash<QString, SettingsFile::Time>& overtaken) {
    auto keys = overtaken.keys();
    keys.removeIf([&](const QString& key) {
        const auto change = _changes.constFind(key);
        return change == _changes.constEnd() || change->made > overtaken.value(key);
    });
    if (keys.isEmpty()) {
        return;
    }
    keys.sort();
    logLine(u"Another program's values in %1 hold: %2"_s.arg(_fileName, keys.join(u", ")));
    _changes.removeIf([&](const auto& change) { return keys.contains(change.key()); });
}
