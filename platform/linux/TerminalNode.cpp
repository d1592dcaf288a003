#include "platform/linux/TerminalNode.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
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
    struct stat made {};
    return ::stat(QFile::encodeName(path).constData(), &terminal) == 0 &&
           ::lstat(QFile::encodeName(link).constData(), &made) == 0 && isPseudoTerminal(terminal) &&
           latestBirth(terminal) > seconds(made.st_ctim) + setUpTime;
}
