#include "record/RecordFile.h"

#include "platform/FileDescriptor.h"
#include "platform/Log.h"
#include "platform/SettingsFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Of the layout of the tables.
constexpr int layout = 1;

/// What SQLite says of a file that is damaged, or none of its own.
constexpr int corrupt = 11;
constexpr int noDatabase = 26;
/// Its codes are the low byte of what it says more closely.
constexpr int codeMask = 0xFF;

constexpr auto columns =
    "number, begun, text, rest, wpm, lpm, source, source_number, name, ending"_L1;

/// A file beside the database that another opening finds what was left unfinished in.
constexpr auto journalSuffix = "-journal"_L1;

QString nextConnection() {
    static std::atomic<int> count = 0;
    return u"record-%1"_s.arg(++count);
}

QString systemsWord(int number) {
    return QString::fromStdString(std::generic_category().message(number));
}

/// A null text would be stored as nothing.
QString someText(const QString& text) {
    return text.isNull() ? u""_s : text;
}

QVariant optional(const std::optional<int>& number) {
    return number ? QVariant(*number) : QVariant();
}

std::optional<int> optionalInt(const QVariant& value) {
    return value.isNull() ? std::nullopt : std::optional(value.toInt());
}

/// A number that is no choice's, in a file that others may write, is the first choice.
template <typename Choice>
Choice choiceOf(const QVariant& value, Choice last) {
    const int number = value.toInt();
    return number >= 0 && number <= static_cast<int>(last) ? static_cast<Choice>(number) : Choice{};
}

/// The words as a pattern that contains them as they are.
QString patternOf(const QString& words) {
    auto escaped = words;
    for (const auto special : {u'\\', u'%', u'_'}) {
        escaped.replace(special, QString(u'\\') + special);
    }
    return u'%' + escaped + u'%';
}

/// Whether they may be a date: looking at the date of each run takes long.
bool mayBeDate(const QString& words) {
    return words.size() >= 3 && words.at(0).isDigit() && words.at(1).isDigit() &&
           (words.contains(u'-') || words.contains(u':'));
}

} // namespace

RecordFile::RecordFile(const QString& path) : _path(path), _connection(nextConnection()) {}

RecordFile::~RecordFile() {
    close();
}

RecordFile::Trouble RecordFile::takeTrouble() {
    return std::exchange(_trouble, {});
}

void RecordFile::fail(const QString& problem) {
    logLine(u"The record of what was sent, %1: %2"_s.arg(_path, problem));
    _trouble.problem = problem;
}

RecordFile::Identity RecordFile::identity() const {
    struct stat status {};
    if (::stat(QFile::encodeName(_path).constData(), &status) != 0) {
        return {};
    }
    return {static_cast<quint64>(status.st_dev), static_cast<quint64>(status.st_ino)};
}

bool RecordFile::open() {
    if (_database.isOpen() && identity() == _identity) {
        return true;
    }
    close();
    if (!prepareFile()) {
        return false;
    }
    if (openDatabase() && prepareTables()) {
        _identity = identity();
        return true;
    }
    const bool isMended = _isDamaged && recover();
    if (!isMended) {
        close();
    }
    return isMended;
}

