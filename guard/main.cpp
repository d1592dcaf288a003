// The key guard: lets go of the transmitter when the application cannot do it any more.
//
// The application starts one for each opening of the keyer's port, and gives it the open port and
// one end of a channel. While all is well it sleeps. When the application dies, or hangs while it
// keys the transmitter down, the guard keys it up and ends host mode. It has a session of its own,
// so that it outlives whatever ended the application, and it ends with the link.
//
// Usage: quorvel-key-guard PORT CHANNEL
// both being numbers of descriptors that it inherits.

#include "guard/GuardMessage.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

using std::chrono::milliseconds;
using namespace std::chrono_literals;

namespace {

/// As many null commands as the longest command of those without a memory image has parameters:
/// whatever was cut short, the keyer's parser begins anew after them.
constexpr std::size_t nullCount = 15;
constexpr unsigned char nullCommand = 0x13;
constexpr std::array<unsigned char, 5> keyUpClearAndClose{0x0B, 0x00, 0x0A, 0x00, 0x03};

constexpr auto lastWords = [] {
    std::array<unsigned char, nullCount + keyUpClearAndClose.size()> bytes{};
    bytes.fill(nullCommand);
    std::copy(keyUpClearAndClose.begin(), keyUpClearAndClose.end(), bytes.begin() + nullCount);
    return bytes;
}();

/// How long a line that takes nothing is tried.
constexpr milliseconds patience = 5s;

/// Time that does not pass while the machine sleeps.
milliseconds now() {
    timespec time = {};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return std::chrono::seconds(time.tv_sec) +
           std::chrono::duration_cast<milliseconds>(std::chrono::nanoseconds(time.tv_nsec));
}

/// What the application has told.
struct Application {
    bool isTuning = false;
    bool isLoadingMemory = false;
    bool hasTakenLeave = false;
    milliseconds lastSign = 0ms;

    void hear(GuardMessage message) {
        switch (message) {
        case GuardMessage::Tuning:
            isTuning = true;
            lastSign = now();
            break;
        case GuardMessage::NotTuning:
            isTuning = false;
            break;
        case GuardMessage::LoadingMemory:
            isLoadingMemory = true;
            break;
        case GuardMessage::NotLoadingMemory:
            isLoadingMemory = false;
            break;
        case GuardMessage::Farewell:
            hasTakenLeave = true;
            break;
        }
    }

    /// For how long it may still be silent, as poll() takes it.
    [[nodiscard]] int grace() const {
        return isTuning ? static_cast<int>(std::max(lastSign + silenceLimit - now(), 0ms).count())
                        : -1;
    }
};

/// Nothing that is meant for the application reaches the guard, and the guard holds nothing of it
/// but what it needs.
void stepAside(int port, int channel) {
    sigset_t all;
    ::sigfillset(&all);
    ::sigprocmask(SIG_SETMASK, &all, nullptr);
    [[maybe_unused]] const int result = ::chdir("/");
    const auto lower = static_cast<unsigned>(std::min(port, channel));
    const auto upper = static_cast<unsigned>(std::max(port, channel));
    if (lower > 0) {
        ::close_range(0, lower - 1, 0);
    }
    if (upper - lower > 1) {
        ::close_range(lower + 1, upper - 1, 0);
    }
    ::close_range(upper + 1, ~0U, 0);
}

/// A descriptor of the port shares its flags with the application's, which may be alive: they are
/// put back.
void writeLastWords(int port) {
    const int flags = ::fcntl(port, F_GETFL);
    ::fcntl(port, F_SETFL, flags | O_NONBLOCK);
    const auto deadline = now() + patience;
    std::size_t written = 0;
    while (written < lastWords.size() && now() < deadline) {
        const auto count = ::write(port, lastWords.data() + written, lastWords.size() - written);
        if (count > 0) {
            written += static_cast<std::size_t>(count);
        } else if (count < 0 && errno != EAGAIN && errno != EINTR) {
            break;
        } else {
            pollfd room{port, POLLOUT, 0};
            ::poll(&room, 1, static_cast<int>(std::max(deadline - now(), 0ms).count()));
        }
    }
    ::fcntl(port, F_SETFL, flags);
}

/// Text that has not left the computer is of no use any more, and key up must not wait behind it.
void letGoOfKey(int port, const Application& application) {
    if (!application.isLoadingMemory) {
        ::tcflush(port, TCOFLUSH);
    }
    writeLastWords(port);
}

/// False when the channel has come to its end.
bool hearAll(int channel, Application& application) {
    std::array<GuardMessage, 64> messages{};
    const auto count = ::read(channel, messages.data(), sizeof messages);
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) {
        return true;
    }
    std::for_each_n(messages.begin(), std::max<ssize_t>(count, 0),
                    [&](GuardMessage each) { application.hear(each); });
    return count > 0;
}

GuardEnd watch(int port, int channel) {
    Application application;
    for (;;) {
        std::array waited{pollfd{channel, POLLIN, 0}, pollfd{port, 0, 0}};
        const int count = ::poll(waited.data(), waited.size(), application.grace());
        if (count < 0) {
            continue;
        }
        if (waited[1].revents != 0) {
            return GuardEnd::PortLost;
        }
        if (count == 0) {
            letGoOfKey(port, application);
            return GuardEnd::AfterSilence;
        }
        const bool isAlive = hearAll(channel, application);
        if (application.hasTakenLeave) {
            return GuardEnd::Farewell;
        }
        if (!isAlive) {
            letGoOfKey(port, application);
            // A pseudo-terminal would else stay locked.
            ::ioctl(port, TIOCNXCL);
            return GuardEnd::AfterDeath;
        }
    }
}

} // namespace

int main(int argc, char* argv[]) {
    const int port = argc == 3 ? std::atoi(argv[1]) : -1;
    const int channel = argc == 3 ? std::atoi(argv[2]) : -1;
    // A terminal that has gone meanwhile says something else than that it is none.
    const bool isTerminal = ::isatty(port) != 0 || (errno != ENOTTY && errno != EBADF);
    if (port < 0 || channel < 0 || port == channel || !isTerminal) {
        return static_cast<int>(GuardEnd::CannotStart);
    }
    stepAside(port, channel);
    return static_cast<int>(watch(port, channel));
}
