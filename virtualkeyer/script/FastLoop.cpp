#include "virtualkeyer/script/FastLoop.h"

#include <algorithm>
#include <optional>

namespace virtualkeyer {

namespace {

std::optional<Time> nextDue(const SerialKeyer& keyer, const std::vector<Operator*>& operators) {
    auto next = keyer.nextEvent();
    for (const Operator* each : operators) {
        const auto wish = each->nextWish();
        if (wish && (!next || *wish < *next)) {
            next = wish;
        }
    }
    return next;
}

} // namespace

void runFast(SerialKeyer& keyer, const std::vector<Operator*>& operators) {
    Time now{0};
    while (!std::ranges::any_of(operators, &Operator::hasEnded)) {
        const auto due = nextDue(keyer, operators);
        if (!due) {
            return;
        }
        now = std::max(now, *due);
        for (Operator* each : operators) {
            each->work(keyer, false, now);
        }
        keyer.advance(now);
        // Nobody is at the other end of the line.
        static_cast<void>(keyer.takeArrived());
    }
}

} // namespace virtualkeyer
