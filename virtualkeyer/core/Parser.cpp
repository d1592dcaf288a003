#include "virtualkeyer/core/Parser.h"

#include "virtualkeyer/core/Memory.h"

#include <array>
#include <utility>

namespace virtualkeyer {

namespace {

constexpr std::uint8_t firstBuffered = 0x18;
constexpr std::uint8_t firstText = 0x20;
constexpr std::uint8_t lastText = 0x7F;
constexpr std::uint8_t pointerCommand = 0x16;

constexpr std::array<std::uint8_t, firstText> counts{
    0, 1, 1, 1, 2, 3, 1, 0,  // 00-07
    0, 1, 0, 1, 1, 1, 1, 15, // 08-0F
    1, 1, 1, 0, 1, 0, 1, 1,  // 10-17
    1, 1, 1, 2, 1, 1, 0, 0,  // 18-1F
};

std::size_t adminParameterCount(std::uint8_t number) {
    switch (number) {
    case 0:
    case 4:
    case 14:
    case 15:
        return 1;
    case 13:
        return Memory::size;
    default:
        return 0;
    }
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
                                  _command->code == pointerCommand &&
                                  _command->parameters.size() == 1;
        if (movesPointer && byte >= 1 && byte <= 3) {
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
    if (byte == 0) {
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
