#include "virtualkeyer/pty/StopSignals.h"

#include "virtualkeyer/pty/SystemFailure.h"

#include <csignal>
#include <sys/signalfd.h>

namespace virtualkeyer {

StopSignals::StopSignals() {
    sigset_t signals;
    ::sigemptyset(&signals);
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        ::sigaddset(&signals, number);
    }
    checked(::sigprocmask(SIG_BLOCK, &signals, nullptr), "cannot block the stop signals");
    _signals = FileDescriptor(
        checked(::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK), "cannot await signals"));
}

} // namespace virtualkeyer
