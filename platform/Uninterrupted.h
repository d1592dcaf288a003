#pragma once

#include <cerrno>

/// Makes a system call again for as long as signals interrupt it. Returns what it returns then.
template <typename Call>
[[nodiscard]] int uninterrupted(Call call) {
    for (;;) {
        const int result = call();
        if (result >= 0 || errno != EINTR) {
            return result;
        }
    }
}
