#include "virtualkeyer/core/Tune.h"

#include "virtualkeyer/core/Timing.h"

#include <algorithm>

namespace virtualkeyer {

void Tune::start(Time now) {
    if (_isOn) {
        return;
    }
    _isOn = true;
    _board.status.change(Status::Tuning, 0, now);
    const Time ready = _board.ptt.raise(Ptt::Tuning, now);
    if (ready > now) {
        _pressAt = ready;
    } else {
        press(now);
    }
}

void Tune::press(Time now) {
    _pressAt.reset();
    if (_board.profile.tuneLimit) {
        _limitAt = now + *_board.profile.tuneLimit;
    }
    _board.status.change(Status::TuneKeyed, 0, now);
    // The operator tunes to a steady carrier, so the first element after it is no first one.
    static_cast<void>(_board.ptt.takeFirstElement());
    _board.lines.press(Lines::Tune, now);
}

void Tune::release(Time now) {
    if (!_isOn) {
        return;
    }
    _isOn = false;
    _pressAt.reset();
    _limitAt.reset();
    _board.lines.release(Lines::Tune, now);
    _board.ptt.releaseAt(Ptt::Tuning, now + timingOf(_board.registers).tail);
}

void Tune::reportEnd(Time now) {
    _board.status.change(0, Status::Tuning | Status::TuneKeyed, now);
}

std::optional<Time> Tune::due() const {
    return _pressAt ? _pressAt : _limitAt;
}

void Tune::run(Time now) {
    if (_pressAt) {
        press(now);
    } else {
        release(now);
    }
}

} // namespace virtualkeyer
