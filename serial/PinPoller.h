#pragma once

#include "serial/StoppableWait.h"

#include <memory>
#include <stop_token>
#include <thread>

class MainQueue;
class ORSSerialPort;

/// Samples the input lines of one opening of a port every 10 ms, from a thread of its own, and
/// sets the port's properties on the main thread. Destroying it ends the thread at once,
/// unless the device holds it.
class PinPoller {
  public:
    /// Asks `descriptor`, which must stay open for as long as the poller lives. Throws
    /// std::system_error when the system has no thread left.
    PinPoller(int descriptor, std::shared_ptr<ORSSerialPort> port,
              std::shared_ptr<MainQueue> mainQueue);

    /// Has the thread end, and does not wait for it.
    void stop() { _thread.request_stop(); }

  private:
    void run(const std::stop_token& stop);
    void tick(const std::stop_token& stop);

    const int _descriptor;
    const std::shared_ptr<ORSSerialPort> _port;
    const std::shared_ptr<MainQueue> _mainQueue;
    StoppableWait _pause;
    std::jthread _thread;
};
