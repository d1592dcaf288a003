#include "record/RecordStore.h"

#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "platform/WorkerThread.h"
#include "record/RecordFile.h"
#include "record/RunTable.h"

#include <QDir>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What an ending waits for at most: a lock for a second, and a disk that is busy.
constexpr auto patience = 3s;

/// Of runs that cannot be stored for now.
constexpr qsizetype mostWaiting = 1000;

constexpr qint64 millisecondsOfDay = 86'400'000;

} // namespace

/// Shared with the thread, which may outlive the store where a disk hangs.
struct RecordStore::State {
    void run();
    [[nodiscard]] qint64 oldest() const { return wallClock() - days * millisecondsOfDay; }
    void store(RecordFile& file, std::unique_lock<std::mutex>& lock);
    void work(RecordFile& file, std::unique_lock<std::mutex>& lock);
    void tellNumbers(const RunNumbers& numbers);
    void tellTrouble(RecordFile& file);
    void lockAgain(std::unique_lock<std::mutex>& lock) const;

    QString path;
    WallClock wallClock;
    std::shared_ptr<MainQueue> queue;
    /// Looked at on the main thread alone.
    QPointer<RecordStore> owner;

    std::mutex mutex;
    std::condition_variable changed;
    QList<RecordedRun> waiting;
    bool hasNewRuns = false;
    std::deque<Job> jobs;
    qint64 days = 366;
    quint64 lastSearch = 0;
    bool isEnding = false;
    bool hasEnded = false;
    /// The program ends without waiting any longer.
    bool isAbandoned = false;
};

QString RecordStore::standardPath() {
    const auto data = qEnvironmentVariable("XDG_DATA_HOME");
    const auto directory =
        QDir::isAbsolutePath(data) ? data : QDir::homePath() + u"/.local/share"_s;
    return directory + u"/quorvel/sent.db"_s;
}

RecordStore::RecordStore(const QString& path, WallClock wallClock)
    : _state(std::make_shared<State>()) {
    _state->path = path;
    _state->wallClock = std::move(wallClock);
    _state->queue = Platform::current().mainQueue();
    _state->owner = this;
}

RecordStore::~RecordStore() {
    if (!_thread.joinable()) {
        return;
    }
    std::unique_lock lock(_state->mutex);
    _state->isEnding = true;
    _state->jobs.clear();
    _state->changed.notify_all();
    const bool hasEnded =
        _state->changed.wait_for(lock, patience, [this] { return _state->hasEnded; });
    _state->isAbandoned = !hasEnded;
    lock.unlock();
    if (!hasEnded) {
        _thread.detach();
    }
}

QString RecordStore::path() const {
    return _state->path;
}

void RecordStore::begin() {
    if (!_thread.joinable()) {
        _thread = startWorker("record", [state = _state](const std::stop_token&) { state->run(); });
    }
}

void RecordStore::add(Job job) {
    begin();
    const std::scoped_lock lock(_state->mutex);
    _state->jobs.push_back(std::move(job));
    _state->changed.notify_all();
}

void RecordStore::append(const RecordedRun& run) {
    begin();
    const std::scoped_lock lock(_state->mutex);
    if (_state->waiting.size() < mostWaiting) {
        _state->waiting.append(run);
    }
    _state->hasNewRuns = true;
    _state->changed.notify_all();
}

void RecordStore::keepDays(int days) {
    {
        const std::scoped_lock lock(_state->mutex);
        if (std::exchange(_state->days, days) == days) {
            return;
        }
    }
    if (_thread.joinable()) {
        add([state = _state](RecordFile& file) {
            qint64 oldest = 0;
            {
                const std::scoped_lock lock(state->mutex);
                oldest = state->oldest();
            }
            file.trim(oldest);
        });
    }
}

template <typename Result>
void RecordStore::ask(QObject* context, Receiver<Result> receiver,
                      std::function<Result(RecordFile&)> question) {
    add([queue = _state->queue, to = QPointer<QObject>(context), receiver = std::move(receiver),
         question = std::move(question)](RecordFile& file) {
        const auto result = question(file);
        queue->async([to, receiver, result] {
            if (to) {
                receiver(result);
            }
        });
    });
}

void RecordStore::readNumbers(QObject* context, Receiver<RunNumbers> receiver) {
    ask<RunNumbers>(context, std::move(receiver), [](RecordFile& file) { return file.numbers(); });
}

void RecordStore::read(qint64 first, qint64 last, QObject* context,
                       Receiver<QList<StoredRun>> receiver) {
    ask<QList<StoredRun>>(context, std::move(receiver),
                          [=](RecordFile& file) { return file.read(first, last); });
}

void RecordStore::read(const QList<qint64>& numbers, QObject* context,
                       Receiver<QList<StoredRun>> receiver) {
    ask<QList<StoredRun>>(context, std::move(receiver),
                          [=](RecordFile& file) { return file.read(numbers); });
}

