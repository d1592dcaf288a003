#pragma once

#include "virtualkeyer/core/Board.h"
#include "virtualkeyer/core/Protocol.h"
#include "virtualkeyer/core/TextBuffer.h"

#include <deque>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace virtualkeyer {

/// Keys the host's text, buffered commands and stored messages, one after the other.
class Sender {
  public:
    explicit Sender(Board& board);

    /// A character, or a buffered command with its parameters.
    void append(std::span<const std::uint8_t> bytes, Time now);
    void backspace(Time now);
    /// The pointer command with its one or two parameters.
    void movePointer(std::span<const std::uint8_t> parameters, Time now);
    /// Keys a stored message ahead of text that waits. Its letters are not echoed.
    void play(const std::vector<std::string>& message, Time now);

    /// Holds back whatever follows the letter under way, until resumed or cleared.
    void setPaused(bool isPaused, Time now);
    /// As a pause, but for the keyer's own reasons.
    void setBlocked(bool isBlocked, Time now);

    /// Empties the buffer and ends everything that the host has begun, save the letter under way.
    void clear(Time now);
    /// Everything ends at once, and nothing is echoed.
    void stop(Time now);

    /// Leaves the key to the paddle: as clear(), but the letter under way ends with its present
    /// element, and the host learns of it from the paddle's own status.
    void yield(Time now);
    /// Whether the key still waits for the end of that element.
    [[nodiscard]] bool isHandingOver() const { return _handsOver; }
    /// Echoes the letter that yield() has cut short.
    void echoCutLetter(Time now);

    [[nodiscard]] std::optional<Time> due() const;
    void run(Time now);

  private:
    enum class Phase {
        Idle,
        Starting, ///< the first byte has come, keying has not begun
        LeadIn,
        Element,
        Gap,
        LetterSpace,
        Space,
        Wait,
        TimedKey,
        Held, ///< paused or blocked
    };

    /// Elements that belong together, and what is echoed after them.
    struct Letter {
        std::string elements;
        std::optional<std::uint8_t> echo;
    };

    [[nodiscard]] bool isKeyingLetter() const;
    [[nodiscard]] bool hasMore() const;
    [[nodiscard]] bool isHeld() const { return _isPaused || _isBlocked; }

    void letGo(Time now);
    void enter(Phase phase, Time until);
    void rest(Phase phase, Time now);
    void wake(Time now);
    void keepLetterSpace(Time now);
    void fetch(Time now);
    [[nodiscard]] bool obey(Opcode code, Time now);
    [[nodiscard]] bool obey(Opcode code, std::uint8_t parameter, Time now);
    void holdTransmitter(bool holds, Time now);
    void selectOutputOrSpeed(std::uint8_t parameter, Time now);
    [[nodiscard]] bool beginText(std::uint8_t byte, Time now);
    [[nodiscard]] bool beginMerged(Time now);
    void beginStored(Time now);
    [[nodiscard]] bool beginWait(int seconds, Time now);
    [[nodiscard]] bool beginTimedKey(int seconds, Time now);
    void startTimedKey(Time now);
    void begin(Letter letter, Time now);
    void beginSpace(Time length, std::optional<std::uint8_t> echoed, Time now);
    [[nodiscard]] std::optional<Letter> letterOf(std::uint8_t byte) const;

    void startLetter(Time now);
    void startElement(Time now);
    void endElement(Time now);
    void endLetter(Time now);
    /// Echoes and, if it may and nothing follows, reports idle; in the profile's order.
    void echoLast(std::optional<std::uint8_t> echoed, bool mayIdle, Time now);
    void endUnit(std::optional<std::uint8_t> echoed, Time now);
    void echo(std::uint8_t byte, Time now);

    [[nodiscard]] std::optional<std::uint8_t> takeByte(Time now);
    void updateXoff(Time now);
    void forgetQueue(Time now);

    Board& _board;
    TextBuffer _buffer;
    std::deque<std::string> _message;
    Phase _phase = Phase::Idle;
    std::optional<Time> _until;
    Letter _letter;
    std::size_t _element = 0;
    std::optional<Letter> _merged;
    std::optional<Letter> _repeated;
    std::optional<Time> _timedKey;
    std::optional<std::uint8_t> _cutEcho;
    std::optional<Time> _lastKeyUp;
    Time _nextLetterAt{0};
    bool _isPaused = false;
    bool _isBlocked = false;
    bool _handsOver = false;
};

} // namespace virtualkeyer
