#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

/// The file that settings are kept in between two runs, in the INI syntax of the toolkit. Each call
/// stands by itself and may take as long as the disk does. Any thread; one call at a time.
namespace SettingsFile {

using Values = QHash<QString, QVariant>;

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
    /// This user may not read it.
    Unreadable
};

struct Content {
    Values values;
    Damage damage = Damage::None;
};

/// What the file says. Where there is none, or a folder, there are no values.
[[nodiscard]] Content read(const QString& path);

/// Gives a damaged file a name beside it that no file has yet, NAME.corrupt-DATE. Returns where it
/// is then, which is at its old place if it cannot be moved.
[[nodiscard]] QString putAside(const QString& path);

/// What became of an attempt to write.
struct Result {
    /// Why it failed, in the system's words; null when it worked.
    QString problem;
    /// What the file says now, if it worked.
    Values values;
};

/// Puts `changes` into the file, of which an invalid value removes the key; all else that it says
/// stays. Another writer's lock is waited for at most a second. The file is replaced in one step,
/// and made for the user alone, as are folders that are missing. A file that has been damaged
/// meanwhile is put aside, and `known` is written in its place with the changes.
[[nodiscard]] Result write(const QString& path, const Values& changes, const Values& known);

} // namespace SettingsFile
