#include "tests/support/CapturedWrites.h"

#include <atomic>
#include <stdexcept>
#include <unistd.h>
#include <utility>

namespace {

constexpr int none = -1;

std::atomic<int> captured = none;
QByteArray bytes;

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
    if (descriptor == none || descriptor != captured) {
        return __real_write(descriptor, buffer, length);
    }
    bytes.append(static_cast<const char*>(buffer), static_cast<qsizetype>(length));
    return static_cast<ssize_t>(length);
}
}
