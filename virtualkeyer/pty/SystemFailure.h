#pragma once

#include <cerrno>
#include <string>
#include <system_error>

namespace virtualkeyer {

/// Throws std::system_error from the current errno; `what` says what was tried.
[[noreturn]] inline void throwSystemFailure(const std::string& what) {
    throw std::system_error(errno, std::generic_category(), what);
}

/// Passes a system call's `result` on, or throws std::system_error when it is negative.
inline int checked(int result, const std::string& what) {
    if (result < 0) {
        throwSystemFailure(what);
    }
    return result;
}

} // namespace virtualkeyer
