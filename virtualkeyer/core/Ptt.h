#pragma once

#include "virtualkeyer/core/Outbox.h"

#include <optional>

namespace virtualkeyer {

class Registers;

/// Switching between receive and transmit. It goes on while the PTT pin is disabled, unseen.
class Ptt {
  public:
    Ptt(const Registers& registers, Outbox& outbox) : _registers(registers), _outbox(outbox) {}

    /// Transmits until further notice; when the key may go down: after the lead-in, or at once if
    /// that is over.
    [[nodiscard]] Time raise(Time now);
    /// Receives from `at` on, unless the transmitter is raised again before or the host holds it.
    void releaseAt(Time at) { _until = at; }
    /// The host's own buffered PTT.
    void setHeld(bool isHeld, Time now);
    /// Receives at once.
    void drop(Time now);

    /// Whether the element that begins now is the first after receive; asked once per element.
    [[nodiscard]] bool takeFirstElement();

    [[nodiscard]] std::optional<Time> due() const;
    void run(Time now);
    /// The registers have changed.
    void refresh(Time now);

  private:
    const Registers& _registers;
    Outbox& _outbox;
    bool _isOn = false;
    bool _isShown = false;
    bool _isHeld = false;
    bool _isFirst = false;
    Time _ready{0};
    std::optional<Time> _until;
};

} // namespace virtualkeyer
