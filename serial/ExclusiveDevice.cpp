#include "serial/ExclusiveDevice.h"

#include "platform/Uninterrupted.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>

namespace {

// Each lock keeps out openers that the other lets in: the first those who ask for it, the second
// all but root. A file system that has no locks is no reason to do without the device; a node
// that refuses exclusive mode is no live terminal.
bool lock(const FileDescriptor& descriptor) {
    const int result = uninterrupted([&] { return ::flock(descriptor.get(), LOCK_EX | LOCK_NB); });
    if (result != 0 && errno == EWOULDBLOCK) {
        return false;
    }
    return ::ioctl(descriptor.get(), TIOCEXCL) == 0;
}

} // namespace

namespace ExclusiveDevice {

FileDescriptor open(const QString& path) {
    const auto name = QFile::encodeName(path);
    FileDescriptor descriptor(uninterrupted(
        [&] { return ::open(name.constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC); }));
    // 0 marks a closed port, so it cannot be an open one.
    if (descriptor.get() <= 0 || !lock(descriptor)) {
        const int number = errno;
        descriptor = FileDescriptor();
        errno = number;
        return descriptor;
    }
    static_cast<void>(::fcntl(descriptor.get(), F_SETFL, 0));
    return descriptor;
}

// A line that has hung up keeps nobody out: whoever opens the device gets a new one.
bool release(const FileDescriptor& descriptor) {
    return ::ioctl(descriptor.get(), TIOCNXCL) == 0 || errno == EIO;
}

} // namespace ExclusiveDevice
