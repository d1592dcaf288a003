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

using SettingsFile::Damage;

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

/// Whether the values are the same in the file, where a number is a text.
bool areSame(const QVariant& first, const QVariant& second) {
    return first == second || (first.isValid() == second.isValid() && text(first) == text(second));
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
                takeStored(report.number, report.content.values);
            } else {
                takeReading(report.content);
            }
        });
    };
    _writer = std::make_unique<SettingsWriter>(_fileName, receive, retryTime);
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
    auto content = SettingsFile::read(_path);
    _damage = content.damage;
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
        _changes = content.values;
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
    const auto stored = change != _changes.constEnd() ? *change : _values.value(key);
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
    _changes.insert(key, value);
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
    _writer->write({_changes, _values, ++_lastJob});
}

void SettingsStore::takeProblem(const QString& problem) {
    if (std::exchange(_problem, problem).isNull()) {
        logLine(u"Settings are not stored in %1: %2"_s.arg(_fileName, problem));
        Q_EMIT storingFailed();
    }
}

/// What has changed once more since then is still to be stored.
void SettingsStore::takeStored(quint64 number, const SettingsFile::Values& values) {
    if (!std::exchange(_problem, {}).isNull()) {
        logLine(u"Settings are stored in %1 again"_s.arg(_fileName));
    }
    replaceValues(values);
    if (number == _lastJob) {
        _changes.removeIf([this](const auto& change) {
            const auto stored = _changesHandedOver.constFind(change.key());
            return stored != _changesHandedOver.constEnd() && *stored == change.value();
        });
    }
    watch();
}

/// What is damaged by now is put aside when there is something to store.
void SettingsStore::takeReading(const SettingsFile::Content& content) {
    const bool isDamaged = content.damage != Damage::None;
    if (isDamaged && !_isDamaged) {
        logLine(u"What is in %1 now are no settings; the last ones hold"_s.arg(_fileName));
    }
    _isDamaged = isDamaged;
    if (!isDamaged) {
        replaceValues(content.values);
    }
}

/// Tells of what is another value now. A value that is the same in the file keeps its type.
void SettingsStore::replaceValues(const SettingsFile::Values& values) {
    auto keys = QSet<QString>(_values.keyBegin(), _values.keyEnd());
    keys.unite(QSet<QString>(values.keyBegin(), values.keyEnd()));
    QStringList others;
    for (const auto& key : std::as_const(keys)) {
        const auto value = values.value(key);
        if (areSame(_values.value(key), value)) {
            continue;
        }
        const auto before = objectForKey(key);
        if (value.isValid()) {
            _values.insert(key, value);
        } else {
            _values.remove(key);
        }
        if (!areSame(before, objectForKey(key))) {
            others.append(key);
        }
    }
    others.sort();
    for (const auto& key : std::as_const(others)) {
        Q_EMIT changed(key);
    }
}
