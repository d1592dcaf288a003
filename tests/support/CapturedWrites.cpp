#include "tests/support/CapturedWrites.h"

#include <atomic>
#include <cstdarg>
#include <fcntl.h>
#include <stdexcept>
#include <sys/ioctl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int none = -1;

std::atomic<int> captured = none;
QByteArray bytes;

bool isCaptured(int descriptor) {
    return descriptor != none && descriptor == captured;
}

} // namespace

CapturedWrites::CapturedWrites(int descriptor) {
    int expected = none;
    if (!captured.compare_exchange_strong(expected, descriptor)) {
        throw std::logic_error("Writes are captured already.");
    }
}

CapturedWrites::~CapturedWrites() {
    captured = none;
    bytes.clear();
}

QByteArray CapturedWrites::take() {
    return std::exchange(bytes, {});
}

extern "C" {

ssize_t __real_write(int descriptor, const void* buffer, size_t length);

ssize_t __wrap_write(int descriptor, const void* buffer, size_t length) {
    if (!isCaptured(descriptor)) {
        return __real_write(descriptor, buffer, length);
    }
    bytes.append(static_cast<const char*>(buffer), static_cast<qsizetype>(length));
    return static_cast<ssize_t>(length);
}

// What goes with each write: whether it may block, and how much of it is still to go out.
int __real_fcntl(int descriptor, int command, ...);

int __wrap_fcntl(int descriptor, int command, ...) {
    va_list arguments;
    va_start(arguments, command);
    auto* const argument = va_arg(arguments, void*);
    va_end(arguments);
    return isCaptured(descriptor) && command == F_SETFL
               ? 0
               : __real_fcntl(descriptor, command, argument);
}

int __real_ioctl(int descriptor, unsigned long request, ...);

int __wrap_ioctl(int descriptor, unsigned long request, ...) {
    va_list arguments;
    va_start(arguments, request);
    auto* const argument = va_arg(arguments, void*);
    va_end(arguments);
    if (isCaptured(descriptor) && request == TIOCOUTQ) {
        *static_cast<int*>(argument) = 0;
        return 0;
    }
    return __real_ioctl(descriptor, request, argument);
}
}
