#pragma once

#include <condition_variable>
#include <mutex>
#include <stop_token>

/// How many blocks a reader has handed over that the main thread has not taken yet. A reader that
/// is too far ahead waits, so that a device that talks without end fills no memory. Any thread.
class ReadBacklog {
  public:
    /// The most blocks that wait.
    static constexpr int limit = 1000;

    void add() {
        const std::scoped_lock lock(_mutex);
        ++_count;
    }

    void remove() {
        {
            const std::scoped_lock lock(_mutex);
            --_count;
        }
        _changed.notify_all();
    }

    /// Returns when there is room for one more, or when `stop` is requested.
    void awaitRoom(const std::stop_token& stop) {
        std::unique_lock lock(_mutex);
        _changed.wait(lock, stop, [this] { return _count < limit; });
    }

  private:
    std::mutex _mutex;
    std::condition_variable_any _changed;
    int _count = 0;
};
