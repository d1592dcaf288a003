#pragma once

#include "virtualkeyer/core/Event.h"
#include "virtualkeyer/pty/KeyerPort.h"
#include "virtualkeyer/pty/Operator.h"
#include "virtualkeyer/pty/SerialKeyer.h"

#include <chrono>
#include <optional>
#include <vector>

namespace virtualkeyer {

/// Runs a keyer in real time on its port. Blocks in the kernel whenever nothing is due.
class KeyerLoop {
  public:
    /// All must outlive the loop. The keyer's time starts here.
    KeyerLoop(SerialKeyer& keyer, KeyerPort& port, std::vector<Operator*> operators = {});

    /// Runs until `stopDescriptor` is readable or an operator ends it. The port is plugged in and
    /// pulled as the keyer is. Failures of the system and of the keyer's listeners are thrown. Runs
    /// on the calling thread.
    void run(int stopDescriptor);

  private:
    using Clock = std::chrono::steady_clock;

    [[nodiscard]] Time now() const { return Clock::now() - _start; }
    [[nodiscard]] bool waitForWork(int stopDescriptor);
    [[nodiscard]] std::optional<Time> nextDue() const;
    [[nodiscard]] bool hasEnded() const;
    void noticeOpenings();
    void letOperatorsWork();
    void followPlug();
    void receiveFromHost();
    void advance();

    SerialKeyer& _keyer;
    KeyerPort& _port;
    std::vector<Operator*> _operators;
    std::vector<bool> _isReadable;
    Clock::time_point _start;
};

} // namespace virtualkeyer
