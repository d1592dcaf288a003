#include "app/TerminationSignals.h"

#include "platform/Uninterrupted.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <sys/eventfd.h>
#include <system_error>

namespace {

constexpr int handledSignals[] = {SIGTERM, SIGINT, SIGHUP, SIGQUIT};

// A signal handler reaches nothing else.
std::atomic<int> eventDescriptor = -1;
static_assert(std::atomic<int>::is_always_lock_free);

void note(int) {
    const auto error = errno;
    ::eventfd_write(eventDescriptor, 1);
    errno = error;
}

FileDescriptor makeEvent() {
    FileDescriptor event(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!event.isValid()) {
        throw std::system_error(errno, std::generic_category(), "eventfd");
    }
    return event;
}

[[nodiscard]] bool handle(void (*handler)(int)) {
    return std::ranges::all_of(handledSignals, [handler](int number) {
        struct sigaction action = {};
        action.sa_handler = handler;
        action.sa_flags = SA_RESTART;
        return ::sigaction(number, &action, nullptr) == 0;
    });
}

} // namespace

TerminationSignals::TerminationSignals(QObject* parent)
    : QObject(parent), _event(makeEvent()), _notifier(_event.get(), QSocketNotifier::Read) {
    QObject::connect(&_notifier, &QSocketNotifier::activated, this, &TerminationSignals::drain);
    eventDescriptor = _event.get();
    if (!handle(note)) {
        throw std::system_error(errno, std::generic_category(), "sigaction");
    }
}

TerminationSignals::~TerminationSignals() {
    static_cast<void>(handle(SIG_DFL));
    eventDescriptor = -1;
}

void TerminationSignals::drain() {
    eventfd_t count = 0;
    if (uninterrupted([&] { return ::eventfd_read(_event.get(), &count); }) == 0) {
        Q_EMIT requested();
    }
}
