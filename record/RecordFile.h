#pragma once

#include "record/StoredRun.h"

#include <QList>
#include <QSqlDatabase>
#include <QString>

#include <chrono>

class QSqlError;
class QSqlQuery;

/// The file that the record lies in, an SQLite database for the user alone.
///
/// It is opened when it is first needed, and again when it has been removed or replaced meanwhile.
/// A damaged one is put aside under a name of its own, and a new one begun. One that another
/// program keeps locked is waited for, for a second. All on one thread, any one but the main
/// thread.
class RecordFile {
  public:
    /// What stands in the way; null texts for nothing.
    struct Trouble {
        /// Why the file could not be used, in the system's or the database's words.
        QString problem;
        /// Where a damaged file is now.
        QString aside;
    };

    /// However long they are kept, there are no more of them.
    static constexpr qint64 mostRuns = 2'000'000;

    explicit RecordFile(const QString& path);
    RecordFile(const RecordFile&) = delete;
    RecordFile& operator=(const RecordFile&) = delete;
    ~RecordFile();

    /// Adds all of them or none; false for none. Runs that began before `oldest`, in milliseconds
    /// since 1970, go.
    [[nodiscard]] bool append(const QList<RecordedRun>& runs, qint64 oldest);
    /// Removes those that began before `oldest`.
    void trim(qint64 oldest);

    [[nodiscard]] RunNumbers numbers();
    /// Those numbered first to last, in that order, as far as there are any.
    [[nodiscard]] QList<StoredRun> read(qint64 first, qint64 last);
    [[nodiscard]] QList<StoredRun> read(const QList<qint64>& numbers);
    /// The numbers of the newest that contain `words`, whatever the case: in their text, their
    /// name, their key or their date. At most so many; the newest first.
    [[nodiscard]] QList<qint64> find(const QString& words, qsizetype most);

    /// What has come up since it was last taken.
    [[nodiscard]] const Trouble& trouble() const { return _trouble; }
    [[nodiscard]] Trouble takeTrouble();

  private:
    struct Identity {
        quint64 device = 0;
        quint64 file = 0;
        [[nodiscard]] friend bool operator==(const Identity&, const Identity&) = default;
    };

    [[nodiscard]] bool open();
    [[nodiscard]] bool prepareFile();
    [[nodiscard]] bool openDatabase();
    [[nodiscard]] bool prepareTables();
    void close();
    [[nodiscard]] Identity identity() const;
    [[nodiscard]] bool execute(const QString& statement);
    [[nodiscard]] bool prepare(QSqlQuery& query, const QString& statement);
    [[nodiscard]] bool take(const QSqlError& error);
    [[nodiscard]] bool execute(QSqlQuery& query);
    [[nodiscard]] bool insert(const QList<RecordedRun>& runs);
    [[nodiscard]] bool removeOld(qint64 oldest);
    [[nodiscard]] QList<StoredRun> runsOf(const QString& condition);
    [[nodiscard]] bool next(QSqlQuery& query);
    void finishReading(QSqlQuery& query);
    void fail(const QString& problem);
    [[nodiscard]] bool recover();
    void recoverIfDamaged();

    const QString _path;
    const QString _connection;
    QSqlDatabase _database;
    Identity _identity;
    Trouble _trouble;
    bool _isDamaged = false;
};
