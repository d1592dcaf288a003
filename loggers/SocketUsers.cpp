#include "loggers/SocketUsers.h"

#include <QFile>
#include <QSet>

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;
using std::filesystem::directory_iterator;

namespace {

using Path = std::filesystem::path;

QByteArray content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What the descriptors of the sockets on that port lead to. Each line of the system's table has
/// the local address and port, in hexadecimal, as its second word, and the inode as its tenth.
QSet<QByteArray> socketsOn(quint16 port) {
    constexpr qsizetype localWord = 1;
    constexpr qsizetype inodeWord = 9;
    const auto suffix = ":" + QByteArray::number(port, 16).rightJustified(4, '0').toUpper();
    QSet<QByteArray> sockets;
    for (const auto* table : {"/proc/net/udp", "/proc/net/udp6"}) {
        for (const auto& line : content(QString::fromLatin1(table)).split('\n')) {
            const auto words = line.simplified().split(' ');
            if (words.size() > inodeWord && words[localWord].endsWith(suffix)) {
                sockets.insert("socket:[" + words[inodeWord] + "]");
            }
        }
    }
    return sockets;
}

/// The entries are read and not followed.
bool hasOneOf(const Path& process, const QSet<QByteArray>& sockets) {
    std::error_code error;
    for (directory_iterator entry(process / "fd", error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code closed;
        const auto target = std::filesystem::read_symlink(entry->path(), closed);
        if (!closed && sockets.contains(QByteArray::fromStdString(target.string()))) {
            return true;
        }
    }
    return false;
}

bool isNumber(const std::string& text) {
    return text.find_first_not_of("0123456789") == std::string::npos;
}

/// A program may give itself any name.
QString nameOf(const Path& process) {
    auto name = QString::fromLocal8Bit(content(QString::fromStdString(process / "comm"))).trimmed();
    name.removeIf([](QChar each) {
        return each.unicode() >= 128 || !(each.isLetterOrNumber() || u"-_.+"_s.contains(each));
    });
    return name;
}

} // namespace

QString SocketUsers::of(quint16 port) {
    const auto sockets = socketsOn(port);
    std::error_code error;
    for (directory_iterator entry("/proc", error), end;
         !sockets.isEmpty() && !error && entry != end; entry.increment(error)) {
        if (isNumber(entry->path().filename().string()) && hasOneOf(entry->path(), sockets)) {
            return nameOf(entry->path());
        }
    }
    return {};
}
