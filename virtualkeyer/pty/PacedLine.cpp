#include "virtualkeyer/pty/PacedLine.h"

namespace virtualkeyer {

namespace {

constexpr std::int64_t bitsPerByte = 11;
constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;

} // namespace

PacedLine::PacedLine(int baud) : _baud(baud), _baudOfNext(baud) {}

void PacedLine::put(std::uint8_t byte, Time at) {
    _waiting.push_back({byte, at});
    if (_waiting.size() == 1) {
        startOldest();
    }
}

void PacedLine::setBaud(int baud, Time at) {
    _baudOfNext = baud;
    const bool isUnderWay = !_waiting.empty() && runTime(_runBytes) < at;
    if (!_waiting.empty() && !isUnderWay) {
        startOldest();
    }
}

std::optional<PacedByte> PacedLine::take(Time until) {
    const auto completeAt = nextCompletion();
    if (!completeAt || *completeAt > until) {
        return std::nullopt;
    }
    const PacedByte byte{_waiting.front().value, *completeAt};
    _waiting.pop_front();
    ++_runBytes;
    if (!_waiting.empty()) {
        startOldest();
    }
    return byte;
}

std::optional<Time> PacedLine::nextCompletion() const {
    if (_waiting.empty()) {
        return std::nullopt;
    }
    return runTime(_runBytes + 1);
}

/// The end of the run's first `bytes` bytes, rounded up.
Time PacedLine::runTime(std::int64_t bytes) const {
    const std::int64_t scaled = bytes * bitsPerByte * nanosecondsPerSecond;
    return _runStart + Time{(scaled + _baud - 1) / _baud};
}

/// Lets the oldest byte follow the run, or begin a new one after a gap or at a new rate.
void PacedLine::startOldest() {
    const Time lineIsFree = runTime(_runBytes);
    const Time since = _waiting.front().since;
    if (since <= lineIsFree && _baud == _baudOfNext) {
        return;
    }
    _runStart = since > lineIsFree ? since : lineIsFree;
    _runBytes = 0;
    _baud = _baudOfNext;
}

} // namespace virtualkeyer
