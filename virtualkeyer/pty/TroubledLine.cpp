#include "virtualkeyer/pty/TroubledLine.h"

#include <algorithm>

namespace virtualkeyer {

namespace {

constexpr unsigned bitsOfAByte = 8;

bool isCharacter(std::uint8_t byte) {
    return byte >= 0x20 && byte < 0x80;
}

Time partOf(Time time, double share) {
    return Time{static_cast<Time::rep>(share * static_cast<double>(time.count()))};
}

Time roundedUp(Time time, Time step) {
    return (time + step - Time{1}) / step * step;
}

} // namespace

void TroubledLine::put(const PacedByte& byte, const Troubles& troubles) {
    if (isLost(byte.value, troubles)) {
        return;
    }
    PacedByte arriving{byte.value, arrivalOf(byte, troubles)};
    if (_chance.happens(troubles.noise)) {
        const auto bit = static_cast<unsigned>(_chance.next() * bitsOfAByte);
        arriving.value = static_cast<std::uint8_t>(arriving.value ^ (1U << bit));
    }
    const auto copies = _chance.happens(troubles.doubled) ? std::size_t{2} : std::size_t{1};
    _underWay.insert(_underWay.end(), copies, arriving);
}

bool TroubledLine::isLost(std::uint8_t byte, const Troubles& troubles) {
    const bool isEcho = _direction == Direction::ToHost && isCharacter(byte);
    return (isEcho && troubles.losesEchoes) || _chance.happens(troubles.lost);
}

Time TroubledLine::arrivalOf(const PacedByte& byte, const Troubles& troubles) {
    Time at = byte.completeAt + troubles.delay;
    if (troubles.late > Time{0}) {
        at += partOf(troubles.late, _chance.next());
    }
    if (_direction == Direction::ToHost && troubles.joined > Time{0}) {
        at = roundedUp(at, troubles.joined);
    }
    _last = std::max(_last, at);
    return _last;
}

std::optional<PacedByte> TroubledLine::take(Time until) {
    const auto arrival = nextArrival();
    if (!arrival || *arrival > until) {
        return std::nullopt;
    }
    const PacedByte byte = _underWay.front();
    _underWay.pop_front();
    return byte;
}

std::optional<Time> TroubledLine::nextArrival() const {
    return _underWay.empty() ? std::nullopt : std::optional{_underWay.front().completeAt};
}

} // namespace virtualkeyer
