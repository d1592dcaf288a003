#pragma once

#include "virtualkeyer/core/Event.h"
#include "virtualkeyer/core/Memory.h"
#include "virtualkeyer/core/Profile.h"
#include "virtualkeyer/core/Registers.h"

#include <memory>
#include <optional>
#include <vector>

namespace virtualkeyer {

/// A Morse keyer as a pure state machine: bytes, paddles, buttons and time go in; events come out.
///
/// It reads no clock. Every input carries its time, which must not lie before an earlier one;
/// everything due before that time happens first. Not thread-safe.
class Keyer {
  public:
    explicit Keyer(const Profile& profile = {});
    ~Keyer();

    /// The keyer loses its power at `at` and has it again at once. What it keys ends, and the host
    /// is told nothing; the memory, the speed pot and the traits stay.
    void restart(Time at);

    /// From `at` on it behaves as a keyer of another kind. Of the traits only those count that show
    /// while it runs: the firmware's number, the buffer's size and the pot stay as they were made.
    void setProfile(const Profile& profile, Time at);

    /// Somebody at the keyer has message `number` (1 to 6) of its memory keyed, as the host can.
    void playMessage(int number, Time at);

    /// The host has opened the port at `at`: a board with a boot loader restarts and is deaf for a
    /// while, any other takes no notice.
    void portOpened(Time at);

    /// The board starts anew by itself at `at`, as by a dip of its supply: it keys nothing, has no
    /// host, and is deaf as a board with a boot loader is. The host is told nothing.
    void reset(Time at);

    /// A byte from the host that is complete on the line at `at`.
    void receive(std::uint8_t byte, Time at);

    /// The paddle contacts are closed or open from `at` on.
    void setPaddle(bool dit, bool dah, Time at);

    /// The speed pot stands at `wpm` from `at` on.
    void setPot(int wpm, Time at);

    /// The push-buttons held down from `at` on: bits 0, 1, 2 and 4.
    void setPushButtons(std::uint8_t mask, Time at);

    /// Lets time pass until `until`, with everything that is due up to and including it.
    void advance(Time until);

    /// When the keyer next does something of its own accord; nothing while it only waits for input.
    [[nodiscard]] std::optional<Time> nextEvent() const;

    /// What happened since the last call, in order of time.
    [[nodiscard]] std::vector<Event> takeEvents();

    /// What the host has set, for a panel or a test to read.
    [[nodiscard]] const Registers& registers() const;

    /// What the keyer keeps without power, for a panel or a test to read.
    [[nodiscard]] const Memory& memory() const;

    /// The status byte that an open host would be told now.
    [[nodiscard]] std::uint8_t status() const;

    /// Whether it is starting, and a byte that came now would be lost.
    [[nodiscard]] bool isDeaf() const;

  private:
    class Machine;
    std::unique_ptr<Machine> _machine;
};

} // namespace virtualkeyer
