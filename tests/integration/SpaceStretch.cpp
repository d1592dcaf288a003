#include "tests/integration/SpaceStretch.h"

#include <algorithm>
#include <array>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Time = VirtualTimeLink::Time;

constexpr int repeats = 5;
/// Of P, A, R, I and S.
constexpr std::array<size_t, 5> elementsOfLetters{4, 2, 3, 2, 3};
constexpr size_t elementsOfWord = 14;
constexpr auto tolerated = 1ms;

void add(Spaces& spaces, Time excess) {
    spaces.late += excess > tolerated ? 1 : 0;
    spaces.worst = std::max(spaces.worst, excess);
}

} // namespace

/// With contest spacing, as it is set at first: six dits between words.
SpaceStretch SpaceStretch::measure(VirtualTimeLink& link, const VirtualTimeLink::Line& line) {
    link.startOver(line);
    const auto changes = link.key(u"PARIS "_s.repeated(repeats).trimmed());
    if (changes.size() != 2 * elementsOfWord * repeats) {
        throw std::runtime_error("The keyer keyed something else.");
    }
    const Time dit = Time(1200ms) / line.wpm;
    SpaceStretch stretch;
    size_t element = 0;
    for (int word = 0; word < repeats; ++word) {
        for (const auto count : elementsOfLetters) {
            element += count;
            if (element == elementsOfWord * repeats) {
                break;
            }
            const Time space = changes[2 * element].at - changes[2 * element - 1].at;
            const bool isBetweenWords = element % elementsOfWord == 0;
            add(isBetweenWords ? stretch.words : stretch.letters,
                space - (isBetweenWords ? 6 : 3) * dit);
        }
    }
    return stretch;
}
