#include "virtualkeyer/pty/LinkRemover.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace virtualkeyer {

namespace {

/// Of all that was inherited only these stay: above all the terminal has to go with its owner.
void closeAllBut(std::array<int, 3> kept) {
    std::ranges::sort(kept);
    int first = 0;
    for (const int each : kept) {
        if (first < each) {
            ::close_range(static_cast<unsigned>(first), static_cast<unsigned>(each) - 1, 0);
        }
        first = each + 1;
    }
    ::close_range(static_cast<unsigned>(first), ~0U, 0);
}

/// Reads one byte, or sees that nobody is left to write one; the number of bytes.
ssize_t waitForByte(int end) {
    char byte = 0;
    ssize_t size = 0;
    do {
        size = ::read(end, &byte, 1);
    } while (size < 0 && errno == EINTR);
    return size;
}

bool isSame(const struct stat& first, const struct stat& second) {
    return first.st_dev == second.st_dev && first.st_ino == second.st_ino &&
           first.st_mtim.tv_sec == second.st_mtim.tv_sec &&
           first.st_mtim.tv_nsec == second.st_mtim.tv_nsec;
}

/// The other process. It runs after a fork, and so makes system calls only.
[[noreturn]] void watch(int life, int ready, int directory, const char* name,
                        const struct stat& link) {
    ::setsid();
    ::prctl(PR_SET_NAME, "link remover");
    closeAllBut({life, ready, directory});
    ::close(ready);
    struct stat now {};
    if (waitForByte(life) == 0 && ::fstatat(directory, name, &now, AT_SYMLINK_NOFOLLOW) == 0 &&
        isSame(link, now)) {
        ::unlinkat(directory, name, 0);
    }
    ::_exit(0);
}

} // namespace

LinkRemover::LinkRemover(int directory, const std::string& name, const struct stat& link) {
    std::array<int, 2> lifeEnds{};
    std::array<int, 2> readyEnds{};
    if (::pipe2(lifeEnds.data(), O_CLOEXEC) < 0) {
        return;
    }
    const FileDescriptor life(lifeEnds[0]);
    _life = FileDescriptor(lifeEnds[1]);
    if (::pipe2(readyEnds.data(), O_CLOEXEC) < 0) {
        return;
    }
    const FileDescriptor ready(readyEnds[0]);
    {
        const FileDescriptor whileInherited(readyEnds[1]);
        _process = ::fork();
        if (_process == 0) {
            watch(life.number(), whileInherited.number(), directory, name.c_str(), link);
        }
    }
    // Until the other process has closed what it inherited, it holds the name and the terminal,
    // too, and would keep them beyond a death of this one.
    waitForByte(ready.number());
}

LinkRemover::~LinkRemover() {
    if (_process > 0) {
        [[maybe_unused]] const auto size = ::write(_life.number(), "x", 1);
        while (::waitpid(_process, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
}

} // namespace virtualkeyer
