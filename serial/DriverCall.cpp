#include "serial/DriverCall.h"

#include "platform/WorkerThread.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <system_error>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto lastWait = 1s;

/// How many are under way, in this program.
class Count {
  public:
    void add(int change) {
        const std::scoped_lock lock(_mutex);
        _count += change;
        _changed.notify_all();
    }

    void awaitNone(std::chrono::milliseconds limit) {
        std::unique_lock lock(_mutex);
        _changed.wait_for(lock, limit, [this] { return _count == 0; });
    }

  private:
    std::mutex _mutex;
    std::condition_variable _changed;
    int _count = 0;
};

/// Never destroyed: a thread that nobody waits for has its share in it to the very end, and so has
/// whoever closes a port while the program exits.
Count& underWay() {
    static auto* const count = new Count;
    return *count;
}

class LastWait {
  public:
    LastWait() = default;
    LastWait(const LastWait&) = delete;
    LastWait& operator=(const LastWait&) = delete;
    ~LastWait() { underWay().awaitNone(lastWait); }
};

class Call {
  public:
    explicit Call(std::function<bool()> work) : _work(std::move(work)) { underWay().add(1); }

    void run() {
        const bool result = _work();
        _work = nullptr;
        _result.set_value(result);
        underWay().add(-1);
    }

    std::shared_future<bool> result() { return _result.get_future().share(); }

  private:
    std::function<bool()> _work;
    std::promise<bool> _result;
};

} // namespace

std::shared_future<bool> DriverCall::run(const char* name, std::function<bool()> work,
                                         std::chrono::milliseconds limit) {
    const auto call = std::make_shared<Call>(std::move(work));
    auto result = call->result();
    try {
        auto thread = startWorker(name, [call](const std::stop_token&) { call->run(); });
        if (result.wait_for(limit) != std::future_status::ready) {
            static const LastWait lastWaitOfProgram;
            thread.detach();
        }
    } catch (const std::system_error&) {
        call->run();
    }
    return result;
}
