#include "serial/LowLatency.h"

#include <QFile>

#include <linux/serial.h>
#include <linux/tty_flags.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int lowLatency = ASYNC_LOW_LATENCY;

/// The timer's file, whatever name the node was opened by. Most devices have none.
QString timerPath(int descriptor, const QString& sysfs) {
    struct stat node = {};
    if (::fstat(descriptor, &node) != 0) {
        return {};
    }
    return u"%1/dev/char/%2:%3/device/latency_timer"_s.arg(sysfs)
        .arg(major(node.st_rdev))
        .arg(minor(node.st_rdev));
}

/// The timer in ms; 0 when there is none.
int timer(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toInt() : 0;
}

// Only root may write to the file, as a rule.
bool setTimer(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::ExistingOnly | QIODevice::Unbuffered) &&
           file.write("1") == 1;
}

// Some drivers take the flag without an error and forget it, so it is read back.
bool setFlag(int descriptor) {
    serial_struct settings = {};
    if (::ioctl(descriptor, TIOCGSERIAL, &settings) != 0 || (settings.flags & lowLatency) != 0) {
        return false;
    }
    settings.flags |= lowLatency;
    return ::ioctl(descriptor, TIOCSSERIAL, &settings) == 0 &&
           ::ioctl(descriptor, TIOCGSERIAL, &settings) == 0 && (settings.flags & lowLatency) != 0;
}

} // namespace

bool LowLatency::obtain(int descriptor, const QString& sysfs) {
    const auto path = timerPath(descriptor, sysfs);
    const int present = timer(path);
    if (present == 1) {
        return false;
    }
    return (present > 1 && setTimer(path)) || setFlag(descriptor);
}
