#pragma once

#include "tests/keyer/EngineBench.h"
#include "tests/support/CapturedWrites.h"
#include "virtualkeyer/core/Keyer.h"
#include "virtualkeyer/pty/PacedLine.h"

#include <functional>
#include <optional>
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
    /// A byte that has arrived.
    struct Byte {
        Time at;
        std::uint8_t value;
    };
    /// A character that was keyed: when its echo left, and when the key first went down for it.
    struct Character {
        Time at;
        Time begun;
        std::uint8_t value;
    };
    struct Line {
        /// 5 to 162.
        int wpm = 20;
        /// How long the engine takes from an echo to the next byte.
        Time reaction{0};
        /// How long each byte is under way in either direction besides its time on the line.
        Time delay{0};
        int charactersAhead = 1;
    };

    explicit VirtualTimeLink(const Line& line);

    /// Begins anew with another engine and another keyer, which are connected.
    void startOver(const Line& line);

    [[nodiscard]] EngineBench& bench() { return _bench; }
    [[nodiscard]] WinKeyerUsb& engine() { return _bench.engine(); }
    [[nodiscard]] Time now() const { return _now; }

    /// Sends a text and lets time pass until it is keyed.
    [[nodiscard]] std::vector<KeyChange> key(const QString& text);

    void setPaddle(bool dit, bool dah);
    /// The next so many echoes never arrive.
    void loseEchoes(int count) { _echoesToLose = count; }
    /// Puts on the line what the engine was made to write.
    void handOn() { handOnWrites(_now); }
    void pass(Time duration);
    /// Lets time pass until keyer, line and engine have nothing more to do.
    [[nodiscard]] std::vector<KeyChange> runUntilQuiet();

    /// Is told of each byte that the engine is about to get, or would get if it were not lost, and
    /// of what it has written.
    void setObserver(std::function<void(std::uint8_t)> hears,
                     std::function<void(const QByteArray&)> writes) {
        _hears = std::move(hears);
        _writes = std::move(writes);
    }

    /// What has arrived at the keyer.
    [[nodiscard]] const std::vector<Byte>& arrived() const { return _arrived; }
    /// Each character that the keyer has keyed, at its echo.
    [[nodiscard]] const std::vector<Character>& keyed() const { return _keyed; }

  private:
    [[nodiscard]] std::optional<Time> nextEvent();
    void moveTo(Time time);
    void handOnWrites(Time at);
    void handOnEvents();
    void deliver(std::uint8_t byte);

    Line _line;
    EngineBench _bench;
    CapturedWrites _captured;
    std::optional<virtualkeyer::Keyer> _keyer;
    std::optional<virtualkeyer::PacedLine> _toKeyer;
    std::optional<virtualkeyer::PacedLine> _toHost;
    Time _now{0};
    int _echoesToLose = 0;
    std::function<void(std::uint8_t)> _hears;
    std::function<void(const QByteArray&)> _writes;
    std::vector<KeyChange> _changes;
    std::vector<Byte> _arrived;
    std::vector<Character> _keyed;
    std::optional<Time> _begun;
};
