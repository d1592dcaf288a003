#include "virtualkeyer/core/Machine.h"

#include <algorithm>
#include <array>
#include <utility>

namespace virtualkeyer {

Keyer::Machine::Machine(const Profile& profile) : _board(profile) {
    standAlone();
}

void Keyer::Machine::restart(Time at) {
    advance(at);
    _dit = false;
    _dah = false;
    coldStart();
    _board.status.setPushButtons(0, _now);
}

void Keyer::Machine::setProfile(const Profile& profile, Time at) {
    advance(at);
    const Profile before = std::exchange(_board.profile, profile);
    _board.profile.firmware = before.firmware;
    _board.profile.bufferSize = before.bufferSize;
    _board.profile.potWpm = before.potWpm;
}

void Keyer::Machine::playMessage(int number, Time at) {
    advance(at);
    play(number);
    settle();
}

void Keyer::Machine::portOpened(Time at) {
    advance(at);
    if (_board.profile.bootLoaderTime > Time{0}) {
        reset(at);
    }
}

void Keyer::Machine::reset(Time at) {
    advance(at);
    coldStart();
    _startup.restart(_now + _board.profile.bootLoaderTime, _now);
}

void Keyer::Machine::receive(std::uint8_t byte, Time at) {
    advance(at);
    accept(byte);
}

void Keyer::Machine::accept(std::uint8_t byte) {
    if (!_startup.admits(byte, _now)) {
        return;
    }
    if (const auto command = _parser.take(byte, _board.outbox.isOpen())) {
        obey(*command);
    }
    settle();
}

void Keyer::Machine::setPaddle(bool dit, bool dah, Time at) {
    advance(at);
    _dit = dit;
    _dah = dah;
    touchPaddle();
}

void Keyer::Machine::touchPaddle() {
    const bool dit = _dit || (_softwarePaddle & 1) != 0;
    const bool dah = _dah || (_softwarePaddle & 2) != 0;
    const bool swaps = _board.registers.swapsPaddle();
    const bool wasBreakingIn = _paddle.isBreakingIn();
    _paddle.setContacts(swaps ? dah : dit, swaps ? dit : dah, _now);
    if (!wasBreakingIn && _paddle.isBreakingIn()) {
        yieldTune();
        _sender.yield(_now);
    }
    settle();
}

void Keyer::Machine::setPot(int wpm, Time at) {
    advance(at);
    const std::uint8_t before = _board.registers.potByte();
    const bool isReportedOnly =
        _board.outbox.isOpen() && _board.profile.knobInHostMode == KnobInHostMode::Reported;
    if (isReportedOnly) {
        _board.registers.setPotUnheeded(wpm);
    } else {
        _board.registers.setPot(wpm);
    }
    if (const std::uint8_t after = _board.registers.potByte(); after != before) {
        _board.outbox.tell(after, _now);
    }
}

void Keyer::Machine::setPushButtons(std::uint8_t mask, Time at) {
    advance(at);
    const bool breaksIn = mask != 0 && _board.status.has(Status::Sending) &&
                          _board.profile.buttonInText == ButtonInText::BreaksIn;
    if (breaksIn) {
        breakInByButton();
    } else {
        _board.status.setPushButtons(mask, _now);
    }
    settle();
}

/// It is over at once, so that what the host sends next is keyed.
void Keyer::Machine::breakInByButton() {
    _board.status.change(Status::BreakIn, 0, _now);
    _board.status.forget(Status::BreakIn);
    _sender.clear(_now);
}

void Keyer::Machine::advance(Time until) {
    for (auto next = nextEvent(); next && *next <= until; next = nextEvent()) {
        _now = std::max(_now, *next);
        runNext(_now);
        settle();
    }
    _now = std::max(_now, until);
}

std::optional<Time> Keyer::Machine::nextEvent() const {
    std::optional<Time> next;
    for (const auto& due :
         {_startup.due(), _sender.due(), _paddle.due(), _tune.due(), _board.ptt.due()}) {
        if (due && (!next || *due < *next)) {
            next = due;
        }
    }
    return next;
}

void Keyer::Machine::runNext(Time now) {
    const auto isDue = [now](const auto& part) { return part.due() && *part.due() <= now; };
    // The transmitter goes last: whoever keys at the same instant keeps it.
    if (isDue(_startup)) {
        for (const std::uint8_t byte : _startup.takeHeld(now)) {
            accept(byte);
        }
    } else if (isDue(_sender)) {
        _sender.run(now);
    } else if (isDue(_paddle)) {
        _paddle.run(now);
    } else if (isDue(_tune)) {
        _tune.run(now);
    } else {
        _board.ptt.run(now);
    }
}

void Keyer::Machine::settle() {
    if (_paddle.awaitsKey() && !_sender.isHandingOver()) {
        if (_board.profile.cutLetterEcho == CutLetterEcho::BeforeBreakIn) {
            _sender.echoCutLetter(_now);
        }
        _paddle.takeKey(_now);
    }
    if (_paddle.hasKeyed()) {
        _sender.echoCutLetter(_now);
    }
    _sender.setBlocked(_tune.isOn() || (keepsText() && _paddle.isBreakingIn()), _now);
    if (!_tune.isOn()) {
        _tune.reportEnd(_now);
    }
}

void Keyer::Machine::obey(const Command& command) {
    switch (command.kind) {
    case CommandKind::Admin:
        return obeyAdmin(command);
    case CommandKind::Immediate:
        return obeyImmediate(command);
    case CommandKind::Buffered:
    case CommandKind::Text:
        return enqueue(command);
    }
}

bool Keyer::Machine::keepsText() const {
    return _board.profile.textAtBreakIn == TextAtBreakIn::Kept;
}

void Keyer::Machine::enqueue(const Command& command) {
    const bool isText = command.kind == CommandKind::Text;
    const bool isSwallowed =
        isText && _clearedAt && _now < *_clearedAt + _board.profile.deafAfterClear;
    if (isSwallowed || (_paddle.isBreakingIn() && !keepsText())) {
        return;
    }
    if (isText) {
        yieldTune();
    }
    std::vector<std::uint8_t> bytes{command.code};
    bytes.insert(bytes.end(), command.parameters.begin(), command.parameters.end());
    _sender.append(bytes, _now);
}

} // namespace virtualkeyer
