#include "virtualkeyer/core/Registers.h"

#include <algorithm>

namespace virtualkeyer {

namespace {

constexpr int wpmOfHundredLetters = 20;

/// The values that a register takes.
struct Range {
    std::uint8_t first;
    std::uint8_t last;
    bool alsoZero = false;
};

constexpr std::array<Range, Registers::count> ranges{{
    {0, 255},       // Mode
    {5, 99, true},  // Speed
    {0, 255},       // Sidetone, whose divider is checked by itself
    {10, 90},       // Weighting
    {0, 25},        // LeadIn
    {0, 25},        // Tail
    {5, 99},        // PotMinimum
    {0, 63},        // PotRange
    {0, 250},       // FirstExtension
    {0, 250},       // Compensation
    {10, 99, true}, // Farnsworth
    {10, 90, true}, // Switchpoint
    {33, 66},       // Ratio
    {0, 255},       // PinConfiguration
}};

bool isAllowed(Register which, std::uint8_t value) {
    if (which == Register::Sidetone) {
        const int divider = value & 0x0F;
        return divider >= 1 && divider <= 10;
    }
    const Range& range = ranges[static_cast<std::size_t>(which)];
    return (value >= range.first && value <= range.last) || (range.alsoZero && value == 0);
}

} // namespace

void Registers::set(Register which, std::uint8_t value) {
    if (!isAllowed(which, value)) {
        return;
    }
    _values[static_cast<std::size_t>(which)] = value;
    if (which == Register::Speed) {
        _highSpeed = 0;
        _temporarySpeed = 0;
    }
}

void Registers::restoreFactory() {
    *this = Registers(_potWpm);
}

void Registers::load(std::span<const std::uint8_t, count> values) {
    for (std::size_t i = 0; i < count; ++i) {
        set(static_cast<Register>(i), values[i]);
    }
}

std::uint8_t Registers::value(Register which) const {
    return _values[static_cast<std::size_t>(which)];
}

std::array<std::uint8_t, Registers::blockSize> Registers::block() const {
    std::array<std::uint8_t, blockSize> block{};
    std::ranges::copy(_values, block.begin());
    return block;
}

int Registers::potWpm() const {
    return withinPotRange(_potWpm);
}

int Registers::withinPotRange(int wpm) const {
    const int minimum = value(Register::PotMinimum);
    return std::clamp(wpm, minimum, minimum + value(Register::PotRange));
}

std::uint8_t Registers::potByte() const {
    return static_cast<std::uint8_t>(0x80 + potWpm() - value(Register::PotMinimum));
}

void Registers::setTemporarySpeed(int wpm) {
    if (wpm >= 5 && wpm <= 99) {
        _temporarySpeed = wpm;
    }
}

void Registers::cancelTemporarySpeed() {
    _temporarySpeed = 0;
}

void Registers::setHighSpeed(int hundreds) {
    if (hundreds == 0) {
        return;
    }
    _highSpeed = hundreds * wpmOfHundredLetters;
    _temporarySpeed = 0;
}

void Registers::setTemporaryHighSpeed(int hundreds) {
    if (hundreds != 0) {
        _temporarySpeed = hundreds * wpmOfHundredLetters;
    }
}

int Registers::wpm() const {
    if (_temporarySpeed != 0) {
        return _temporarySpeed;
    }
    if (_highSpeed != 0) {
        return _highSpeed;
    }
    const int speed = value(Register::Speed);
    return speed != 0 ? speed : withinPotRange(_obeyedPotWpm);
}

PaddleMode Registers::paddleMode() const {
    return static_cast<PaddleMode>((value(Register::Mode) >> 4) & 3);
}

UltimaticPriority Registers::ultimaticPriority() const {
    switch (value(Register::PinConfiguration) >> 6) {
    case 1:
        return UltimaticPriority::Dah;
    case 2:
        return UltimaticPriority::Dit;
    default:
        return UltimaticPriority::Last;
    }
}

int Registers::hangDits() const {
    return 1 << ((value(Register::PinConfiguration) >> 4) & 3);
}

bool Registers::keysOutput(int output) const {
    return pinBit(output == 1 ? 2 : 3);
}

void Registers::selectOutput(int output) {
    auto& pins = _values[static_cast<std::size_t>(Register::PinConfiguration)];
    pins = static_cast<std::uint8_t>((pins & ~0x0C) | (output == 1 ? 0x04 : 0x08));
}

int Registers::sidetoneHz() const {
    return 4000 / (value(Register::Sidetone) & 0x0F);
}

bool Registers::sidetoneForPaddleOnly() const {
    return (value(Register::Sidetone) & 0x80) != 0;
}

bool Registers::modeBit(unsigned bit) const {
    return ((value(Register::Mode) >> bit) & 1) != 0;
}

bool Registers::pinBit(unsigned bit) const {
    return ((value(Register::PinConfiguration) >> bit) & 1) != 0;
}

} // namespace virtualkeyer
