#include "virtualkeyer/core/Memory.h"

#include <algorithm>
#include <bit>

namespace virtualkeyer {

namespace {

constexpr std::uint8_t mark = 0xA5;
constexpr std::size_t settingsAt = 1;
constexpr std::size_t commandSpeedAt = 16;
constexpr std::size_t freePointerAt = 17;
constexpr std::size_t addressesAt = 18;
constexpr std::size_t messagesAt = 24;
constexpr int messageCount = 6;
constexpr std::uint8_t commandSpeed = 15;
constexpr std::uint8_t lastByte = 0x80;
constexpr std::uint8_t wordSpace = 0x1C;

/// From bit 0 upward 0 is a dit and 1 a dah; the highest bit set only closes the letter.
std::string elements(std::uint8_t byte) {
    std::string result;
    const int length = std::bit_width(byte) - 1;
    for (int bit = 0; bit < length; ++bit) {
        result += ((byte >> bit) & 1) != 0 ? '-' : '.';
    }
    return result;
}

} // namespace

Memory::Memory() {
    _image[0] = mark;
    std::ranges::copy(Registers::factoryValues, _image.begin() + settingsAt);
    _image[commandSpeedAt] = commandSpeed;
    std::fill(_image.begin() + freePointerAt, _image.begin() + messagesAt,
              static_cast<std::uint8_t>(messagesAt));
}

void Memory::load(std::span<const std::uint8_t, size> image) {
    std::ranges::copy(image, _image.begin());
}

Registers::Values Memory::settings() const {
    if (_image[0] != mark) {
        return Registers::factoryValues;
    }
    Registers::Values values{};
    std::copy_n(_image.begin() + settingsAt, values.size(), values.begin());
    return values;
}

std::vector<std::string> Memory::message(int number) const {
    if (number < 1 || number > messageCount) {
        return {};
    }
    std::size_t at = _image[addressesAt + static_cast<std::size_t>(number) - 1];
    const std::size_t end = _image[freePointerAt];
    if (at < messagesAt) {
        return {};
    }
    std::vector<std::string> letters;
    for (; at < end; ++at) {
        const auto letter = static_cast<std::uint8_t>(_image[at] & ~lastByte);
        const std::string keyed = letter == wordSpace ? " " : elements(letter);
        if (!keyed.empty()) {
            letters.push_back(keyed);
        }
        if ((_image[at] & lastByte) != 0) {
            break;
        }
    }
    return letters;
}

} // namespace virtualkeyer
