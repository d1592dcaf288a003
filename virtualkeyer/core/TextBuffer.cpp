#include "virtualkeyer/core/TextBuffer.h"

#include <algorithm>

namespace virtualkeyer {

void TextBuffer::put(std::span<const std::uint8_t> bytes) {
    const std::size_t replaced = _overwrites ? _bytes.size() - _input : 0;
    // Half a command would take the next text for its parameters.
    if (bytes.size() > _capacity - _bytes.size() + replaced) {
        return;
    }
    for (const std::uint8_t byte : bytes) {
        put(byte);
    }
}

void TextBuffer::put(std::uint8_t byte) {
    if (_overwrites && _input < _bytes.size()) {
        _bytes[_input] = byte;
    } else if (_bytes.size() < _capacity) {
        _bytes.insert(_bytes.begin() + static_cast<std::ptrdiff_t>(_input), byte);
    } else {
        return;
    }
    ++_input;
}

std::optional<std::uint8_t> TextBuffer::take() {
    if (_bytes.empty()) {
        return std::nullopt;
    }
    const std::uint8_t byte = _bytes.front();
    _bytes.pop_front();
    ++_taken;
    if (_input > 0) {
        --_input;
    }
    return byte;
}

void TextBuffer::backspace() {
    if (_input == 0) {
        return;
    }
    --_input;
    _bytes.erase(_bytes.begin() + static_cast<std::ptrdiff_t>(_input));
}

void TextBuffer::reset() {
    *this = TextBuffer(_capacity);
}

void TextBuffer::overwriteFrom(std::size_t position) {
    moveTo(position);
    _overwrites = true;
}

void TextBuffer::appendFrom(std::size_t position) {
    moveTo(position);
    _overwrites = false;
}

void TextBuffer::insertNulls(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        put(std::uint8_t{0});
    }
}

void TextBuffer::moveTo(std::size_t position) {
    _input = std::min(position - std::min(position, _taken), _bytes.size());
}

} // namespace virtualkeyer
