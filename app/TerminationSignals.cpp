#include "app/TerminationSignals.h"

#include <QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <sys/eventfd.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr int handledSignals[] = {SIGTERM, SIGINT, SIGHUP};

// A signal handler reaches nothing else.
std::atomic<int> eventDescriptor = -1;
static_assert(std::atomic<int>::is_always_lock_free);

void note(int) {
    const auto error = errno;
    ::eventfd_write(eventDescriptor, 1);
    errno = error;
}

void handle(void (*handler)(int)) {
    for (const auto number : handledSignals) {
        struct sigaction action = {};
        action.sa_handler = handler;
        action.sa_flags = SA_RESTART;
        if (::sigaction(number, &action, nullptr) != 0) {
            throw std::system_error(errno, std::generic_category(), "sigaction");
        }
    }
}

} // namespace

TerminationSignals::TerminationSignals(QObject* parent) : QObject(parent) {
    eventDescriptor = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (eventDescriptor < 0) {
        throw std::system_error(errno, std::generic_category(), "eventfd");
    }
    _notifier = new QSocketNotifier(eventDescriptor, QSocketNotifier::Read, this);
    QObject::connect(_notifier, &QSocketNotifier::activated, this, &TerminationSignals::drain);
    handle(note);
}

TerminationSignals::~TerminationSignals() {
    handle(SIG_DFL);
    delete _notifier;
    ::close(eventDescriptor.exchange(-1));
}

void TerminationSignals::drain() {
    eventfd_t count = 0;
    if (::eventfd_read(eventDescriptor, &count) == 0) {
        Q_EMIT requested();
    }
}
