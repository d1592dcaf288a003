#include "platform/SettingsFile.h"

#include "platform/SettingsText.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using SettingsFile::Damage;
using SettingsFile::Values;

/// Reading more would keep the operator waiting.
constexpr qint64 largest = 4'000'000;

/// A lock is held for the few milliseconds of one writing; an older one has been left behind.
constexpr std::chrono::milliseconds longestWait = 1s;

QString systemsWord(int number) {
    return QString::fromStdString(std::generic_category().message(number));
}

/// What the toolkit reads in the file; nothing when there is something that is no setting.
std::optional<Values> parsedFile(const QString& path) {
    const QSettings settings(path, QSettings::IniFormat);
    // Most errors are noticed only when a section's keys are needed.
    const auto keys = settings.allKeys();
    if (settings.status() == QSettings::FormatError) {
        return {};
    }
    Values values;
    for (const auto& key : keys) {
        // Of a line with nothing before the equals sign; it would not be written again.
        if (!key.isEmpty()) {
            values.insert(key, settings.value(key));
        }
    }
    return values;
}

/// Reads a copy: the toolkit remembers what it has read under a name, but not that it was wrong.
std::optional<Values> parsed(const QString& path, const QByteArray& text) {
    QTemporaryFile copy;
    const bool isCopied = copy.open() && copy.write(text) == text.size() && copy.flush();
    return parsedFile(isCopied ? copy.fileName() : path);
}

/// Where a chain of symbolic links ends, which need not exist.
QString resolved(const QString& path) {
    constexpr int longestChain = 40;
    QString target = path;
    for (int links = 0; links < longestChain && QFileInfo(target).isSymLink(); ++links) {
        target = QFileInfo(target).symLinkTarget();
    }
    return target;
}

/// Makes a folder and those above it, for the user alone; whether it is there then.
bool makeFolder(const QString& folder) {
    const auto name = QFile::encodeName(folder);
    if (QFileInfo(folder).isDir()) {
        return true;
    }
    const auto above = QFileInfo(folder).path();
    return above != folder && makeFolder(above) && ::mkdir(name.constData(), 0700) == 0;
}

bool isWritable(const QString& path) {
    return ::faccessat(AT_FDCWD, QFile::encodeName(path).constData(), W_OK, AT_EACCESS) == 0;
}

/// What stands in the way of writing, before anything is tried; null for nothing.
QString obstacle(const QString& path, const QString& target) {
    const QFileInfo file(target);
    const auto folder = file.path();
    // The folder that a link leads to is not ours to make.
    if (path == target ? !makeFolder(folder) : !QFileInfo(folder).isDir()) {
        return systemsWord(path == target && errno != 0 ? errno : ENOENT);
    }
    if (file.isDir()) {
        return systemsWord(EISDIR);
    }
    for (const auto& each : {target, folder}) {
        if (QFileInfo::exists(each) && !isWritable(each)) {
            return systemsWord(errno);
        }
    }
    return {};
}

/// The system's reason why nothing can be written in the folder now, found by trying.
QString reasonOfFailure(const QString& folder) {
    QTemporaryFile probe(folder + u"/probe"_s);
    errno = 0;
    static_cast<void>(probe.open() && probe.write(QByteArray(4096, ' ')) > 0 && probe.flush());
    return systemsWord(errno != 0 ? errno : EIO);
}

/// Writes the values beside the target and puts them in its place.
QString replace(const QString& target, const Values& values) {
    struct stat old {};
    const auto name = QFile::encodeName(target);
    const auto mode = ::stat(name.constData(), &old) == 0 ? old.st_mode & 0777 : 0600;
    const QTemporaryDir draftFolder(target + u".XXXXXX"_s);
    if (!draftFolder.isValid()) {
        return reasonOfFailure(QFileInfo(target).path());
    }
    const auto draft = draftFolder.filePath(u"draft"_s);
    {
        QSettings settings(draft, QSettings::IniFormat);
        for (auto value = values.begin(); value != values.end(); ++value) {
            settings.setValue(value.key(), value.value());
        }
        settings.sync();
        if (settings.status() != QSettings::NoError) {
            return reasonOfFailure(draftFolder.path());
        }
    }
    const auto draftName = QFile::encodeName(draft);
    if (values.isEmpty()) {
        // Of no values the toolkit makes no file.
        static_cast<void>(QFile(draft).open(QIODevice::WriteOnly));
    }
    if (::chmod(draftName.constData(), mode) != 0 ||
        std::rename(draftName.constData(), name.constData()) != 0) {
        return systemsWord(errno);
    }
    return {};
}

