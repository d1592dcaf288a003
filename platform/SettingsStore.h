#pragma once

#include <QHash>
#include <QObject>
#include <QSettings>
#include <QString>
#include <QVariant>

/// The operator's settings: a per-user store of values by key, in an INI file that people may read
/// and edit, under which registered defaults lie that are never written. Main thread only.
class SettingsStore final : public QObject {
    Q_OBJECT
  public:
    /// The store that the whole program shares.
    [[nodiscard]] static SettingsStore& standardUserDefaults();

    /// Where the settings of the user live: quorvel/quorvel.conf in the configuration home.
    [[nodiscard]] static QString standardPath();

    /// A file that is there and cannot be parsed is moved aside before anything is written, so
    /// that nothing in it is lost; corruptFile() then names it. A file that cannot be moved or
    /// cannot be read stays as it is, and a file beside it, its name ending in .new, is used.
    explicit SettingsStore(const QString& path);

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

    /// Stores a value and announces it; an invalid one removes what was stored. It is in the file
    /// when the event loop has come round.
    void setObject(const QVariant& value, const QString& key);

    /// Writes what is not yet in the file. False when the file could not be written.
    [[nodiscard]] bool synchronize();

    /// Where a file that could not be parsed is now: aside, or still at path(). Null when the file
    /// was sound, or could not be read at all.
    [[nodiscard]] QString corruptFile() const { return _corruptFile; }

    /// The file that the store was made for.
    [[nodiscard]] QString path() const { return _path; }
    /// The file in use: path(), or the one beside it when that had to be left as it is.
    [[nodiscard]] QString fileName() const { return _settings.fileName(); }

  Q_SIGNALS:
    /// The value of `key` is another one now.
    void changed(const QString& key);

  private:
    QString _path;
    QString _corruptFile;
    QSettings _settings;
    QHash<QString, QVariant> _defaults;
};
