#include "serial/PortClosing.h"

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

/// The threads that are not waited for in the end have their share in the count.
class LastWait {
  public:
    LastWait() = default;
    LastWait(const LastWait&) = delete;
    LastWait& operator=(const LastWait&) = delete;
    ~LastWait() { count->awaitNone(lastWait); }

    const std::shared_ptr<Count> count = std::make_shared<Count>();
};

class Closing {
  public:
    Closing(std::shared_ptr<OpenedDevice> device, std::shared_ptr<Count> count)
        : _device(std::move(device)), _count(std::move(count)) {
        _count->add(1);
    }

    void run() {
        const bool isClosed = _device->close();
        _device.reset();
        _isClosed.set_value(isClosed);
        _count->add(-1);
    }

    std::shared_future<bool> isClosed() { return _isClosed.get_future().share(); }

  private:
    std::shared_ptr<OpenedDevice> _device;
    std::shared_ptr<Count> _count;
    std::promise<bool> _isClosed;
};

} // namespace

std::shared_future<bool> PortClosing::close(const std::shared_ptr<OpenedDevice>& device,
                                            std::chrono::milliseconds limit) {
    static const LastWait lastWaitOfProgram;
    // From here, so that a worker which waits for this thread gives up.
    device->stopWorkers();
    const auto closing = std::make_shared<Closing>(device, lastWaitOfProgram.count);
    const auto isClosed = closing->isClosed();
    try {
        auto thread =
            startWorker("port closing", [closing](const std::stop_token&) { closing->run(); });
        if (isClosed.wait_for(limit) != std::future_status::ready) {
            thread.detach();
        }
    } catch (const std::system_error&) {
        closing->run();
    }
    return isClosed;
}
