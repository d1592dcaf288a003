#pragma once

#include <chrono>
#include <functional>
#include <future>

/// Drivers have their own idea of how long it takes: to answer a request, to send what is left, to
/// open, to close. So a thread of its own waits for that.
namespace DriverCall {

/// Runs `work`, and returns when it has ended or `limit` has passed; it goes on without the caller
/// then, and a program that ends waits for it a second longer. What is returned is ready once
/// `work` has ended and let go of all that it held, and says what it said. `name` as of
/// startWorker(). Where the system has no thread to give the caller runs it, however long it takes.
[[nodiscard]] std::shared_future<bool> run(const char* name, std::function<bool()> work,
                                           std::chrono::milliseconds limit);

} // namespace DriverCall
