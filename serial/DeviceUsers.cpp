#include "serial/DeviceUsers.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <linux/major.h>
#include <string>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using std::filesystem::directory_iterator;

namespace {

using Path = std::filesystem::path;

bool isNumber(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

QByteArray content(const Path& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// In one call, for there are many to be asked: no terminal has a longer name. Empty when it has
/// been closed meanwhile.
Path targetOf(const Path& link) {
    std::array<char, 256> name{};
    const auto size = ::readlink(link.c_str(), name.data(), name.size());
    return size > 0 ? Path(name.begin(), name.begin() + size) : Path();
}

/// Whether one of the process's descriptors, by its number and what it leads to, is as wanted. The
/// entries are read and not followed: a file on a server that does not answer would be waited for.
bool anyDescriptor(const Path& process,
                   const std::function<bool(const Path& number, const Path& target)>& isWanted) {
    std::error_code error;
    for (directory_iterator entry(process / "fd", error), end; !error && entry != end;
         entry.increment(error)) {
        const auto target = targetOf(entry->path());
        if (!target.empty() && isWanted(entry->path().filename(), target)) {
            return true;
        }
    }
    return false;
}

/// Whether the descriptor does no more than name its file, as whoever looks at a node has it: it
/// reads nothing. What cannot be read counts as open.
bool isNameOnly(const Path& process, const Path& number) {
    static const QByteArray key = "flags:";
    const auto info = content(process / "fdinfo" / number);
    const auto begin = info.indexOf(key) + key.size();
    const auto flags = info.mid(begin, info.indexOf('\n', begin) - begin).trimmed();
    return (flags.toInt(nullptr, 8) & O_PATH) != 0;
}

bool hasOpen(const Path& process, const Path& terminal) {
    return anyDescriptor(process, [&](const Path& number, const Path& target) {
        return target == terminal && !isNameOnly(process, number);
    });
}

/// Whether the process has the other end of that pseudo-terminal.
bool isFarEnd(const Path& process, const Path& terminal) {
    if (terminal.parent_path() != "/dev/pts") {
        return false;
    }
    const auto index = "tty-index:\t" + QByteArray::fromStdString(terminal.filename()) + '\n';
    return anyDescriptor(process, [&](const Path& number, const Path& target) {
        return target.filename() == "ptmx" && content(process / "fdinfo" / number).contains(index);
    });
}

/// Half of all programs have the empty device open, which is none.
bool canBeTerminal(const Path& path) {
    struct stat node = {};
    return ::stat(path.c_str(), &node) == 0 && S_ISCHR(node.st_mode) &&
           major(node.st_rdev) != MEM_MAJOR;
}

} // namespace

QStringList DeviceUsers::of(const QString& path) {
    const Path terminal = QFileInfo(path).canonicalFilePath().toStdString();
    if (!canBeTerminal(terminal)) {
        return {};
    }
    const auto own = std::to_string(::getpid());
    QStringList users;
    std::error_code error;
    for (directory_iterator entry("/proc", error), end; !error && entry != end;
         entry.increment(error)) {
        const auto number = entry->path().filename().string();
        if (isNumber(number) && number != own && hasOpen(entry->path(), terminal) &&
            !isFarEnd(entry->path(), terminal)) {
            const auto name = QString::fromLocal8Bit(content(entry->path() / "comm")).trimmed();
            users.append(u"%1 (process %2)"_s.arg(name, QString::fromStdString(number)));
        }
    }
    return users;
}
