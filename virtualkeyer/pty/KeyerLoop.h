#pragma once

#include "virtualkeyer/core/Event.h"
#include "virtualkeyer/pty/PseudoTerminal.h"
#include "virtualkeyer/pty/SerialKeyer.h"

#include <chrono>

namespace virtualkeyer {

/// Runs a keyer in real time on a pseudo-terminal. Blocks in the kernel whenever nothing is due.
class KeyerLoop {
  public:
    /// All must outlive the loop. The keyer's time starts here.
    /// The paddle is worked by what is read from the descriptor `paddle`, if it is none below 0:
    /// "." closes the dit contact and "-" the other one, and anything else opens both, as does the
    /// end of what is read.
    KeyerLoop(SerialKeyer& keyer, PseudoTerminal& terminal, int paddle = -1);

    /// Runs until `stopDescriptor` is readable. Failures of the system and of the keyer's listener
    /// are thrown. Runs on the calling thread.
    void run(int stopDescriptor);

  private:
    using Clock = std::chrono::steady_clock;

    [[nodiscard]] Time now() const { return Clock::now() - _start; }
    [[nodiscard]] bool waitForWork(int stopDescriptor);
    void noticeOpenings();
    void workPaddle();
    void receiveFromHost();
    void advance();

    SerialKeyer& _keyer;
    PseudoTerminal& _terminal;
    int _paddle;
    bool _isPaddleToBeWorked = false;
    Clock::time_point _start;
};

} // namespace virtualkeyer
