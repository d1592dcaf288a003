#include "serial/LineOutput.h"

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace LineOutput {

// The flag belongs to the reader too, who reads nothing but what is there, so that it makes no
// difference to it.
ssize_t write(int descriptor, const QByteArray& bytes) {
    static_cast<void>(::fcntl(descriptor, F_SETFL, O_NONBLOCK));
    const auto count = ::write(descriptor, bytes.constData(), static_cast<size_t>(bytes.size()));
    const int number = errno;
    static_cast<void>(::fcntl(descriptor, F_SETFL, 0));
    errno = number;
    return count;
}

bool hasRoom(int descriptor) {
    pollfd polled{descriptor, POLLOUT, 0};
    return ::poll(&polled, 1, 0) == 1;
}

int waiting(int descriptor) {
    int count = 0;
    return ::ioctl(descriptor, TIOCOUTQ, &count) == 0 ? count : 0;
}

void drop(int descriptor) {
    static_cast<void>(::tcflush(descriptor, TCOFLUSH));
}

} // namespace LineOutput
