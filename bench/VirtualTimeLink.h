#pragma once

#include "tests/keyer/EngineBench.h"
#include "tests/support/CapturedWrites.h"
#include "virtualkeyer/core/Keyer.h"
#include "virtualkeyer/pty/PacedLine.h"

#include <vector>

/// The keyer engine and a keyer, joined by a 1200 baud line in virtual time: nobody waits, and
/// every run of the same text gives the same times.
class VirtualTimeLink {
  public:
    using Time = virtualkeyer::Time;

    /// The transmitter's key goes down or up at `at`.
    struct KeyChange {
        Time at;
        bool isDown;
    };

    /// `reaction` is how long the engine takes from an echo to the next byte. `wpm` is 5 to 162.
    VirtualTimeLink(int wpm, Time reaction);

    /// Sends a text and lets time pass until it is keyed.
    [[nodiscard]] std::vector<KeyChange> key(const QString& text);

  private:
    void handOnWrites(Time at);
    void handOnEvents(std::vector<KeyChange>& changes);
    [[nodiscard]] std::vector<KeyChange> runUntilQuiet();

    const Time _reaction;
    EngineBench _bench;
    CapturedWrites _writes;
    virtualkeyer::Keyer _keyer;
    virtualkeyer::PacedLine _toKeyer;
    virtualkeyer::PacedLine _toHost;
    Time _now{0};
};
