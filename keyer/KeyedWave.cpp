#include "keyer/KeyedWave.h"

#include "keyer/MorseTable.h"

#include <algorithm>

namespace KeyedWave {

namespace {

constexpr double neutral = 50;

QString withCodes(const QString& word) {
    QString letters;
    std::copy_if(word.begin(), word.end(), std::back_inserter(letters), [](QChar each) {
        return each != u' ' && MorseTable::contains(each.unicode()) &&
               !MorseTable::patterns.at(each.unicode() - MorseTable::first).empty();
    });
    return letters;
}

/// Lays key-downs one behind the other.
class Tape {
  public:
    void keyDown(Milliseconds length) {
        const bool isGrownTogether = !_keyDowns.empty() && _keyDowns.back().end == _now;
        if (!isGrownTogether) {
            _keyDowns.push_back({_now, _now});
        }
        _now += length;
        _keyDowns.back().end = _now;
    }
    void keyUp(Milliseconds length) { _now += length; }

    [[nodiscard]] std::vector<KeyDown> take() { return std::move(_keyDowns); }

  private:
    std::vector<KeyDown> _keyDowns;
    Milliseconds _now{0};
};

} // namespace

Milliseconds ditLength(int wpm) {
    return Milliseconds(1200) / wpm;
}

Lengths lengthsOf(const Timing& timing) {
    const auto unit = ditLength(std::max(timing.wpm, timing.farnsworthWpm));
    const Milliseconds longer = unit * (timing.weighting - neutral) / neutral + timing.compensation;
    const auto gap = std::max(unit - longer, Milliseconds(0));
    return {.dit = unit + longer,
            .dah = 3 * unit * timing.ratio / neutral + longer,
            .gap = gap,
            .letterSpace = gap + 3 * ditLength(timing.wpm) - unit,
            .firstExtension = timing.firstExtension};
}

std::vector<KeyDown> keyDownsOf(const QString& word, const Timing& timing) {
    const auto lengths = lengthsOf(timing);
    auto extension = lengths.firstExtension;
    auto pause = Milliseconds(0);
    Tape tape;
    for (const auto letter : withCodes(word)) {
        for (const char element : MorseTable::patterns.at(letter.unicode() - MorseTable::first)) {
            tape.keyUp(pause);
            tape.keyDown((element == '-' ? lengths.dah : lengths.dit) + extension);
            extension = Milliseconds(0);
            pause = lengths.gap;
        }
        pause = lengths.letterSpace;
    }
    return tape.take();
}

Milliseconds roundStep(Milliseconds span, int parts) {
    for (double power = 1;; power *= 10) {
        for (const int factor : {1, 2, 5}) {
            const auto step = Milliseconds(factor * power);
            if (step * parts >= span) {
                return step;
            }
        }
    }
}

} // namespace KeyedWave
