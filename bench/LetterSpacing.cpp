// Up to which speed the spaces stay right: the next letter has to reach the keyer within two dits
// of the echo of the letter before it, or of one further back where several are on their way. Pure
// virtual time, so the tables are always the same for the same code.

#include "tests/integration/SpaceStretch.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Time = VirtualTimeLink::Time;
using Line = VirtualTimeLink::Line;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int slowest = 5;
constexpr int fastest = 150;
constexpr int mostAhead = 8;

void print(VirtualTimeLink& link, const Line& line) {
    const auto stretch = SpaceStretch::measure(link, line);
    std::printf("%5d %14.1f %10d %14.2f %10d %13.2f\n", line.wpm,
                Milliseconds(line.reaction).count(), stretch.letters.late,
                Milliseconds(stretch.letters.worst).count(), stretch.words.late,
                Milliseconds(stretch.words.worst).count());
}

/// The last speed before the first one at which `isRight` does not hold; 0 for none.
template <typename Condition>
int highestSpeed(VirtualTimeLink& link, Line line, const Condition& isRight) {
    int wpm = slowest;
    for (; wpm <= fastest; ++wpm) {
        line.wpm = wpm;
        if (!isRight(SpaceStretch::measure(link, line))) {
            break;
        }
    }
    return wpm == slowest ? 0 : wpm - 1;
}

bool hasRightLetters(const SpaceStretch& stretch) {
    return stretch.letters.late == 0;
}

/// A row for each delay there and back, a column for each number of characters ahead.
template <typename Condition>
void printFarTable(VirtualTimeLink& link, const char* title, const Condition& isRight) {
    std::printf("\n%s, up to %d wpm; characters ahead:\n    ms", title, fastest);
    for (int ahead = 1; ahead <= mostAhead; ++ahead) {
        std::printf(" %5d", ahead);
    }
    for (const Time roundTrip : {0ms, 50ms, 100ms, 200ms, 400ms}) {
        std::printf("\n%6.0f", Milliseconds(roundTrip).count());
        for (int ahead = 1; ahead <= mostAhead; ++ahead) {
            const Line line{.delay = roundTrip / 2, .charactersAhead = ahead};
            std::printf(" %5d", highestSpeed(link, line, isRight));
        }
    }
    std::printf("\n");
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(u"default.info=false"_s);
    VirtualTimeLink link({});

    std::printf("       host takes   letter spaces too long    word spaces too long\n"
                "  wpm          ms      of 20       worst, ms       of 4     worst, ms\n");
    for (const Time reaction : {Time(0), Time(200us), Time(2ms)}) {
        for (const int wpm : {20, 40, 60, 80, 100, 110, 120, 125, 130, 131, 135, 140}) {
            print(link, {.wpm = wpm, .reaction = reaction});
        }
    }
    for (const Time reaction : {Time(0), Time(200us), Time(2ms)}) {
        std::printf("letter spaces right to 1 ms while the host takes %.1f ms: up to %d wpm "
                    "(target: at least 120)\n",
                    Milliseconds(reaction).count(),
                    highestSpeed(link, {.reaction = reaction}, hasRightLetters));
    }
    printFarTable(link, "Letter spaces right to 1 ms over a line with delay", hasRightLetters);
    printFarTable(link, "Letter and word spaces right to 1 ms over a line with delay",
                  [](const SpaceStretch& stretch) { return stretch.isNone(); });
}
