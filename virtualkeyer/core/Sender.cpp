#include "virtualkeyer/core/Sender.h"

#include "virtualkeyer/core/Timing.h"

#include <algorithm>
#include <utility>

namespace virtualkeyer {

namespace {

/// From the first byte of a text to its first key-down: as long as a byte takes on the line.
constexpr Time startDelay{9'166'667};

} // namespace

Sender::Sender(Board& board) : _board(board), _buffer(board.profile.bufferSize) {}

void Sender::append(std::span<const std::uint8_t> bytes, Time now) {
    const bool repeats = _board.profile.xoffRule == XoffRule::TwentyOneRepeated &&
                         _board.status.has(Status::BufferFull);
    const std::size_t before = _buffer.size();
    _buffer.put(bytes);
    updateXoff(now);
    for (std::size_t size = before; repeats && size < _buffer.size(); ++size) {
        _board.status.report(now);
    }
    wake(now);
}

void Sender::backspace(Time now) {
    _buffer.backspace();
    updateXoff(now);
}

void Sender::movePointer(std::span<const std::uint8_t> parameters, Time now) {
    const std::size_t value = parameters.size() > 1 ? parameters[1] : 0;
    switch (static_cast<PointerMove>(parameters[0])) {
    case PointerMove::Reset:
        _buffer.reset();
        break;
    case PointerMove::Overwrite:
        _buffer.overwriteFrom(value);
        break;
    case PointerMove::Append:
        _buffer.appendFrom(value);
        break;
    case PointerMove::InsertNulls:
        _buffer.insertNulls(value);
        break;
    default:
        break;
    }
    updateXoff(now);
    wake(now);
}

void Sender::play(const std::vector<std::string>& message, Time now) {
    _message.insert(_message.end(), message.begin(), message.end());
    wake(now);
}

void Sender::setPaused(bool isPaused, Time now) {
    const bool isNew = isPaused && !_isPaused;
    _isPaused = isPaused;
    if (isNew && isKeyingLetter() &&
        _board.profile.resumeAfterPause == ResumeAfterPause::RepeatsLetter) {
        _repeated = _letter;
    }
    wake(now);
}

void Sender::setBlocked(bool isBlocked, Time now) {
    if (std::exchange(_isBlocked, isBlocked) == isBlocked) {
        return;
    }
    if (!isBlocked) {
        keepLetterSpace(now);
    }
    wake(now);
}

void Sender::clear(Time now) {
    forgetQueue(now);
    _board.status.change(0, Status::BufferFull | Status::Sending | Status::Waiting, now);
    const bool drops = _board.profile.clearInLetter == ClearInLetter::DropsKey;
    const bool finishes = (isKeyingLetter() && !drops) || _phase == Phase::LetterSpace;
    if (finishes) {
        return;
    }
    letGo(now);
    rest(Phase::Idle, now);
}

void Sender::stop(Time now) {
    forgetQueue(now);
    _board.status.change(0, Status::BufferFull | Status::Sending | Status::Waiting, now);
    letGo(now);
    _handsOver = false;
    _cutEcho.reset();
    _isBlocked = false;
    rest(Phase::Idle, now);
}

void Sender::yield(Time now) {
    if (_board.profile.textAtBreakIn == TextAtBreakIn::Dropped) {
        forgetQueue(now);
        _board.status.change(0, Status::BufferFull, now);
    }
    _merged.reset();
    _timedKey.reset();
    if (isKeyingLetter()) {
        _letter.elements.resize(_element + 1);
        _handsOver = true;
        return;
    }
    if (_phase == Phase::LetterSpace && _board.profile.echoTime == EchoTime::AfterLetterSpace) {
        _cutEcho = _letter.echo;
    }
    letGo(now);
    rest(Phase::Idle, now);
}

void Sender::echoCutLetter(Time now) {
    if (const auto byte = std::exchange(_cutEcho, std::nullopt)) {
        echo(*byte, now);
    }
}

std::optional<Time> Sender::due() const {
    return _until;
}

void Sender::run(Time now) {
    switch (_phase) {
    case Phase::Starting:
    case Phase::Wait:
        return fetch(now);
    case Phase::LeadIn:
        return _timedKey ? startTimedKey(now) : startLetter(now);
    case Phase::Element:
        return endElement(now);
    case Phase::Gap:
        if (_element + 1 < _letter.elements.size()) {
            ++_element;
            return startElement(now);
        }
        return endLetter(now);
    case Phase::LetterSpace:
        return endUnit(_board.profile.echoTime == EchoTime::AfterLetterSpace ? _letter.echo
                                                                             : std::nullopt,
                       now);
    case Phase::Space:
        return endUnit(_letter.echo, now);
    case Phase::TimedKey:
        letGo(now);
        return fetch(now);
    case Phase::Idle:
    case Phase::Held:
        return;
    }
}

bool Sender::isKeyingLetter() const {
    return _phase == Phase::Element || _phase == Phase::Gap;
}

void Sender::letGo(Time now) {
    if (_phase == Phase::Element || _phase == Phase::TimedKey) {
        _lastKeyUp = now;
    }
    _board.lines.release(Lines::Host, now);
}

void Sender::enter(Phase phase, Time until) {
    _phase = phase;
    _until = until;
}

void Sender::rest(Phase phase, Time now) {
    _phase = phase;
    _until.reset();
    const Time tailEnd = _lastKeyUp ? *_lastKeyUp + timingOf(_board.registers).tail : now;
    _board.ptt.releaseAt(Ptt::Text, std::max(now, tailEnd));
}

void Sender::wake(Time now) {
    if (isHeld()) {
        return;
    }
    if (_phase == Phase::Held && hasMore() && now < _nextLetterAt) {
        _board.ptt.raise(Ptt::Text, now);
        enter(Phase::Starting, _nextLetterAt);
    } else if (_phase == Phase::Held) {
        fetch(now);
    } else if (_phase == Phase::Idle && hasMore()) {
        enter(Phase::Starting, std::max(now + startDelay, _nextLetterAt));
    }
}

/// The key has gone up after something that was no letter, and text that was cut there keeps its
/// distance from it.
void Sender::keepLetterSpace(Time now) {
    if (_phase == Phase::Idle) {
        return;
    }
    const Timing timing = timingOf(_board.registers);
    _nextLetterAt = now + timing.gap + timing.restOfLetter;
    if (_phase == Phase::LetterSpace || _phase == Phase::Space) {
        enter(_phase, std::max(*_until, _nextLetterAt));
    }
}

void Sender::startTimedKey(Time now) {
    _board.status.change(Status::Sending | Status::Waiting, 0, now);
    _board.lines.press(Lines::Host, now);
    enter(Phase::TimedKey, now + *std::exchange(_timedKey, std::nullopt));
}

void Sender::startLetter(Time now) {
    _board.status.change(Status::Sending, 0, now);
    _element = 0;
    startElement(now);
}

void Sender::startElement(Time now) {
    const Timing timing = timingOf(_board.registers);
    Time length = _letter.elements[_element] == '-' ? timing.dah : timing.dit;
    if (_board.ptt.takeFirstElement()) {
        length += timing.firstExtension;
    }
    _board.lines.press(Lines::Host, now);
    enter(Phase::Element, now + length);
}

void Sender::endElement(Time now) {
    const Time gap = timingOf(_board.registers).gap;
    const bool isLast = _element + 1 == _letter.elements.size();
    // Elements that compensation has stretched into each other sound as one.
    if (isLast || gap > Time{0}) {
        _board.lines.release(Lines::Host, now);
    }
    _lastKeyUp = now;
    enter(Phase::Gap, now + gap);
}

void Sender::endLetter(Time now) {
    if (_handsOver) {
        _handsOver = false;
        _cutEcho = _letter.echo;
        return rest(Phase::Idle, now);
    }
    if (_merged) {
        if (_letter.echo) {
            echo(*_letter.echo, now);
        }
        _letter = *std::exchange(_merged, std::nullopt);
        return startLetter(now);
    }
    if (_board.profile.echoTime == EchoTime::BeforeLetterSpace) {
        echoLast(_letter.echo, _board.profile.idleTime == IdleTime::WithEcho, now);
    }
    enter(Phase::LetterSpace, now + timingOf(_board.registers).restOfLetter);
}

void Sender::endUnit(std::optional<std::uint8_t> echoed, Time now) {
    echoLast(echoed, true, now);
    fetch(now);
}

void Sender::echoLast(std::optional<std::uint8_t> echoed, bool mayIdle, Time now) {
    const bool idles = mayIdle && !hasMore() && !isHeld();
    const bool idlesFirst = _board.profile.endOrder == EndOrder::IdleThenEcho;
    if (idles && idlesFirst) {
        _board.status.change(0, Status::Sending, now);
    }
    if (echoed) {
        echo(*echoed, now);
    }
    if (idles && !idlesFirst) {
        _board.status.change(0, Status::Sending, now);
    }
}

void Sender::echo(std::uint8_t byte, Time now) {
    if (_board.profile.echoesText && _board.registers.serialEcho()) {
        _board.outbox.tell(byte, now);
    }
}

} // namespace virtualkeyer