/// Whoever holds the lock for so long has been stopped, or was killed where nobody can tell.
bool obtain(QLockFile& lock) {
    lock.setStaleLockTime(static_cast<int>(longestWait.count()));
    if (lock.tryLock(static_cast<int>(longestWait.count()))) {
        return true;
    }
    return lock.error() == QLockFile::LockFailedError && QFile::remove(lock.fileName()) &&
           lock.tryLock(0);
}

Values merged(Values values, const SettingsFile::Changes& changes, const QStringList& left) {
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (left.contains(change.key())) {
            continue;
        }
        if (change->value.isValid()) {
            values.insert(change.key(), change->value);
        } else {
            values.remove(change.key());
        }
    }
    return values;
}

/// Without its own times, which change of themselves.
QString standing(const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
        return QString::number(errno);
    }
    return u"%1:%2 %3 %4"_s.arg(status.st_dev)
        .arg(status.st_ino)
        .arg(status.st_mode)
        .arg(status.st_uid);
}

} // namespace

namespace SettingsFile {

Content read(const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
        return {{}, errno == ENOENT ? Damage::None : Damage::Unreadable, {}};
    }
    const Time written{std::chrono::duration_cast<Time::duration>(
        std::chrono::seconds(status.st_ctim.tv_sec) +
        std::chrono::nanoseconds(status.st_ctim.tv_nsec))};
    if (!S_ISREG(status.st_mode)) {
        return {{}, S_ISDIR(status.st_mode) ? Damage::Folder : Damage::NoFile, written};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {{}, Damage::Unreadable, written};
    }
    const auto text = file.read(largest + 1);
    if (text.size() > largest) {
        return {{}, Damage::TooLarge, written};
    }
    const auto sound = SettingsText::withoutOpenQuotes(text);
    const auto values = parsed(path, sound.value_or(text));
    if (!values) {
        return {{}, Damage::NoSettings, written};
    }
    return {*values, sound ? Damage::OpenQuote : Damage::None, written};
}

QString text(const QVariant& value) {
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(u", "_s)
                                                    : value.toString();
}

bool areSame(const QVariant& first, const QVariant& second) {
    return first == second || (first.isValid() == second.isValid() && text(first) == text(second));
}

QStringList overtaken(const Changes& changes, const Content& content, const Values& known) {
    QStringList keys;
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        const auto& key = change.key();
        if (content.written > change->made &&
            !areSame(content.values.value(key), known.value(key))) {
            keys.append(key);
        }
    }
    keys.sort();
    return keys;
}

QString putAside(const QString& path) {
    const auto date = QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss"_s);
    const QString first = path + u".corrupt-"_s + date;
    QString aside = first;
    for (int i = 2; QFileInfo(aside).isSymLink() || QFileInfo::exists(aside); ++i) {
        aside = first + u'-' + QString::number(i);
    }
    // Not the toolkit's, which copies what it cannot rename: a device's bytes may have no end.
    const bool isMoved =
        std::rename(QFile::encodeName(path).constData(), QFile::encodeName(aside).constData()) == 0;
    return isMoved ? aside : path;
}

Result write(const QString& path, const Changes& changes, const Values& known) {
    errno = 0;
    const auto target = resolved(path);
    if (const auto problem = obstacle(path, target); !problem.isNull()) {
        return {.problem = problem};
    }
    QLockFile lock(target + u".lock"_s);
    if (!obtain(lock)) {
        return {.problem = reasonOfFailure(QFileInfo(target).path())};
    }
    auto content = read(target);
    if (content.damage == Damage::Unreadable || content.damage == Damage::Folder) {
        return {.problem = systemsWord(content.damage == Damage::Folder ? EISDIR : EACCES)};
    }
    Result result{.damage = content.damage};
    if (content.damage != Damage::None) {
        result.aside = putAside(target);
        if (result.aside == target) {
            return {.problem = systemsWord(EIO)};
        }
        auto values = known;
        values.insert(std::exchange(content.values, {}));
        content.values = values;
    }
    result.overtaken = overtaken(changes, content, known);
    result.values = merged(content.values, changes, result.overtaken);
    result.problem = replace(target, result.values);
    if (!result.problem.isNull() && !result.aside.isNull()) {
        // What is there is better than nothing.
        std::rename(QFile::encodeName(result.aside).constData(),
                    QFile::encodeName(target).constData());
    }
    return result;
}

QString situation(const QString& path) {
    const auto target = resolved(path);
    const QFileInfo file(target);
    return u"%1, %2: %3 %4"_s.arg(standing(file.path()), standing(target))
        .arg(file.size())
        .arg(file.metadataChangeTime().toMSecsSinceEpoch());
}

} // namespace SettingsFile
