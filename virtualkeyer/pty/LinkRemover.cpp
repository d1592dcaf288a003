#include "virtualkeyer/pty/LinkRemover.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>

namespace virtualkeyer {

namespace {

/// Of all that was inherited only these two stay: above all the terminal has to go with its owner.
void closeAllBut(int first, int second) {
    const auto [low, high] = std::minmax(first, second);
    const auto closeRange = [](int from, int to) {
        if (from <= to) {
            ::close_range(static_cast<unsigned>(from), static_cast<unsigned>(to), 0);
        }
    };
    closeRange(0, low - 1);
    closeRange(low + 1, high - 1);
    ::close_range(static_cast<unsigned>(high) + 1, ~0U, 0);
}

bool isSame(const struct stat& first, const struct stat& second) {
    return first.st_dev == second.st_dev && first.st_ino == second.st_ino &&
           first.st_mtim.tv_sec == second.st_mtim.tv_sec &&
           first.st_mtim.tv_nsec == second.st_mtim.tv_nsec;
}

/// The other process. It runs after a fork, and so makes system calls only.
[[noreturn]] void watch(int life, int directory, const char* name, const struct stat& link) {
    ::setsid();
    ::prctl(PR_SET_NAME, "link remover");
    closeAllBut(life, directory);
    char farewell = 0;
    ssize_t size = 0;
    do {
        size = ::read(life, &farewell, 1);
    } while (size < 0 && errno == EINTR);
    struct stat now {};
    if (size == 0 && ::fstatat(directory, name, &now, AT_SYMLINK_NOFOLLOW) == 0 &&
        isSame(link, now)) {
        ::unlinkat(directory, name, 0);
    }
    ::_exit(0);
}

} // namespace

LinkRemover::LinkRemover(int directory, const std::string& name, const struct stat& link) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) < 0) {
        return;
    }
    const FileDescriptor life(ends[0]);
    _life = FileDescriptor(ends[1]);
    _process = ::fork();
    if (_process == 0) {
        watch(life.number(), directory, name.c_str(), link);
    }
}

LinkRemover::~LinkRemover() {
    if (_process > 0) {
        [[maybe_unused]] const auto size = ::write(_life.number(), "x", 1);
        while (::waitpid(_process, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
}

} // namespace virtualkeyer
