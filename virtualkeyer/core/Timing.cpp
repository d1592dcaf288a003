#include "virtualkeyer/core/Timing.h"

#include "virtualkeyer/core/Registers.h"

#include <algorithm>

namespace virtualkeyer {

namespace {

constexpr int neutral = 50;
constexpr Time step{std::chrono::milliseconds{10}};

std::chrono::milliseconds milliseconds(const Registers& registers, Register which) {
    return std::chrono::milliseconds{registers.value(which)};
}

} // namespace

Time ditLength(int wpm) {
    return Time{std::chrono::milliseconds{1200}} / wpm;
}

bool isDah(const Timing& timing, Time mark) {
    return mark > (timing.dit + timing.dah) / 2;
}

Time letterLimit(const Timing& timing) {
    return timing.gap + timing.restOfLetter / 2;
}

Time wordLimit(const Timing& timing) {
    return timing.gap + timing.restOfLetter + timing.restOfWord / 2;
}

Timing timingOf(const Registers& registers) {
    const int wpm = registers.wpm();
    const Time spaceUnit = ditLength(wpm);
    // Farnsworth only ever makes the letters faster than the spaces.
    const Time unit = ditLength(std::max<int>(wpm, registers.value(Register::Farnsworth)));
    const Time weight = unit * (registers.value(Register::Weighting) - neutral) / neutral;
    const Time longer = weight + milliseconds(registers, Register::Compensation);
    const int wordDits = registers.contestSpacing() ? 6 : 7;

    Timing timing{};
    timing.unit = unit;
    timing.spaceUnit = spaceUnit;
    timing.dit = unit + longer;
    timing.dah = 3 * unit * registers.value(Register::Ratio) / neutral + longer;
    timing.gap = std::max(Time{0}, unit - longer);
    timing.restOfLetter = 3 * spaceUnit - unit;
    timing.restOfWord = (wordDits - 3) * spaceUnit;
    timing.firstExtension = milliseconds(registers, Register::FirstExtension);
    timing.leadIn = registers.pttOn() ? registers.value(Register::LeadIn) * step : Time{0};
    timing.tail = 3 * spaceUnit + registers.value(Register::Tail) * step;
    timing.hang = (wordDits + registers.hangDits()) * spaceUnit;
    timing.wordSpace = wordDits * spaceUnit;
    timing.lookAgain = unit * registers.value(Register::Switchpoint) / neutral;
    return timing;
}

} // namespace virtualkeyer
