#include "virtualkeyer/window/ScopeRange.h"

#include <algorithm>

namespace virtualkeyer {

namespace {

constexpr Time shortest{std::chrono::milliseconds{125}};
constexpr Time longest{std::chrono::seconds{128}};

} // namespace

void ScopeRange::setBounds(Time oldest, Time newest) {
    _oldest = oldest;
    _newest = std::max(oldest, newest);
    if (!_isPaused) {
        _right = _newest;
    }
}

void ScopeRange::setPaused(bool isPaused) {
    _isPaused = isPaused;
    if (!isPaused) {
        _right = _newest;
    }
}

void ScopeRange::zoom(int steps) {
    const Time middle = _right - _span / 2;
    _span = std::clamp(steps < 0 ? _span / 2 : _span * 2, shortest, longest);
    if (_isPaused) {
        moveTo(middle + _span / 2);
    }
}

void ScopeRange::moveTo(Time right) {
    _isPaused = true;
    // What is shorter than the range stands at its end.
    const Time first = std::min(_oldest + _span, _newest);
    _right = std::clamp(right, first, _newest);
}

std::optional<Time> ScopeRange::cursor(int index) const {
    return _cursors[static_cast<std::size_t>(index)];
}

void ScopeRange::setCursor(int index, Time at) {
    const Time place = std::clamp(at, _oldest, _newest);
    _cursors[static_cast<std::size_t>(index)] = place;
    _isPaused = true;
    if (place < left()) {
        moveTo(place + _span * 3 / 4);
    } else if (place > _right) {
        moveTo(place + _span / 4);
    }
}

void ScopeRange::moveCursor(int index, Time by) {
    const auto before = cursor(index);
    setCursor(index, before ? *before + by : _right - _span / 2);
}

std::optional<Time> ScopeRange::measured() const {
    if (!_cursors[0] || !_cursors[1]) {
        return std::nullopt;
    }
    return std::max(*_cursors[0], *_cursors[1]) - std::min(*_cursors[0], *_cursors[1]);
}

} // namespace virtualkeyer
