#include "platform/MainQueue.h"

#include "platform/Uninterrupted.h"

#include <cerrno>
#include <sys/eventfd.h>
#include <system_error>

struct MainQueue::Job {
    enum class State { Waiting, Running, Finished, Dropped };

    Work work;
    State state = State::Waiting;
};

namespace {

FileDescriptor makeEvent() {
    FileDescriptor event(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK | EFD_SEMAPHORE));
    if (!event.isValid()) {
        throw std::system_error(errno, std::generic_category(), "eventfd");
    }
    return event;
}

} // namespace

// The queue and its wake-up are made of the C++ library's mutex and of a descriptor, not of Qt's
// event posting: what one thread wrote before adding work is then visibly written before the main
// thread reads it, to the reader of this code and to the thread sanitizer alike.
MainQueue::MainQueue() : _event(makeEvent()), _notifier(_event.get(), QSocketNotifier::Read) {
    QObject::connect(&_notifier, &QSocketNotifier::activated, this, &MainQueue::runOne);
}

MainQueue::~MainQueue() {
    shutDown();
}

void MainQueue::async(Work work) {
    static_cast<void>(add(std::make_shared<Job>(Job{std::move(work)})));
}

bool MainQueue::sync(Work work, const std::stop_token& stop) {
    const auto job = std::make_shared<Job>(Job{std::move(work)});
    if (!add(job)) {
        return false;
    }
    std::unique_lock lock(_mutex);
    _changed.wait(lock, stop, [&] {
        return job->state == Job::State::Finished || job->state == Job::State::Dropped;
    });
    if (job->state == Job::State::Waiting) {
        job->state = Job::State::Dropped;
    }
    return job->state == Job::State::Finished;
}

// Whoever holds the queue longest may end it on a thread of his own, which the notifier, while it
// is on, would not bear: the event loop would go on to tell it of its descriptor.
void MainQueue::shutDown() {
    _notifier.setEnabled(false);
    std::deque<std::shared_ptr<Job>> dropped;
    {
        const std::scoped_lock lock(_mutex);
        _isShutDown = true;
        dropped.swap(_jobs);
        for (const auto& job : dropped) {
            job->state = Job::State::Dropped;
        }
    }
    _changed.notify_all();
}

bool MainQueue::add(const std::shared_ptr<Job>& job) {
    {
        const std::scoped_lock lock(_mutex);
        if (_isShutDown) {
            return false;
        }
        _jobs.push_back(job);
    }
    // One count per job: the descriptor stays readable while jobs wait, so that an event loop
    // run by one job goes on with the next.
    static_cast<void>(uninterrupted([this] { return ::eventfd_write(_event.get(), 1); }));
    return true;
}

std::shared_ptr<MainQueue::Job> MainQueue::takeFirst() {
    // Outlives the lock: what a dropped job holds may add another one as it ends.
    std::shared_ptr<Job> job;
    const std::scoped_lock lock(_mutex);
    if (_jobs.empty()) {
        return nullptr;
    }
    job = _jobs.front();
    _jobs.pop_front();
    if (job->state == Job::State::Dropped) {
        return nullptr;
    }
    job->state = Job::State::Running;
    return job;
}

void MainQueue::runOne() {
    eventfd_t count = 0;
    if (uninterrupted([&] { return ::eventfd_read(_event.get(), &count); }) != 0) {
        return;
    }
    if (const auto job = takeFirst()) {
        job->work();
        finish(*job);
    }
}

void MainQueue::finish(Job& job) {
    {
        const std::scoped_lock lock(_mutex);
        job.state = Job::State::Finished;
    }
    _changed.notify_all();
}