void RecordStore::find(const QString& words, qsizetype most, QObject* context,
                       Receiver<QList<qint64>> receiver) {
    quint64 number = 0;
    {
        const std::scoped_lock lock(_state->mutex);
        number = ++_state->lastSearch;
    }
    add([state = _state, number, words, most, to = QPointer<QObject>(context),
         receiver = std::move(receiver)](RecordFile& file) {
        {
            const std::scoped_lock lock(state->mutex);
            if (number != state->lastSearch) {
                return;
            }
        }
        const auto found = file.find(words, most);
        state->queue->async([to, receiver, found] {
            if (to) {
                receiver(found);
            }
        });
    });
}

void RecordStore::save(const QString& path, const QList<qint64>& numbers, QObject* context,
                       Receiver<SavedTable> receiver) {
    auto table = std::make_shared<RunTable>(path, numbers);
    addPart(_state, table,
            [queue = _state->queue, to = QPointer<QObject>(context),
             receiver = std::move(receiver)](const SavedTable& saved) {
                queue->async([to, receiver, saved] {
                    if (to) {
                        receiver(saved);
                    }
                });
            });
    begin();
}

/// Piece by piece, so that runs are stored meanwhile.
void RecordStore::addPart(const std::shared_ptr<State>& state,
                          const std::shared_ptr<RunTable>& table, Receiver<SavedTable> receiver) {
    addJob(state, [weak = std::weak_ptr(state), table, receiver](RecordFile& file) {
        const bool hasMore = table->writeNext(file);
        const auto owner = weak.lock();
        if (owner && hasMore) {
            addPart(owner, table, receiver);
        } else if (owner) {
            addJob(owner, [table, receiver](RecordFile&) { receiver(table->finish()); });
        }
    });
}

/// Unless it ends.
void RecordStore::addJob(const std::shared_ptr<State>& state, Job job) {
    const std::scoped_lock lock(state->mutex);
    if (!state->isEnding) {
        state->jobs.push_back(std::move(job));
        state->changed.notify_all();
    }
}

void RecordStore::takeTrouble(const QString& problem, const QString& aside) {
    if (!aside.isNull() && !std::exchange(_hasFoundDamage, true)) {
        Q_EMIT damageFound(aside);
    }
    if (!problem.isNull() && !std::exchange(_hasFailed, true)) {
        Q_EMIT failed(problem);
    }
}

/// New runs go ahead of all questions.
void RecordStore::State::run() {
    std::optional<RecordFile> file(std::in_place, path);
    std::unique_lock lock(mutex);
    for (bool isLast = false; !isLast; isLast = isEnding && !hasNewRuns) {
        changed.wait(lock, [this] { return isEnding || hasNewRuns || !jobs.empty(); });
        if (hasNewRuns || (isEnding && !waiting.isEmpty())) {
            store(*file, lock);
        } else if (!jobs.empty()) {
            work(*file, lock);
        }
    }
    lock.unlock();
    file.reset(); // a disk may hang in that, too
    lockAgain(lock);
    hasEnded = true;
    changed.notify_all();
}

void RecordStore::State::store(RecordFile& file, std::unique_lock<std::mutex>& lock) {
    const auto runs = waiting;
    const auto keptFrom = oldest();
    hasNewRuns = false;
    lock.unlock();
    const bool isStored = file.append(runs, keptFrom);
    const auto numbers = isStored ? file.numbers() : RunNumbers{};
    tellTrouble(file);
    lockAgain(lock);
    if (isStored) {
        waiting.remove(0, runs.size());
        tellNumbers(numbers);
    }
}

void RecordStore::State::work(RecordFile& file, std::unique_lock<std::mutex>& lock) {
    const auto job = std::move(jobs.front());
    jobs.pop_front();
    lock.unlock();
    job(file);
    if (!file.trouble().aside.isNull()) {
        tellNumbers(file.numbers()); // those of a new record
    }
    tellTrouble(file);
    lockAgain(lock);
}

/// What a program that exits takes down must not be touched any more.
void RecordStore::State::lockAgain(std::unique_lock<std::mutex>& lock) const {
    lock.lock();
    while (isAbandoned) {
        lock.unlock();
        ::pause();
        lock.lock();
    }
}

void RecordStore::State::tellNumbers(const RunNumbers& numbers) {
    queue->async([store = owner, numbers] {
        if (store) {
            Q_EMIT store->grown(numbers);
        }
    });
}

void RecordStore::State::tellTrouble(RecordFile& file) {
    const auto trouble = file.takeTrouble();
    if (trouble.problem.isNull() && trouble.aside.isNull()) {
        return;
    }
    queue->async([store = owner, trouble] {
        if (store) {
            store->takeTrouble(trouble.problem, trouble.aside);
        }
    });
}
