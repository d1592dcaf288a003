#pragma once

#include "virtualkeyer/core/Board.h"
#include "virtualkeyer/core/PaddleLogic.h"

#include <optional>
#include <string>

namespace virtualkeyer {

/// Keys from the paddle: a break-in from the first touch to the end of the hang time.
class Paddle {
  public:
    explicit Paddle(Board& board) : _board(board) {}

    /// The contacts after swapping, those of the host's software paddle included.
    void setContacts(bool dit, bool dah, Time now);

    /// Whether the host's text has to give way.
    [[nodiscard]] bool isBreakingIn() const { return _phase != Phase::Idle; }
    /// Whether the paddle was touched and has not been given the key yet.
    [[nodiscard]] bool awaitsKey() const { return _phase == Phase::AwaitsKey; }
    /// The host's sending has ended; the paddle may key.
    void takeKey(Time now);
    /// Whether it has begun to key, so that the host's cut letter may be echoed.
    [[nodiscard]] bool hasKeyed() const { return _hasKeyed; }

    /// Everything ends at once.
    void stop(Time now);

    [[nodiscard]] std::optional<Time> due() const;
    void run(Time now);

  private:
    enum class Phase { Idle, AwaitsKey, LeadIn, Element, HandKey, Gap, Pause };
    /// What a pause in the keying comes to next.
    enum class PauseStep { EndOfLetter, EndOfWord, EndOfHang };

    void enter(Phase phase, std::optional<Time> until);
    void keyNext(Time now);
    void startElement(Element element, Time now);
    void endElement(Time now);
    void endGap(Time now);
    void startPause(Time now);
    void touchInPause(Time now);
    void keyTouched(Time now);
    void runPause(Time now);
    void endLetter(Time now);
    [[nodiscard]] Time pauseStepEnd() const;
    void begin(Time now);
    void reportBegin(Time now);
    void end(Time now);
    void echo(char character, Time now);

    Board& _board;
    PaddleLogic _logic;
    Phase _phase = Phase::Idle;
    std::optional<Time> _until;
    std::optional<Time> _lookAt;
    std::optional<Time> _keyAt;
    std::optional<Time> _reportAt;
    PauseStep _pauseStep = PauseStep::EndOfLetter;
    Time _lastKeyUp{0};
    std::string _pattern;
    int _elementsInRow = 0;
    bool _hasKeyed = false;
};

} // namespace virtualkeyer
