#pragma once

#include "platform/SettingsFile.h"
#include "platform/SettingsWriter.h"

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QVariant>

#include <chrono>
#include <memory>

class MainQueue;

/// The operator's settings: a per-user store of values by key, in an INI file that people may read
/// and edit, under which registered defaults lie that are never written. Main thread only.
///
/// The file is read when the store is made, and then again whenever it changes; what another
/// program writes there holds at once. The main thread never waits for it afterwards.
///
/// Only keys that were changed here are written. Of a key that was changed in both places, the
/// later change holds: one of another program's that is found in the file, and was written there
/// after this one's, takes the place of a change that is still to be stored.
class SettingsStore final : public QObject {
    Q_OBJECT
  public:
    /// The store that the whole program shares.
    [[nodiscard]] static SettingsStore& standardUserDefaults();

    /// Where the settings of the user live: quorvel/quorvel.conf in the configuration home.
    [[nodiscard]] static QString standardPath();

    /// A file that is there and damaged is moved aside before anything is written, so that nothing
    /// in it is lost; corruptFile() then names it. A file that cannot be moved or cannot be read
    /// stays as it is, and a file beside it, its name ending in .new, is used. What cannot be
    /// stored is tried again after `retryTime`, then ever less often.
    explicit SettingsStore(const QString& path,
                           std::chrono::milliseconds retryTime = std::chrono::seconds(5));
    ~SettingsStore() override;

    /// Adds values that hold for keys with no stored value. A later registration wins.
    void registerDefaults(const QHash<QString, QVariant>& defaults);

    /// The stored value, else the registered one, else an invalid one.
    [[nodiscard]] QVariant objectForKey(const QString& key) const;

    /// A number other than 0, or a text that begins with Y, T (in either case) or with a digit
    /// other than 0 after zeros, is true; all else is false.
    [[nodiscard]] bool boolForKey(const QString& key) const;

    /// A number cut to its integer part; of a text, the number that it begins with; else 0.
    [[nodiscard]] qint64 integerForKey(const QString& key) const;

    /// A number; of a text, the number that it begins with; else 0.
    [[nodiscard]] double doubleForKey(const QString& key) const;

    /// A text, or a number as text; null when there is none.
    [[nodiscard]] QString stringForKey(const QString& key) const;

    /// Stores a value and announces it; an invalid one removes what was stored. It is on its way
    /// into the file when the event loop has come round.
    void setObject(const QVariant& value, const QString& key);

    /// Writes what is not yet in the file, and waits for it. False when it could not be written.
    [[nodiscard]] bool synchronize();

    /// What was wrong with the file when the store was made, or has been last.
    [[nodiscard]] SettingsFile::Damage damage() const { return _damage; }
    /// Where a damaged file is now: aside, or still at path(). Null when the file was sound, or
    /// could not be read at all.
    [[nodiscard]] QString corruptFile() const { return _corruptFile; }

    /// Why the file could not be written the last time, in the system's words; null when it could.
    [[nodiscard]] QString problem() const { return _problem; }
    /// The keys whose values are not in the file yet, sorted.
    [[nodiscard]] QStringList keysNotStored() const;

    /// The file that the store was made for.
    [[nodiscard]] QString path() const { return _path; }
    /// The file in use: path(), or the one beside it when that had to be left as it is.
    [[nodiscard]] QString fileName() const { return _fileName; }

  Q_SIGNALS:
    /// The value of `key` is another one now.
    void changed(const QString& key);
    /// The file could not be written, for the first time or since it last could: what changes is
    /// kept in memory, and stored as soon as it can be. See problem() and keysNotStored().
    void storingFailed();
    /// The file was found to be damaged while it was in use. It has been put aside, and the
    /// settings have been stored anew. See damage() and corruptFile().
    void damageFound();

  private:
    void readAtStart();
    void watch();
    void handOver();
    void noteChanges(const SettingsFile::Values& values);
    void takeReading(const SettingsWriter::Report& report);
    void takeStored(const SettingsWriter::Report& report);
    void takeProblem(const QString& problem);
    void takeValues(const SettingsFile::Values& values,
                    const QHash<QString, SettingsFile::Time>& overtaken);
    void putValue(const QVariant& value, const QString& key);
    void forgetChanges(const QHash<QString, SettingsFile::Time>& overtaken);

    QString _path;
    QString _fileName;
    SettingsFile::Damage _damage = SettingsFile::Damage::None;
    QString _corruptFile;
    /// What the file says.
    SettingsFile::Values _values;
    /// What is to be put into it.
    SettingsFile::Changes _changes;
    /// Of the job that was last handed over.
    SettingsFile::Changes _changesHandedOver;
    quint64 _lastJob = 0;
    QString _problem;
    bool _isDamaged = false;
    QHash<QString, QVariant> _defaults;
    QTimer _handOverSoon;
    QTimer _readSoon;
    QFileSystemWatcher _watcher;
    std::shared_ptr<MainQueue> _reports;
    std::unique_ptr<SettingsWriter> _writer;
};
