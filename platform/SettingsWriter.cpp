#include "platform/SettingsWriter.h"

#include "platform/WorkerThread.h"

#include <condition_variable>
#include <mutex>
#include <optional>

using namespace std::chrono_literals;

namespace {

/// What an ending waits for at most: a lock for a second, and a disk that is busy.
constexpr auto patience = 3s;

} // namespace

/// Shared with the thread, which may outlive the writer where a disk hangs.
struct SettingsWriter::State {
    void run();
    void waitForWork(std::unique_lock<std::mutex>& lock);
    void read(std::unique_lock<std::mutex>& lock);
    void write(std::unique_lock<std::mutex>& lock);

    QString path;
    Receiver receiver;
    std::chrono::milliseconds retryTime{};

    std::mutex mutex;
    std::condition_variable changed;
    std::optional<Job> job;
    /// Not for a while after it has failed.
    bool isJobDue = false;
    bool isReadWanted = false;
    bool isEnding = false;
    bool hasEnded = false;
    quint64 lastTried = 0;
    quint64 lastStored = 0;
};

SettingsWriter::SettingsWriter(const QString& path, Receiver receiver,
                               std::chrono::milliseconds retryTime)
    : _state(std::make_shared<State>()) {
    _state->path = path;
    _state->receiver = std::move(receiver);
    _state->retryTime = retryTime;
    _thread = startWorker("settings", [state = _state](const std::stop_token&) { state->run(); });
}

SettingsWriter::~SettingsWriter() {
    std::unique_lock lock(_state->mutex);
    _state->isEnding = true;
    _state->changed.notify_all();
    const bool hasEnded =
        _state->changed.wait_for(lock, patience, [this] { return _state->hasEnded; });
    _state->receiver = nullptr;
    lock.unlock();
    if (!hasEnded) {
        _thread.detach();
    }
}

void SettingsWriter::read() {
    const std::scoped_lock lock(_state->mutex);
    _state->isReadWanted = true;
    _state->changed.notify_all();
}

void SettingsWriter::write(const Job& job) {
    const std::scoped_lock lock(_state->mutex);
    _state->job = job;
    _state->isJobDue = true;
    _state->changed.notify_all();
}

bool SettingsWriter::finish(quint64 number) {
    std::unique_lock lock(_state->mutex);
    _state->changed.wait_for(lock, patience, [&] { return _state->lastTried >= number; });
    return _state->lastStored >= number;
}

void SettingsWriter::State::run() {
    for (std::unique_lock lock(mutex); !hasEnded; changed.notify_all()) {
        waitForWork(lock);
        if (isReadWanted) {
            read(lock);
        } else if (job && isJobDue) {
            write(lock);
        } else {
            hasEnded = isEnding;
        }
    }
}

void SettingsWriter::State::waitForWork(std::unique_lock<std::mutex>& lock) {
    const auto hasWork = [this] { return isEnding || isReadWanted || (job && isJobDue); };
    if (!job) {
        changed.wait(lock, hasWork);
    } else if (!changed.wait_for(lock, retryTime, hasWork)) {
        isJobDue = true;
    }
}

void SettingsWriter::State::read(std::unique_lock<std::mutex>& lock) {
    isReadWanted = false;
    lock.unlock();
    const auto content = SettingsFile::read(path);
    lock.lock();
    // What has changed there may be what stood in the way.
    isJobDue = true;
    if (receiver) {
        receiver({0, {}, content});
    }
}

void SettingsWriter::State::write(std::unique_lock<std::mutex>& lock) {
    const auto tried = *job;
    lock.unlock();
    const auto result = SettingsFile::write(path, tried.changes, tried.known);
    lock.lock();
    const bool isLast = job->number == tried.number;
    lastTried = tried.number;
    if (result.problem.isNull()) {
        lastStored = tried.number;
    }
    if (isLast && result.problem.isNull()) {
        job.reset();
    }
    isJobDue = !isLast;
    if (receiver) {
        receiver({tried.number, result.problem, {result.values}});
    }
}
