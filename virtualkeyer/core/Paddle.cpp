#include "virtualkeyer/core/Paddle.h"

#include "virtualkeyer/core/MorseTable.h"
#include "virtualkeyer/core/Timing.h"

#include <algorithm>
#include <utility>

namespace virtualkeyer {

namespace {

constexpr int watchdogLimit = 128;

} // namespace

void Paddle::setContacts(bool dit, bool dah, Time now) {
    _logic.setContacts(dit, dah);
    switch (_phase) {
    case Phase::Idle:
        if (_logic.asksForKey()) {
            enter(Phase::AwaitsKey, std::nullopt);
        }
        break;
    case Phase::HandKey:
        if (!_logic.isHeld(Element::Dah)) {
            endElement(now);
        }
        break;
    case Phase::Pause:
        touchInPause(now);
        break;
    default:
        break;
    }
}

void Paddle::takeKey(Time now) {
    const Time ready = _board.ptt.raise(Ptt::PaddleText, now);
    if (ready > now) {
        enter(Phase::LeadIn, ready);
    } else {
        keyNext(now);
    }
}

void Paddle::stop(Time now) {
    _board.lines.release(Lines::Paddle, now);
    _board.status.change(0, Status::BreakIn | Status::PaddleKeyed, now);
    _logic = {};
    _pattern.clear();
    _lookAt.reset();
    _keyAt.reset();
    _reportAt.reset();
    _hasKeyed = false;
    enter(Phase::Idle, std::nullopt);
}

std::optional<Time> Paddle::due() const {
    std::optional<Time> due = _until;
    for (const auto& other : {_lookAt, _keyAt, _reportAt}) {
        if (other && (!due || *other < *due)) {
            due = other;
        }
    }
    return due;
}

void Paddle::run(Time now) {
    if (_reportAt && *_reportAt <= now) {
        return reportBegin(now);
    }
    if (_lookAt && *_lookAt <= now) {
        _lookAt.reset();
        _logic.look(_board.registers.paddleMode());
        return;
    }
    switch (_phase) {
    case Phase::LeadIn:
        return keyNext(now);
    case Phase::Element:
        return endElement(now);
    case Phase::Gap:
        return endGap(now);
    case Phase::Pause:
        return runPause(now);
    default:
        return;
    }
}

void Paddle::enter(Phase phase, std::optional<Time> until) {
    _phase = phase;
    _until = until;
}

void Paddle::keyNext(Time now) {
    const Registers& registers = _board.registers;
    const auto element = _logic.next(registers.paddleMode(), registers.ultimaticPriority());
    if (element) {
        return startElement(*element, now);
    }
    // A bug's dah that was let go before it could begin.
    begin(now);
    _lastKeyUp = now;
    _board.ptt.releaseAt(Ptt::PaddleText, now + timingOf(registers).hang);
    startPause(now);
}

void Paddle::startElement(Element element, Time now) {
    const Timing timing = timingOf(_board.registers);
    _board.ptt.raise(Ptt::PaddleText, now);
    if (!_hasKeyed) {
        begin(now);
    }
    _logic.start(element);
    _pattern += element == Element::Dit ? '.' : '-';
    ++_elementsInRow;
    _keyAt.reset();
    _lookAt.reset();
    if (timing.lookAgain > Time{0}) {
        _lookAt = now + timing.lookAgain;
    }

    Time length = element == Element::Dit ? timing.dit : timing.dah;
    if (_board.ptt.takeFirstElement()) {
        length += timing.firstExtension;
    }
    _board.lines.press(Lines::Paddle, now);
    const bool byHand = element == Element::Dah && _board.registers.paddleMode() == PaddleMode::Bug;
    if (byHand) {
        enter(Phase::HandKey, std::nullopt);
    } else {
        enter(Phase::Element, now + length);
    }
}

void Paddle::endElement(Time now) {
    const Timing timing = timingOf(_board.registers);
    _board.lines.release(Lines::Paddle, now);
    _lastKeyUp = now;
    _board.ptt.releaseAt(Ptt::PaddleText, now + timing.hang);
    enter(Phase::Gap, now + timing.gap);
}

void Paddle::endGap(Time now) {
    const Registers& registers = _board.registers;
    if (registers.watchdog() && _elementsInRow >= watchdogLimit) {
        _logic.lock();
    }
    if (const auto element = _logic.next(registers.paddleMode(), registers.ultimaticPriority())) {
        return startElement(*element, now);
    }
    startPause(now);
}

void Paddle::startPause(Time now) {
    _elementsInRow = 0;
    _lookAt.reset();
    _logic.rest();
    _pauseStep = PauseStep::EndOfLetter;
    enter(Phase::Pause, std::max(now, pauseStepEnd()));
}

void Paddle::touchInPause(Time now) {
    if (!_logic.asksForKey() || _keyAt) {
        return;
    }
    const Timing timing = timingOf(_board.registers);
    const Time endOfLetterSpace = _lastKeyUp + timing.gap + timing.restOfLetter;
    if (_board.registers.autospace() && now < endOfLetterSpace) {
        _keyAt = endOfLetterSpace;
    } else {
        keyTouched(now);
    }
}

void Paddle::keyTouched(Time now) {
    _keyAt.reset();
    const Registers& registers = _board.registers;
    if (const auto element = _logic.next(registers.paddleMode(), registers.ultimaticPriority())) {
        startElement(*element, now);
    }
}

void Paddle::runPause(Time now) {
    if (_keyAt && *_keyAt <= now) {
        endLetter(now);
        return keyTouched(now);
    }
    switch (_pauseStep) {
    case PauseStep::EndOfLetter:
        endLetter(now);
        _pauseStep = PauseStep::EndOfWord;
        break;
    case PauseStep::EndOfWord:
        echo(' ', now);
        _pauseStep = PauseStep::EndOfHang;
        break;
    case PauseStep::EndOfHang:
        return end(now);
    }
    enter(Phase::Pause, std::max(now, pauseStepEnd()));
}

void Paddle::endLetter(Time now) {
    if (const auto character = characterOf(std::exchange(_pattern, {}))) {
        echo(*character, now);
    }
}

Time Paddle::pauseStepEnd() const {
    const Timing timing = timingOf(_board.registers);
    switch (_pauseStep) {
    case PauseStep::EndOfLetter:
        return _lastKeyUp + 2 * timing.spaceUnit;
    case PauseStep::EndOfWord:
        return _lastKeyUp + timing.wordSpace;
    default:
        return _lastKeyUp + timing.hang;
    }
}

void Paddle::begin(Time now) {
    _hasKeyed = true;
    const Time delay = _board.profile.breakInDelay;
    if (delay == Time{0}) {
        return reportBegin(now);
    }
    _board.status.change(0, Status::Sending | Status::Waiting, now);
    _reportAt = now + delay;
}

void Paddle::reportBegin(Time now) {
    _reportAt.reset();
    if (_board.profile.breakInReport == BreakInReport::Single) {
        _board.status.change(Status::BreakIn, Status::Sending | Status::Waiting, now);
    }
    _board.status.change(Status::BreakIn | Status::PaddleKeyed, Status::Sending | Status::Waiting,
                         now);
}

void Paddle::end(Time now) {
    if (_reportAt) {
        reportBegin(now);
    }
    if (_board.profile.breakInReport == BreakInReport::Level) {
        _board.status.change(0, Status::BreakIn, now);
    }
    _board.status.change(0, Status::BreakIn | Status::PaddleKeyed, now);
    _hasKeyed = false;
    enter(Phase::Idle, std::nullopt);
}

void Paddle::echo(char character, Time now) {
    if (_board.registers.paddleEcho()) {
        _board.outbox.tell(static_cast<std::uint8_t>(character), now);
    }
}

} // namespace virtualkeyer
