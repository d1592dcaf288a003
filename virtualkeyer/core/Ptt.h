#pragma once

#include "virtualkeyer/core/Outbox.h"

#include <optional>

namespace virtualkeyer {

class Registers;

/// Switching between receive and transmit. It goes on while the PTT pin is disabled, unseen.
class Ptt {
  public:
    /// Who transmits. Each lets go by itself; the last and latest ends the transmission.
    enum Holder : unsigned { Text = 1, PaddleText = 2, Tuning = 4, HostCommand = 8 };

    Ptt(const Registers& registers, Outbox& outbox) : _registers(registers), _outbox(outbox) {}

    /// Transmits until further notice; returns when the key may go down: after the lead-in, or at
    /// once if that is over.
    Time raise(Holder holder, Time now);
    /// `holder` needs the transmitter until `at`, which is not before now, and no longer.
    void releaseAt(Holder holder, Time at);
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
    unsigned _holders = 0;
    bool _isOn = false;
    bool _isShown = false;
    bool _isFirst = false;
    Time _ready{0};
    Time _until{0};
};

} // namespace virtualkeyer
