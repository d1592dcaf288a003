#include "serial/PortClosing.h"

#include "platform/WorkerThread.h"
#include "serial/ExclusiveDevice.h"

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
    Closing(FileDescriptor descriptor, const SavedLineSettings& settings,
            std::shared_ptr<Count> count)
        : _descriptor(std::move(descriptor)), _settings(settings), _count(std::move(count)) {
        _count->add(1);
    }

    void run() {
        _outcome = PortClosing::closeIdle(std::move(_descriptor), _settings);
        _isDone.set_value();
        _count->add(-1);
    }

    PortClosing::Outcome await(std::chrono::milliseconds limit) {
        if (_rest.wait_for(limit) != std::future_status::ready) {
            return {.descriptor = {}, .staysLocked = false, .rest = _rest};
        }
        return std::move(_outcome);
    }

  private:
    FileDescriptor _descriptor;
    SavedLineSettings _settings;
    std::shared_ptr<Count> _count;
    /// The closing thread's until it is done.
    PortClosing::Outcome _outcome;
    std::promise<void> _isDone;
    std::shared_future<void> _rest = _isDone.get_future().share();
};

} // namespace

PortClosing::Outcome PortClosing::closeIdle(FileDescriptor descriptor,
                                            const SavedLineSettings& settings) {
    settings.restore(descriptor.get());
    Outcome outcome;
    outcome.staysLocked = !ExclusiveDevice::release(descriptor);
    static_cast<void>(descriptor.close());
    outcome.descriptor = std::move(descriptor);
    return outcome;
}

PortClosing::Outcome PortClosing::close(FileDescriptor descriptor,
                                        const SavedLineSettings& settings,
                                        std::chrono::milliseconds limit) {
    static const LastWait lastWaitOfProgram;
    const auto closing =
        std::make_shared<Closing>(std::move(descriptor), settings, lastWaitOfProgram.count);
    try {
        startWorker("port closing", [closing](const std::stop_token&) { closing->run(); }).detach();
    } catch (const std::system_error&) {
        closing->run();
    }
    return closing->await(limit);
}
