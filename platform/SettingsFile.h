#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <chrono>

/// The file that settings are kept in between two runs, in the INI syntax of the toolkit. Each call
/// stands by itself and may take as long as the disk does. Any thread; one call at a time.
namespace SettingsFile {

using Values = QHash<QString, QVariant>;
using Time = std::chrono::system_clock::time_point;

struct Change {
    /// An invalid one removes the key.
    QVariant value;
    Time made;
};
using Changes = QHash<QString, Change>;

/// What keeps a file from being read.
enum class Damage {
    None,
    /// There is something in it that is no setting.
    NoSettings,
    /// A quotation mark in it is not closed. The other lines were read.
    OpenQuote,
    /// A pipe, a device or the like.
    NoFile,
    /// Much larger than settings are.
    TooLarge,
    /// This user may not read it, or the system cannot.
    Unreadable,
    /// A folder has its name.
    Folder
};

struct Content {
    Values values;
    Damage damage = Damage::None;
    /// When it was last written; the beginning of time where there is no file.
    Time written;
};

/// What the file says. Where there is none, there are no values.
[[nodiscard]] Content read(const QString& path);

/// Which of the changes somebody else has overtaken: what the file says of the key is not what was
/// `known` of it, and was written after the change was made.
[[nodiscard]] QStringList overtaken(const Changes& changes, const Content& content,
                                    const Values& known);

/// Whether the values are the same in the file, where a number is a text.
[[nodiscard]] bool areSame(const QVariant& first, const QVariant& second);

/// The value as one text. The file's syntax makes a list of a text that a person wrote with commas
/// and without quotes.
[[nodiscard]] QString text(const QVariant& value);

/// Gives a damaged file a name beside it that no file has yet, NAME.corrupt-DATE. Returns where it
/// is then, which is at its old place if it cannot be moved.
[[nodiscard]] QString putAside(const QString& path);

/// What became of an attempt to write.
struct Result {
    /// Why it failed, in the system's words; null when it worked.
    QString problem = {};
    /// What the file says now, if it worked.
    Values values = {};
    /// The keys whose changes were overtaken, and so not written.
    QStringList overtaken = {};
    /// What was wrong with the file that was there, and where that is now; null if all was well.
    Damage damage = Damage::None;
    QString aside = {};
};

/// Puts `changes` into the file, but for those that were overtaken; all else that it says stays.
/// Another writer's lock is waited for at most a second. The file is replaced in one step, and made
/// for the user alone, as are folders that are missing. Of a file that is damaged, what can be read
/// stays, and for the rest what was `known`; it is put aside. One that cannot be read is a problem.
[[nodiscard]] Result write(const QString& path, const Changes& changes, const Values& known);

/// What an attempt to write depends on, as far as it can be seen: the file, its folder, their
/// modes. It is another text when one of them is another.
[[nodiscard]] QString situation(const QString& path);

} // namespace SettingsFile
