#pragma once

#include "platform/FileDescriptor.h"

#include <QObject>
#include <QSocketNotifier>

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>

/// The main thread's event loop as a queue of work that any thread may add to.
///
/// Work runs in the order in which it was added, one piece at a time, only from the event loop:
/// never inside an operation that is running on the main thread, unless that one runs an event
/// loop of its own, as a modal alert does.
class MainQueue final : public QObject {
    Q_OBJECT
  public:
    using Work = std::function<void()>;

    /// Made on the main thread.
    MainQueue();
    ~MainQueue() override;

    /// Adds work and returns at once. Any thread. After shutDown() the work is dropped.
    void async(Work work);

    /// Adds work and waits until it has run; true if it has. Once `stop` is requested or the queue
    /// is shut down the caller waits no longer, and work that has not begun never runs; work that
    /// has begun goes on, so it must own all that it touches. Any thread but the main one.
    bool sync(Work work, const std::stop_token& stop);

    /// Drops all work and takes no more. Main thread.
    void shutDown();

  private:
    struct Job;

    [[nodiscard]] bool add(const std::shared_ptr<Job>& job);
    [[nodiscard]] std::shared_ptr<Job> takeFirst();
    void runOne();
    void finish(Job& job);

    std::mutex _mutex;
    std::condition_variable_any _changed;
    std::deque<std::shared_ptr<Job>> _jobs;
    bool _isShutDown = false;
    FileDescriptor _event;
    QSocketNotifier _notifier;
};
