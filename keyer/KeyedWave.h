#pragma once

#include "keyer/KeyerEncoding.h"

#include <QString>

#include <chrono>
#include <vector>

/// When the keyer has the key down while it sends a text, as its timing settings make it.
namespace KeyedWave {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// What the lengths of elements and spaces follow from, as the keyer's registers hold it.
struct Timing {
    int wpm = 20;
    /// 10 to 90, neutral 50.
    int weighting = 50;
    /// 33 to 66; a dah of three dits is 50.
    int ratio = 50;
    /// Letters are sent at this speed while it is above `wpm`.
    int farnsworthWpm = 0;
    /// 0 to 250.
    std::chrono::milliseconds compensation{0};
    /// 0 to 250.
    std::chrono::milliseconds firstExtension{0};
    bool operator==(const Timing&) const = default;
};

struct Lengths {
    Milliseconds dit;
    Milliseconds dah;
    /// Between the elements of a letter; never below 0.
    Milliseconds gap;
    Milliseconds letterSpace;
    /// By how much the first element is longer.
    Milliseconds firstExtension;
};

/// A time that the key is down, counted from the first key-down.
struct KeyDown {
    Milliseconds begin;
    Milliseconds end;
    bool operator==(const KeyDown&) const = default;
};

/// One dit of plain keying. `wpm` is above 0.
[[nodiscard]] Milliseconds ditLength(int wpm);

[[nodiscard]] Lengths lengthsOf(const Timing& timing);

/// The key-downs of one word, in order. Elements that have grown into each other are one.
/// Characters without Morse code are passed over.
[[nodiscard]] std::vector<KeyDown> keyDownsOf(const QString& word, const Timing& timing);

/// The shortest of 1, 2, 5, 10, 20, 50 ms and so on that divides `span` into at most `parts` parts,
/// which is at least 1.
[[nodiscard]] Milliseconds roundStep(Milliseconds span, int parts);

/// The timing that settings give at `wpm`. A register byte that the keyer would not take counts as
/// neutral.
template <SettingsSource Source>
[[nodiscard]] Timing timingOf(const Source& settings, int wpm) {
    const auto valid = [](int value, int minimum, int maximum, int neutral) {
        return value >= minimum && value <= maximum ? value : neutral;
    };
    Timing timing{.wpm = wpm};
    timing.weighting = valid(KeyerEncoding::weighting(settings), 10, 90, timing.weighting);
    timing.ratio = valid(KeyerEncoding::ditDahRatio(settings), 33, 66, timing.ratio);
    timing.farnsworthWpm = valid(KeyerEncoding::farnsworthSpeed(settings), 10, 99, 0);
    timing.compensation =
        std::chrono::milliseconds(valid(KeyerEncoding::keyingCompensation(settings), 0, 250, 0));
    timing.firstExtension =
        std::chrono::milliseconds(valid(KeyerEncoding::firstExtension(settings), 0, 250, 0));
    return timing;
}

} // namespace KeyedWave
