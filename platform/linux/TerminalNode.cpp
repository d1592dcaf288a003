#include "platform/linux/TerminalNode.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned standInMajor = 5;
constexpr unsigned firstPseudoTerminalMajor = 136;
constexpr unsigned lastPseudoTerminalMajor = 143;

bool isPseudoTerminal(const struct stat& status) {
    const auto major = gnu_dev_major(status.st_rdev);
    return S_ISCHR(status.st_mode) && major >= firstPseudoTerminalMajor &&
           major <= lastPseudoTerminalMajor;
}

double seconds(const timespec& time) {
    constexpr double perSecond = 1e9;
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / perSecond;
}

/// The node tells nowhere when it was made. Use moves two of its times on, and a change of its mode
/// the third.
double latestBirth(const struct stat& status) {
    return std::min({seconds(status.st_atim), seconds(status.st_mtim), seconds(status.st_ctim)});
}

/// Where the file system knows, when the link was made, which nothing changes. Elsewhere the
/// earlier of two times, either of which may have moved on: whoever touches a link makes it no
/// younger.
double birthOfLink(const QByteArray& link) {
    struct statx made {};
    if (::statx(AT_FDCWD, link.constData(), AT_SYMLINK_NOFOLLOW,
                STATX_BTIME | STATX_CTIME | STATX_MTIME, &made) != 0) {
        return 0;
    }
    const auto time = [](const statx_timestamp& each) {
        return seconds({each.tv_sec, static_cast<long>(each.tv_nsec)});
    };
    return (made.stx_mask & STATX_BTIME) != 0
               ? time(made.stx_btime)
               : std::min(time(made.stx_ctime), time(made.stx_mtime));
}

} // namespace

bool TerminalNode::isTerminal(const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISCHR(status.st_mode)) {
        return false;
    }
    const auto major = gnu_dev_major(status.st_rdev);
    if (major == standInMajor) {
        return false;
    }
    // These have no entry in sysfs.
    if (isPseudoTerminal(status)) {
        return true;
    }
    const QFileInfo subsystem(
        u"/sys/dev/char/%1:%2/subsystem"_s.arg(major).arg(gnu_dev_minor(status.st_rdev)));
    return QFileInfo(subsystem.symLinkTarget()).fileName() == u"tty";
}

bool TerminalNode::isYoungerThanLink(const QString& path, const QString& link) {
    // Programs set the mode of a terminal up just after they have made it and its link.
    constexpr double setUpTime = 1;
    struct stat terminal {};
    return ::stat(QFile::encodeName(path).constData(), &terminal) == 0 &&
           isPseudoTerminal(terminal) &&
           latestBirth(terminal) > birthOfLink(QFile::encodeName(link)) + setUpTime;
}

FileDescriptor TerminalNode::held(const QString& path) {
    return FileDescriptor(::open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC));
}

bool TerminalNode::isStillThere(const FileDescriptor& held) {
    struct stat node {};
    return ::fstat(held.get(), &node) == 0 && node.st_nlink > 0;
}
