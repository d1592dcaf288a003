#include "virtualkeyer/pty/PseudoTerminal.h"

#include "virtualkeyer/pty/SystemFailure.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <termios.h>

namespace virtualkeyer {

namespace {

std::string pathOfSlave(int master) {
    std::array<char, 128> path{};
    if (const int error = ::ptsname_r(master, path.data(), path.size()); error != 0) {
        errno = error;
        throwSystemFailure("cannot name the pseudo-terminal");
    }
    return path.data();
}

/// The line as it is when the application finds it: no echo and no line editing, so that nothing
/// that the keyer sends comes back to it.
void makeRaw(int slave) {
    termios settings{};
    checked(::tcgetattr(slave, &settings), "cannot read the pseudo-terminal's settings");
    ::cfmakeraw(&settings);
    settings.c_cflag |= CSTOPB | CLOCAL;
    ::cfsetspeed(&settings, B1200);
    checked(::tcsetattr(slave, TCSANOW, &settings), "cannot make the pseudo-terminal raw");
}

} // namespace

PseudoTerminal::PseudoTerminal()
    : _master(checked(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK),
                      "cannot make a pseudo-terminal")),
      _watch(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    checked(::grantpt(_master.number()), "cannot grant the pseudo-terminal");
    checked(::unlockpt(_master.number()), "cannot unlock the pseudo-terminal");
    _slavePath = pathOfSlave(_master.number());
    holdSlave();
}

int PseudoTerminal::takeOpenings() {
    if (!_watch.isOpen()) {
        return takeExclusiveOpenings();
    }
    int openings = 0;
    alignas(inotify_event) std::array<char, 4096> buffer{};
    ssize_t size = 0;
    while ((size = ::read(_watch.number(), buffer.data(), buffer.size())) > 0) {
        for (std::size_t at = 0; at < static_cast<std::size_t>(size);) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            at += sizeof event + event.len;
            if ((event.mask & IN_OPEN) != 0 && _openCount++ == 0) {
                ++openings;
                afterOpened();
            } else if ((event.mask & IN_CLOSE) != 0 && _openCount > 0 && --_openCount == 0) {
                afterClosed();
            }
        }
    }
    return openings;
}

int PseudoTerminal::takeExclusiveOpenings() {
    int isExclusive = 0;
    ::ioctl(_slave.number(), TIOCGEXCL, &isExclusive);
    const bool wasOpen = isOpenByApplication();
    _openCount = isExclusive != 0 ? 1 : 0;
    if (wasOpen && !isOpenByApplication()) {
        afterClosed();
    }
    return !wasOpen && isOpenByApplication() ? 1 : 0;
}

std::size_t PseudoTerminal::read(std::span<std::uint8_t> buffer) {
    const ssize_t size = ::read(_master.number(), buffer.data(), buffer.size());
    if (size >= 0) {
        return static_cast<std::size_t>(size);
    }
    if (errno != EAGAIN && errno != EINTR) {
        throwSystemFailure("cannot read from the host");
    }
    return 0;
}

void PseudoTerminal::write(std::span<const std::uint8_t> bytes) {
    if (::write(_master.number(), bytes.data(), bytes.size()) < 0 && errno != EAGAIN) {
        throwSystemFailure("cannot write to the host");
    }
}

/// Opens the application's side, which then has no last close, and watches it from there on.
void PseudoTerminal::holdSlave() {
    _slave = FileDescriptor(checked(::open(_slavePath.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC),
                                    "cannot open " + _slavePath));
    if (::inotify_add_watch(_watch.number(), _slavePath.c_str(), IN_OPEN | IN_CLOSE) < 0) {
        _watch = FileDescriptor();
    }
    makeRaw(_slave.number());
}

void PseudoTerminal::afterOpened() {
    ::tcflush(_slave.number(), TCIFLUSH);
}

void PseudoTerminal::afterClosed() {
    ::tcflush(_slave.number(), TCIFLUSH);
    ::ioctl(_slave.number(), TIOCNXCL);
    makeRaw(_slave.number());
}

} // namespace virtualkeyer
