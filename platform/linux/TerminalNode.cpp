#include "platform/linux/TerminalNode.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <sys/sysmacros.h>

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned standInMajor = 5;
constexpr unsigned firstPseudoTerminalMajor = 136;
constexpr unsigned lastPseudoTerminalMajor = 143;

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
    // Pseudo-terminals have fixed numbers, and no entry in sysfs.
    if (major >= firstPseudoTerminalMajor && major <= lastPseudoTerminalMajor) {
        return true;
    }
    const QFileInfo subsystem(
        u"/sys/dev/char/%1:%2/subsystem"_s.arg(major).arg(gnu_dev_minor(status.st_rdev)));
    return QFileInfo(subsystem.symLinkTarget()).fileName() == u"tty";
}