/// It is there, and the user's alone, before anything is written to it.
bool RecordFile::prepareFile() {
    const auto folder = QFileInfo(_path).path();
    const auto parent = QFileInfo(folder).path();
    if (!QFileInfo(folder).isDir()) {
        QDir().mkpath(parent);
        if (::mkdir(QFile::encodeName(folder).constData(), 0700) != 0 && errno != EEXIST) {
            fail(systemsWord(errno));
            return false;
        }
    }
    const auto name = QFile::encodeName(_path);
    const FileDescriptor made(
        ::open(name.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    struct stat status {};
    if ((!made.isValid() && errno != EEXIST) || ::stat(name.constData(), &status) != 0) {
        fail(systemsWord(errno));
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        fail(u"no regular file"_s);
        return false;
    }
    constexpr mode_t others = 077;
    if ((status.st_mode & others) != 0 && ::chmod(name.constData(), 0600) != 0) {
        fail(systemsWord(errno));
        return false;
    }
    return true;
}

bool RecordFile::openDatabase() {
    _database = QSqlDatabase::addDatabase(u"QSQLITE"_s, _connection);
    if (!_database.isValid()) {
        fail(u"the toolkit's SQLite driver is not installed"_s);
        return false;
    }
    _database.setDatabaseName(_path);
    _database.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=1000"_s);
    if (!_database.open()) {
        fail(_database.lastError().databaseText());
        return false;
    }
    return true;
}

/// No mapping of the file, which a disk that goes would have end the program; and no waiting for
/// the disk beyond what a loss of power needs to leave a sound file.
bool RecordFile::prepareTables() {
    if (!execute(u"PRAGMA mmap_size = 0"_s) || !execute(u"PRAGMA synchronous = NORMAL"_s)) {
        return false;
    }
    QSqlQuery query(_database);
    if (!prepare(query, u"PRAGMA user_version"_s) || !execute(query) || !next(query)) {
        return false;
    }
    const int found = query.value(0).toInt();
    query.finish();
    if (found > layout) {
        fail(u"made by a newer version"_s);
        return false;
    }
    return found == layout ||
           (execute(u"PRAGMA auto_vacuum = INCREMENTAL"_s) &&
            execute(u"CREATE TABLE IF NOT EXISTS run (number INTEGER PRIMARY KEY, begun INTEGER "
                    "NOT NULL, text TEXT NOT NULL, rest TEXT NOT NULL, wpm INTEGER, lpm INTEGER, "
                    "source INTEGER NOT NULL, source_number INTEGER NOT NULL, name TEXT NOT NULL, "
                    "ending INTEGER NOT NULL)"_s) &&
            execute(u"PRAGMA user_version = %1"_s.arg(layout)));
}

void RecordFile::close() {
    if (_database.isValid()) {
        _database.close();
        _database = {};
        QSqlDatabase::removeDatabase(_connection);
    }
}

bool RecordFile::execute(const QString& statement) {
    QSqlQuery query(_database);
    return prepare(query, statement) && execute(query);
}

bool RecordFile::prepare(QSqlQuery& query, const QString& statement) {
    query.setForwardOnly(true);
    return query.prepare(statement) || take(query.lastError());
}

bool RecordFile::execute(QSqlQuery& query) {
    return query.exec() || take(query.lastError());
}

/// False, always: notes what it is.
bool RecordFile::take(const QSqlError& error) {
    const int code = error.nativeErrorCode().toInt() & codeMask;
    _isDamaged = code == corrupt || code == noDatabase;
    if (!_isDamaged) {
        fail(error.databaseText());
    }
    return false;
}

/// Puts a damaged file aside, with what belongs to it, and begins a new one.
bool RecordFile::recover() {
    _isDamaged = false;
    close();
    const auto aside = SettingsFile::putAside(_path);
    if (aside == _path) {
        fail(u"damaged, and it cannot be put aside"_s);
        return false;
    }
    static_cast<void>(std::rename(QFile::encodeName(_path + journalSuffix).constData(),
                                  QFile::encodeName(aside + journalSuffix).constData()));
    logLine(u"The record of what was sent was damaged, and is kept as %1"_s.arg(aside));
    _trouble.aside = aside;
    if (!prepareFile() || !openDatabase() || !prepareTables()) {
        return false;
    }
    _identity = identity();
    return true;
}

void RecordFile::recoverIfDamaged() {
    if (_isDamaged) {
        static_cast<void>(recover());
    }
}

bool RecordFile::append(const QList<RecordedRun>& runs, qint64 oldest) {
    if (!open()) {
        return false;
    }
    if (insert(runs) && removeOld(oldest) && _database.commit()) {
        return true;
    }
    _database.rollback();
    if (std::exchange(_isDamaged, false)) {
        return recover() && insert(runs) && _database.commit();
    }
    return false;
}

bool RecordFile::insert(const QList<RecordedRun>& runs) {
    if (!_database.transaction()) {
        fail(_database.lastError().databaseText());
        return false;
    }
    QSqlQuery query(_database);
    if (!prepare(query,
                 u"INSERT INTO run (begun, text, rest, wpm, lpm, source, source_number, name, "
                 "ending) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"_s)) {
        return false;
    }
    for (const auto& run : runs) {
        const QVariantList values{run.begun,
                                  someText(run.text),
                                  someText(run.rest),
                                  optional(run.wordsPerMinute),
                                  optional(run.lettersPerMinute),
                                  static_cast<int>(run.source.kind),
                                  run.source.number,
                                  someText(run.name),
                                  static_cast<int>(run.ending)};
        for (int i = 0; i < values.size(); ++i) {
            query.bindValue(i, values.at(i));
        }
        if (!execute(query)) {
            return false;
        }
    }
    return true;
}

/// From the oldest on, up to the first that stays: so the numbers have no gaps.
bool RecordFile::removeOld(qint64 oldest) {
    QSqlQuery query(_database);
    if (!prepare(query,
                 u"DELETE FROM run WHERE number < max("
                 "coalesce((SELECT number FROM run WHERE begun >= ? ORDER BY number LIMIT 1), "
                 "(SELECT max(number) + 1 FROM run)), (SELECT max(number) - %1 FROM run))"_s.arg(
                     mostRuns - 1))) {
        return false;
    }
    query.addBindValue(oldest);
    return execute(query);
}

void RecordFile::trim(qint64 oldest) {
    if (!open()) {
        return;
    }
    static_cast<void>(removeOld(oldest) && execute(u"PRAGMA incremental_vacuum"_s));
    recoverIfDamaged();
}

RunNumbers RecordFile::numbers() {
    if (!open()) {
        return {};
    }
    RunNumbers numbers;
    QSqlQuery query(_database);
    if (prepare(query, u"SELECT (SELECT min(number) FROM run), (SELECT max(number) FROM run)"_s) &&
        execute(query) && next(query) && !query.isNull(0)) {
        numbers = {query.value(0).toLongLong(), query.value(1).toLongLong()};
    }
    finishReading(query);
    return numbers;
}

/// Whether there is one more row.
bool RecordFile::next(QSqlQuery& query) {
    return query.next() || (query.lastError().isValid() && take(query.lastError()));
}

/// Any question may be the first to come upon damage.
void RecordFile::finishReading(QSqlQuery& query) {
    query.clear(); // it belongs to the file that may be put aside
    recoverIfDamaged();
}

QList<StoredRun> RecordFile::read(qint64 first, qint64 last) {
    return runsOf(u"number BETWEEN %1 AND %2"_s.arg(first).arg(last));
}

QList<StoredRun> RecordFile::read(const QList<qint64>& numbers) {
    QStringList list;
    for (const auto number : numbers) {
        list.append(QString::number(number));
    }
    return runsOf(u"number IN (%1)"_s.arg(list.join(u',')));
}

QList<StoredRun> RecordFile::runsOf(const QString& condition) {
    QList<StoredRun> runs;
    if (!open()) {
        return runs;
    }
    QSqlQuery query(_database);
    const bool isBegun =
        prepare(query, u"SELECT %1 FROM run WHERE %2 ORDER BY number"_s.arg(columns, condition)) &&
        execute(query);
    while (isBegun && next(query)) {
        const auto value = [&query](int column) { return query.value(column); };
        runs.append({value(0).toLongLong(),
                     {.begun = value(1).toLongLong(),
                      .text = value(2).toString(),
                      .rest = value(3).toString(),
                      .wordsPerMinute = optionalInt(value(4)),
                      .lettersPerMinute = optionalInt(value(5)),
                      .source = {choiceOf(value(6), TextSource::Kind::Logger), value(7).toInt()},
                      .name = value(8).toString(),
                      .ending = choiceOf(value(9), RecordedRun::Ending::LinkLost)}});
    }
    finishReading(query);
    return runs;
}

QList<qint64> RecordFile::find(const QString& words, qsizetype most) {
    if (!open()) {
        return {};
    }
    const auto key = u"source = %1 AND 'F' || source_number LIKE :words ESCAPE '\\'"_s.arg(
        static_cast<int>(TextSource::Kind::Message));
    const auto date = mayBeDate(words) ? u"OR strftime('%Y-%m-%d %H:%M:%S', begun / 1000, "
                                         "'unixepoch') LIKE :words ESCAPE '\\'"_s
                                       : QString();
    QList<qint64> found;
    QSqlQuery query(_database);
    const bool isPrepared = prepare(
        query, u"SELECT number FROM run WHERE text LIKE :words ESCAPE '\\' OR name LIKE "
               ":words ESCAPE '\\' OR (%1) %2 ORDER BY number DESC LIMIT %3"_s.arg(key, date)
                   .arg(most));
    if (isPrepared) {
        query.bindValue(u":words"_s, patternOf(words));
    }
    if (isPrepared && execute(query)) {
        while (next(query)) {
            found.append(query.value(0).toLongLong());
        }
    }
    finishReading(query);
    return found;
}
