#include "serial/ExclusiveDevice.h"

#include "platform/Uninterrupted.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>

namespace {

// A file system that has no locks is no reason to do without the device.
bool lock(const FileDescriptor& descriptor) {
    const int result = uninterrupted([&] { return ::flock(descriptor.get(), LOCK_EX | LOCK_NB); });
    return result == 0 || errno != EWOULDBLOCK;
}

// Not a duplicate: whether reads block belongs to what was opened, not to the descriptor.
FileDescriptor openInput(const FileDescriptor& descriptor) {
    const auto name = QByteArray("/proc/self/fd/") + QByteArray::number(descriptor.get());
    return FileDescriptor(uninterrupted([&] {
        return ::openat(AT_FDCWD, name.constData(), O_RDONLY | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    }));
}

// Each lock keeps out openers that the other lets in: flock those who ask for it, exclusive mode
// all but root, which is why the input is opened before it is on. A node that refuses it is no
// live terminal.
bool complete(ExclusiveDevice::Device& device) {
    // 0 marks a closed port, so it cannot be an open one.
    if (device.descriptor.get() <= 0 || !lock(device.descriptor)) {
        return false;
    }
    device.input = openInput(device.descriptor);
    return device.input.isValid() && ::ioctl(device.descriptor.get(), TIOCEXCL) == 0;
}

} // namespace

namespace ExclusiveDevice {

Device open(const QString& path) {
    const auto name = QFile::encodeName(path);
    Device device;
    device.descriptor = FileDescriptor(uninterrupted(
        [&] { return ::open(name.constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC); }));
    if (!complete(device)) {
        const int number = errno;
        device = {};
        errno = number;
        return device;
    }
    static_cast<void>(::fcntl(device.descriptor.get(), F_SETFL, 0));
    return device;
}

// A line that has hung up keeps nobody out: whoever opens the device gets a new one.
bool release(const FileDescriptor& descriptor) {
    return ::ioctl(descriptor.get(), TIOCNXCL) == 0 || errno == EIO;
}

} // namespace ExclusiveDevice
