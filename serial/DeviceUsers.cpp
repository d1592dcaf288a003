#include "serial/DeviceUsers.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cstddef>
#include <dirent.h>
#include <fcntl.h>
#include <linux/major.h>
#include <memory>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};
using Folder = std::unique_ptr<DIR, CloseFolder>;

/// Null at the end, and of a folder that cannot be read.
const char* nextIn(const Folder& folder) {
    const auto* entry = folder ? ::readdir(folder.get()) : nullptr;
    return entry != nullptr ? &entry->d_name[0] : nullptr;
}

bool isNumber(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

QByteArray content(const std::string& path) {
    QFile file(QString::fromStdString(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Whether one of the process's descriptors, by its number and what it leads to, is as wanted. The
/// entries are read and not followed: a file on a server that does not answer would be waited for.
/// There are thousands on a machine, and the start waits for it: nothing is copied, and each is
/// asked in one call, since no terminal has a longer name. One that is closed meanwhile is none.
template <typename IsWanted>
bool anyDescriptor(const std::string& process, const IsWanted& isWanted) {
    const Folder folder(::opendir((process + "/fd").c_str()));
    std::array<char, 256> target{};
    while (const auto* number = nextIn(folder)) {
        const auto size = ::readlinkat(::dirfd(folder.get()), number, target.data(), target.size());
        if (size > 0 &&
            isWanted(number, std::string_view(target.data(), static_cast<std::size_t>(size)))) {
            return true;
        }
    }
    return false;
}

/// Whether the descriptor does no more than name its file, as whoever looks at a node has it: it
/// reads nothing. What cannot be read counts as open.
bool isNameOnly(const std::string& process, const std::string& number) {
    static const QByteArray key = "flags:";
    const auto info = content(process + "/fdinfo/" + number);
    const auto begin = info.indexOf(key) + key.size();
    const auto flags = info.mid(begin, info.indexOf('\n', begin) - begin).trimmed();
    return (flags.toInt(nullptr, 8) & O_PATH) != 0;
}

bool hasOpen(const std::string& process, const std::string& terminal) {
    return anyDescriptor(process, [&](const char* number, std::string_view target) {
        return target == terminal && !isNameOnly(process, number);
    });
}

/// Whether the process has the other end of that pseudo-terminal.
bool isFarEnd(const std::string& process, const std::string& terminal) {
    static constexpr std::string_view folder = "/dev/pts/";
    if (!terminal.starts_with(folder)) {
        return false;
    }
    const auto index =
        "tty-index:\t" + QByteArray::fromStdString(terminal.substr(folder.size())) + '\n';
    return anyDescriptor(process, [&](const char* number, std::string_view target) {
        return target.ends_with("/ptmx") && content(process + "/fdinfo/" + number).contains(index);
    });
}

/// Half of all programs have the empty device open, which is none.
bool canBeTerminal(const std::string& path) {
    struct stat node = {};
    return ::stat(path.c_str(), &node) == 0 && S_ISCHR(node.st_mode) &&
           major(node.st_rdev) != MEM_MAJOR;
}

} // namespace

QStringList DeviceUsers::of(const QString& path) {
    const auto terminal = QFileInfo(path).canonicalFilePath().toStdString();
    if (!canBeTerminal(terminal)) {
        return {};
    }
    const auto own = std::to_string(::getpid());
    QStringList users;
    const Folder processes(::opendir("/proc"));
    while (const auto* number = nextIn(processes)) {
        const auto process = std::string("/proc/") + number;
        if (isNumber(number) && number != own && hasOpen(process, terminal) &&
            !isFarEnd(process, terminal)) {
            const auto name = QString::fromLocal8Bit(content(process + "/comm")).trimmed();
            users.append(u"%1 (process %2)"_s.arg(name, QString::fromUtf8(number)));
        }
    }
    return users;
}
