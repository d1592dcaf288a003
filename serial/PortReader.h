#pragma once

#include "serial/ReadBacklog.h"
#include "serial/StoppableWait.h"

#include <memory>
#include <stop_token>
#include <thread>

class MainQueue;
class ORSSerialPort;

/// Reads one opening of a port from a thread of its own and hands the bytes to the port on the
/// main queue, in blocks of the port's size at most, as they come, for as long as that opening
/// lasts. Destroying it ends the thread at once, unless the device
/// holds it.
class PortReader {
  public:
    /// Reads from `descriptor`, which does not block, and is woken through `wakeUp`, an event
    /// counter; both must stay open for as long as the reader lives. Bytes that the main queue
    /// comes to when `opening` has expired, which it does on the main thread, are dropped. Throws
    /// std::system_error when the system has no thread left.
    PortReader(int descriptor, int wakeUp, std::weak_ptr<const void> opening,
               std::shared_ptr<ORSSerialPort> port, std::shared_ptr<MainQueue> mainQueue);

    /// Has the thread end, and does not wait for it.
    void stop() { _thread.request_stop(); }

  private:
    enum class Wait { Failed, TimedOut, Readable };

    void run(const std::stop_token& stop);
    [[nodiscard]] Wait waitForData();
    [[nodiscard]] bool readOnce();
    void reportError(const std::stop_token& stop);

    const int _descriptor;
    const std::weak_ptr<const void> _opening;
    const std::shared_ptr<ORSSerialPort> _port;
    const std::shared_ptr<MainQueue> _mainQueue;
    const int _wakeUp;
    const std::shared_ptr<ReadBacklog> _backlog = std::make_shared<ReadBacklog>();
    StoppableWait _pause;
    std::jthread _thread;
};
