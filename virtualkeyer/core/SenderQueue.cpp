#include "virtualkeyer/core/MorseTable.h"
#include "virtualkeyer/core/Sender.h"
#include "virtualkeyer/core/Timing.h"

#include <utility>

// What the sender takes from its queue: the characters and buffered commands, and how each begins.

namespace virtualkeyer {

namespace {

constexpr std::size_t repeatedXoffThreshold = 21;
constexpr std::string_view questionMark = "?";

} // namespace

void Sender::fetch(Time now) {
    const bool ends = !hasMore() && !isHeld();
    _board.status.change(0, Status::Waiting | (ends ? Status::Sending : 0U), now);
    while (!isHeld()) {
        if (auto letter = std::exchange(_repeated, std::nullopt)) {
            return begin(*letter, now);
        }
        if (!_message.empty()) {
            return beginStored(now);
        }
        const auto byte = takeByte(now);
        if (!byte) {
            _board.status.change(0, Status::Sending, now);
            return rest(Phase::Idle, now);
        }
        if (*byte < firstText ? obey(static_cast<Opcode>(*byte), now) : beginText(*byte, now)) {
            return;
        }
    }
    rest(Phase::Held, now);
}

bool Sender::obey(Opcode code, Time now) {
    switch (code) {
    case Opcode::Merge:
        return beginMerged(now);
    case Opcode::EndTemporarySpeed:
        _board.registers.cancelTemporarySpeed();
        return false;
    case Opcode::Ptt:
    case Opcode::TimedKey:
    case Opcode::Wait:
    case Opcode::TemporarySpeed:
    case Opcode::OutputOrHighSpeed: {
        // A backspace may have dropped it.
        const auto parameter = takeByte(now);
        return parameter && obey(code, *parameter, now);
    }
    default:
        return false;
    }
}

bool Sender::obey(Opcode code, std::uint8_t parameter, Time now) {
    switch (code) {
    case Opcode::Ptt:
        holdTransmitter(parameter != 0, now);
        return false;
    case Opcode::TimedKey:
        return beginTimedKey(parameter, now);
    case Opcode::Wait:
        return beginWait(parameter, now);
    case Opcode::TemporarySpeed:
        _board.registers.setTemporarySpeed(parameter);
        return false;
    default:
        selectOutputOrSpeed(parameter, now);
        return false;
    }
}

void Sender::holdTransmitter(bool holds, Time now) {
    if (holds) {
        _board.ptt.raise(Ptt::HostCommand, now);
    } else {
        _board.ptt.releaseAt(Ptt::HostCommand, now);
    }
}

void Sender::selectOutputOrSpeed(std::uint8_t parameter, Time now) {
    if (parameter > 1) {
        _board.registers.setTemporaryHighSpeed(parameter);
        return;
    }
    _board.registers.selectOutput(parameter + 1);
    _board.lines.refresh(now);
}

bool Sender::beginText(std::uint8_t byte, Time now) {
    const Timing timing = timingOf(_board.registers);
    if (byte == ' ') {
        beginSpace(timing.restOfWord, byte, now);
        return true;
    }
    if (byte == '|') {
        const bool echoes = _board.profile.echoesHalfSpace;
        beginSpace(timing.spaceUnit / 2, echoes ? std::optional{byte} : std::nullopt, now);
        return true;
    }
    const auto letter = letterOf(byte);
    if (letter) {
        begin(*letter, now);
    }
    return letter.has_value();
}

bool Sender::beginMerged(Time now) {
    std::optional<Letter> letters[2];
    for (auto& letter : letters) {
        if (const auto byte = takeByte(now)) {
            letter = letterOf(*byte);
        }
    }
    auto& [first, second] = letters;
    if (!first) {
        std::swap(first, second);
    }
    if (!first) {
        return false;
    }
    _merged = second;
    begin(*first, now);
    return true;
}

void Sender::beginStored(Time now) {
    const std::string elements = _message.front();
    _message.pop_front();
    if (elements == " ") {
        beginSpace(timingOf(_board.registers).restOfWord, std::nullopt, now);
    } else {
        begin(Letter{elements, std::nullopt}, now);
    }
}

bool Sender::beginWait(int seconds, Time now) {
    if (seconds == 0) {
        return false;
    }
    _board.status.change(Status::Sending | Status::Waiting, 0, now);
    rest(Phase::Wait, now);
    _until = now + std::chrono::seconds{seconds};
    return true;
}

bool Sender::beginTimedKey(int seconds, Time now) {
    if (seconds == 0) {
        return false;
    }
    _timedKey = std::chrono::seconds{seconds};
    const Time ready = _board.ptt.raise(Ptt::Text, now);
    if (ready > now) {
        enter(Phase::LeadIn, ready);
    } else {
        startTimedKey(now);
    }
    return true;
}

void Sender::begin(Letter letter, Time now) {
    _letter = std::move(letter);
    const Time ready = _board.ptt.raise(Ptt::Text, now);
    if (ready > now) {
        enter(Phase::LeadIn, ready);
    } else {
        startLetter(now);
    }
}

void Sender::beginSpace(Time length, std::optional<std::uint8_t> echoed, Time now) {
    _letter = Letter{{}, echoed};
    _board.status.change(Status::Sending, 0, now);
    enter(Phase::Space, now + length);
}

std::optional<Sender::Letter> Sender::letterOf(std::uint8_t byte) const {
    const auto elements = elementsOf(static_cast<char>(byte));
    if (!elements.empty()) {
        return Letter{std::string(elements), byte};
    }
    if (_board.profile.unknownCharacter == UnknownCharacter::Skipped) {
        return std::nullopt;
    }
    return Letter{std::string(elementsOf(questionMark.front())), questionMark.front()};
}

std::optional<std::uint8_t> Sender::takeByte(Time now) {
    const auto byte = _buffer.take();
    updateXoff(now);
    return byte;
}

void Sender::updateXoff(Time now) {
    const bool isFull = _board.profile.xoffRule == XoffRule::TwentyOneRepeated
                            ? _buffer.size() >= repeatedXoffThreshold
                            : 3 * _buffer.size() > 2 * _buffer.capacity();
    if (isFull) {
        _board.status.change(Status::BufferFull, 0, now);
    } else {
        _board.status.change(0, Status::BufferFull, now);
    }
}

void Sender::forgetQueue(Time now) {
    _buffer.reset();
    _message.clear();
    _merged.reset();
    _repeated.reset();
    _timedKey.reset();
    _isPaused = false;
    _board.registers.cancelTemporarySpeed();
    holdTransmitter(false, now);
}

bool Sender::hasMore() const {
    return _repeated || !_message.empty() || !_buffer.isEmpty();
}

} // namespace virtualkeyer
