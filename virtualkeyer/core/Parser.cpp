#include "virtualkeyer/core/Parser.h"

#include "virtualkeyer/core/Memory.h"
#include "virtualkeyer/core/Protocol.h"

#include <array>
#include <utility>

namespace virtualkeyer {

namespace {

constexpr std::array<std::uint8_t, firstText> counts{
    0, 1, 1, 1, 2, 3, 1, 0,  // 00-07
    0, 1, 0, 1, 1, 1, 1, 15, // 08-0F
    1, 1, 1, 0, 1, 0, 1, 1,  // 10-17
    1, 1, 1, 2, 1, 1, 0, 0,  // 18-1F
};

std::size_t adminParameterCount(std::uint8_t number) {
    switch (static_cast<AdminCommand>(number)) {
    case AdminCommand::Calibrate:
    case AdminCommand::Echo:
    case AdminCommand::PlayMessage:
    case AdminCommand::LoadX1Mode:
        return 1;
    case AdminCommand::LoadMemory:
        return Memory::size;
    default:
        return 0;
    }
}

bool takesPosition(PointerMove move) {
    return move == PointerMove::Overwrite || move == PointerMove::Append ||
           move == PointerMove::InsertNulls;
}

} // namespace

std::size_t parameterCount(std::uint8_t code) {
    return code < counts.size() ? counts[code] : 0;
}

std::optional<Command> Parser::take(std::uint8_t byte, bool isOpen) {
    if (_awaitsAdminNumber) {
        _awaitsAdminNumber = false;
        _command = Command{CommandKind::Admin, byte, {}};
        _missing = adminParameterCount(byte);
    } else if (_command) {
        _command->parameters.push_back(byte);
        --_missing;
        const bool movesPointer = _command->kind == CommandKind::Immediate &&
                                  static_cast<Opcode>(_command->code) == Opcode::MovePointer &&
                                  _command->parameters.size() == 1;
        if (movesPointer && takesPosition(static_cast<PointerMove>(byte))) {
            ++_missing;
        }
    } else {
        return begin(byte, isOpen);
    }
    return completed();
}

void Parser::reset() {
    *this = {};
}

std::optional<Command> Parser::begin(std::uint8_t byte, bool isOpen) {
    if (static_cast<Opcode>(byte) == Opcode::Admin) {
        _awaitsAdminNumber = true;
        return std::nullopt;
    }
    if (!isOpen || byte > lastText) {
        return std::nullopt;
    }
    if (byte >= firstText) {
        return Command{CommandKind::Text, byte, {}};
    }
    const auto kind = byte >= firstBuffered ? CommandKind::Buffered : CommandKind::Immediate;
    _command = Command{kind, byte, {}};
    _missing = parameterCount(byte);
    return completed();
}

std::optional<Command> Parser::completed() {
    if (_missing != 0) {
        return std::nullopt;
    }
    return std::exchange(_command, std::nullopt);
}

} // namespace virtualkeyer
