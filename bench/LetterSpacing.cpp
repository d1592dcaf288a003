// Up to which speed the letter spaces stay right: the next letter has to reach the keyer within
// two dits of the echo of the letter before it. Pure virtual time, so the table is always the same
// for the same code.

#include "bench/VirtualTimeLink.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <array>
#include <cstdio>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Time = VirtualTimeLink::Time;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int words = 5;
/// Elements of P, A, R, I and S.
constexpr std::array letterElements{4, 2, 3, 2, 3};
constexpr int slowest = 10;
constexpr int fastest = 150;
constexpr auto tolerated = 1ms;

/// The spaces of one kind that were keyed.
struct Spaces {
    int late = 0;
    /// By how much the longest one is too long.
    Time worst{0};

    void add(Time excess) {
        late += excess > tolerated ? 1 : 0;
        worst = std::max(worst, excess);
    }
};

struct Stretch {
    Spaces letters;
    Spaces words;
};

/// PARIS five times, with contest spacing, as it is set at first: six dits between words.
Stretch stretchAt(int wpm, Time reaction) {
    VirtualTimeLink link(wpm, reaction);
    const auto changes = link.key(u"PARIS "_s.repeated(words).trimmed());
    constexpr size_t elements = 14;
    if (changes.size() != 2 * elements * words) {
        throw std::runtime_error("The keyer keyed something else.");
    }
    const Time dit = Time(1200ms) / wpm;
    Stretch stretch;
    size_t element = 0;
    for (int word = 0; word < words; ++word) {
        for (const auto count : letterElements) {
            element += static_cast<size_t>(count);
            if (element == elements * words) {
                break;
            }
            const Time space = changes[2 * element].at - changes[2 * element - 1].at;
            if (element % elements == 0) {
                stretch.words.add(space - 6 * dit);
            } else {
                stretch.letters.add(space - 3 * dit);
            }
        }
    }
    return stretch;
}

void print(int wpm, Time reaction) {
    const auto stretch = stretchAt(wpm, reaction);
    std::printf("%5d %14.1f %10d %14.2f %10d %13.2f\n", wpm, Milliseconds(reaction).count(),
                stretch.letters.late, Milliseconds(stretch.letters.worst).count(),
                stretch.words.late, Milliseconds(stretch.words.worst).count());
}

/// The last speed before the first one at which the letter spaces do not hold.
int highestSpeed(Time reaction) {
    int wpm = slowest;
    while (wpm < fastest && stretchAt(wpm + 1, reaction).letters.late == 0) {
        ++wpm;
    }
    return wpm;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(u"default.info=false"_s);

    std::printf("       host takes   letter spaces too long    word spaces too long\n"
                "  wpm          ms      of 20       worst, ms       of 4     worst, ms\n");
    for (const Time reaction : {Time(0), Time(200us), Time(2ms)}) {
        for (const int wpm : {20, 40, 60, 80, 100, 110, 120, 125, 130, 131, 135, 140}) {
            print(wpm, reaction);
        }
    }
    for (const Time reaction : {Time(0), Time(200us), Time(2ms)}) {
        std::printf("letter spaces right to 1 ms while the host takes %.1f ms: up to %d wpm "
                    "(target: at least 120)\n",
                    Milliseconds(reaction).count(), highestSpeed(reaction));
    }
}
