#include "platform/WorkerThread.h"

#include <csignal>
#include <pthread.h>

std::jthread startWorker(const char* name, std::function<void(const std::stop_token&)> work) {
    return std::jthread([name, work = std::move(work)](const std::stop_token& stop) {
        sigset_t all;
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_BLOCK, &all, nullptr);
        ::pthread_setname_np(::pthread_self(), name);
        work(stop);
    });
}
