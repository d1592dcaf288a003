#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stop_token>

/// A worker's pause that ends at once when the worker is told to stop.
class StoppableWait {
  public:
    void until(std::chrono::steady_clock::time_point deadline, const std::stop_token& stop) {
        std::unique_lock lock(_mutex);
        _changed.wait_until(lock, stop, deadline, [] { return false; });
    }

  private:
    std::mutex _mutex;
    std::condition_variable_any _changed;
};
