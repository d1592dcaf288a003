#include "platform/SettingsWriter.h"

#include "platform/WorkerThread.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>

using namespace std::chrono_literals;

namespace {

using SettingsFile::Damage;
using std::chrono::steady_clock;

/// What an ending waits for at most: a lock for a second, and a disk that is busy.
constexpr auto patience = 3s;

/// Times the first pause, of which each is twice the last.
constexpr int longestPause = 64;

} // namespace

/// Shared with the thread, which may outlive the writer where a disk hangs.
struct SettingsWriter::State {
    void run();
    void waitForWork(std::unique_lock<std::mutex>& lock);
    void read(std::unique_lock<std::mutex>& lock);
    void write(std::unique_lock<std::mutex>& lock);
    void noteFailure();
    void note(const SettingsFile::Changes& changes, const QStringList& overtakenKeys);
    void dropOvertaken(SettingsFile::Changes& changes) const;

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

    /// What the file said when it was last looked at.
    SettingsFile::Values known;
    /// Of each key the last change that somebody else has overtaken. It may come again in a later
    /// job, which was made before anybody heard of that.
    QHash<QString, SettingsFile::Time> overtaken;
    std::chrono::milliseconds pause{};
    steady_clock::time_point nextTry;
    /// Of the last attempt that failed.
    QString situation;
};

SettingsWriter::SettingsWriter(const QString& path, const SettingsFile::Values& known,
                               Receiver receiver, std::chrono::milliseconds retryTime)
    : _state(std::make_shared<State>()) {
    _state->path = path;
    _state->known = known;
    _state->receiver = std::move(receiver);
    _state->retryTime = retryTime;
    _state->pause = retryTime;
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
    } else if (!changed.wait_until(lock, nextTry, hasWork)) {
        isJobDue = true;
    }
}

void SettingsWriter::State::read(std::unique_lock<std::mutex>& lock) {
    isReadWanted = false;
    lock.unlock();
    const auto content = SettingsFile::read(path);
    const auto found = SettingsFile::situation(path);
    lock.lock();
    if (content.damage == Damage::None) {
        if (job) {
            note(job->changes, SettingsFile::overtaken(job->changes, content, known));
        }
        known = content.values;
    }
    // What has changed there may be what stood in the way. What an attempt itself leaves in the
    // folder is no such change: one would follow the other without end.
    isJobDue = isJobDue || found != situation;
    if (receiver) {
        receiver({0, {}, content, overtaken, {}});
    }
}

void SettingsWriter::State::write(std::unique_lock<std::mutex>& lock) {
    dropOvertaken(job->changes);
    const auto tried = *job;
    const auto knownThen = known;
    lock.unlock();
    const auto result = SettingsFile::write(path, tried.changes, knownThen);
    lock.lock();
    const bool isLast = job->number == tried.number;
    lastTried = tried.number;
    isJobDue = !isLast;
    note(tried.changes, result.overtaken);
    if (result.problem.isNull()) {
        lastStored = tried.number;
        known = result.values;
        pause = retryTime;
        situation.clear();
        if (isLast) {
            job.reset();
        }
    } else {
        noteFailure();
    }
    if (receiver) {
        receiver({tried.number,
                  result.problem,
                  {result.values, result.damage, {}},
                  overtaken,
                  result.aside});
    }
}

void SettingsWriter::State::noteFailure() {
    situation = SettingsFile::situation(path);
    nextTry = steady_clock::now() + pause;
    pause = std::min(pause * 2, retryTime * longestPause);
}

void SettingsWriter::State::note(const SettingsFile::Changes& changes,
                                 const QStringList& overtakenKeys) {
    for (const auto& key : overtakenKeys) {
        overtaken.insert(key, changes.value(key).made);
    }
}

void SettingsWriter::State::dropOvertaken(SettingsFile::Changes& changes) const {
    changes.removeIf([this](const auto& change) {
        const auto last = overtaken.constFind(change.key());
        return last != overtaken.constEnd() && change->made <= *last;
    });
}
