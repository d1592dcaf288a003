#pragma once

#include <functional>
#include <stop_token>
#include <thread>

/// Starts a thread under a name that debuggers show (at most 15 characters). It takes no signals:
/// those are the main thread's, and would interrupt a worker's system calls.
[[nodiscard]] std::jthread startWorker(const char* name,
                                       std::function<void(const std::stop_token&)> work);
