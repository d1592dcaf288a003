#include "virtualkeyer/core/Ptt.h"

#include "virtualkeyer/core/Registers.h"
#include "virtualkeyer/core/Timing.h"

#include <algorithm>
#include <utility>

namespace virtualkeyer {

Time Ptt::raise(Time now) {
    _until.reset();
    if (!_isOn) {
        _isOn = true;
        _isFirst = true;
        _ready = now + timingOf(_registers).leadIn;
        refresh(now);
    }
    return std::max(now, _ready);
}

void Ptt::setHeld(bool isHeld, Time now) {
    if (isHeld) {
        const std::optional<Time> until = _until;
        static_cast<void>(raise(now));
        _until = until;
    } else if (_isHeld && _until) {
        _until = std::max(now, *_until);
    }
    _isHeld = isHeld;
}

void Ptt::drop(Time now) {
    _isOn = false;
    _isHeld = false;
    _until.reset();
    refresh(now);
}

bool Ptt::takeFirstElement() {
    return std::exchange(_isFirst, false);
}

std::optional<Time> Ptt::due() const {
    return _isOn && !_isHeld ? _until : std::nullopt;
}

void Ptt::run(Time now) {
    drop(now);
}

void Ptt::refresh(Time now) {
    const bool shown = _isOn && _registers.pttOn();
    if (shown == _isShown)
        return;
    _isShown = shown;
    _outbox.post(now, PttLine{shown});
}

} // namespace virtualkeyer
