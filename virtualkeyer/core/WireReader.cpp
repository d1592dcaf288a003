#include "virtualkeyer/core/WireReader.h"

#include "virtualkeyer/core/Memory.h"

#include <utility>

namespace virtualkeyer {

namespace {

// Bits of what the keyer says of its own accord.
constexpr unsigned kindBits = 0xC0;
constexpr unsigned statusKind = 0xC0;
constexpr unsigned knobKind = 0x80;
constexpr unsigned buttonBit = 0x08; // in version 2 status

/// A keyer answers at once, unless it beeps at its first command. One that never answers leaves
/// later bytes what they are.
constexpr Time answerLimit = std::chrono::seconds{1};

std::size_t answerBytes(AdminCommand command) {
    switch (command) {
    case AdminCommand::Open:
    case AdminCommand::Echo:
    case AdminCommand::ReadPaddle:
    case AdminCommand::ReadSpeed:
    case AdminCommand::ReadCalibration:
        return 1;
    case AdminCommand::ReadValues:
        return Registers::blockSize;
    case AdminCommand::DumpMemory:
        return Memory::size;
    default:
        return 0;
    }
}

} // namespace

void WireReader::fromHost(std::uint8_t byte, bool isLost, Time at) {
    advance(at);
    if (isLost) {
        breakOff(at);
        return tell(WireLine::Kind::Lost, {byte}, at);
    }
    _begun.push_back(byte);
    _lastOfBegun = at;
    const auto command = _parser.take(byte, _isOpen);
    if (!command && !_parser.isIdle()) {
        return;
    }
    _isToldUnfinished = false;
    tell(command ? WireLine::Kind::Command : WireLine::Kind::Discarded, std::exchange(_begun, {}),
         at);
    if (command) {
        follow(*command, at);
    }
}

void WireReader::fromKeyer(std::uint8_t byte, const Registers& registers, Time at) {
    if (takeAnswer(byte, at)) {
        return;
    }
    const unsigned kind = byte & kindBits;
    if (kind == statusKind) {
        const bool isButtons = _isVersion2 && (byte & buttonBit) != 0;
        return tell(isButtons ? WireLine::Kind::Buttons : WireLine::Kind::Status, {byte}, at);
    }
    tell(kind == knobKind ? WireLine::Kind::Knob : WireLine::Kind::Echo, {byte}, at);
    _lines.back().knobMinimum = kind == knobKind ? int{registers.value(Register::PotMinimum)} : 0;
}

void WireReader::restart(Time at) {
    breakOff(at);
    auto lines = std::exchange(_lines, {});
    *this = {};
    _lines = std::move(lines);
    tell(WireLine::Kind::Restarted, {}, at);
}

void WireReader::advance(Time now) {
    const auto due = nextEvent();
    if (due && *due <= now) {
        _isToldUnfinished = true;
        tell(WireLine::Kind::Unfinished, _begun, *due);
    }
}

std::optional<Time> WireReader::nextEvent() const {
    if (_begun.empty() || _isToldUnfinished) {
        return std::nullopt;
    }
    return _lastOfBegun + patience;
}

std::vector<WireLine> WireReader::takeLines() {
    return std::exchange(_lines, {});
}

void WireReader::tell(WireLine::Kind kind, std::vector<std::uint8_t> bytes, Time at) {
    _lines.push_back({.kind = kind, .at = at, .bytes = std::move(bytes)});
}

/// What had begun comes to nothing.
void WireReader::breakOff(Time at) {
    if (!_begun.empty()) {
        tell(WireLine::Kind::Unfinished, std::exchange(_begun, {}), at);
    }
    _parser.reset();
    _isToldUnfinished = false;
}

void WireReader::follow(const Command& command, Time at) {
    if (command.kind == CommandKind::Admin) {
        followAdmin(static_cast<AdminCommand>(command.code), at);
    }
}

void WireReader::followAdmin(AdminCommand command, Time at) {
    switch (command) {
    case AdminCommand::Open:
        _isOpen = true;
        _isVersion2 = false;
        break;
    case AdminCommand::Close:
        _isOpen = false;
        break;
    case AdminCommand::Reset:
        _isOpen = false;
        _isVersion2 = false;
        break;
    case AdminCommand::Version1Status:
        _isVersion2 = false;
        break;
    case AdminCommand::Version2Status:
        _isVersion2 = true;
        break;
    default:
        break;
    }
    if (const std::size_t count = answerBytes(command); count != 0) {
        _questions.push_back({command, count, at});
    }
}

/// Whether the byte belongs to an answer, which is told when it is complete.
bool WireReader::takeAnswer(std::uint8_t byte, Time at) {
    while (!_questions.empty() && _questions.front().since + answerLimit < at) {
        _questions.pop_front();
        _answer.clear();
    }
    if (_questions.empty()) {
        return false;
    }
    _answer.push_back(byte);
    const Question& question = _questions.front();
    if (_answer.size() == question.answerBytes) {
        tell(WireLine::Kind::Answer, std::exchange(_answer, {}), at);
        _lines.back().question = question.command;
        _questions.pop_front();
    }
    return true;
}

} // namespace virtualkeyer
