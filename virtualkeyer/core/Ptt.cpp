#include "virtualkeyer/core/Ptt.h"

#include "virtualkeyer/core/Registers.h"
#include "virtualkeyer/core/Timing.h"

#include <algorithm>
#include <utility>

namespace virtualkeyer {

Time Ptt::raise(Holder holder, Time now) {
    _holders |= holder;
    if (!_isOn) {
        _isOn = true;
        _isFirst = true;
        _ready = now + timingOf(_registers).leadIn;
        refresh(now);
    }
    return std::max(now, _ready);
}

void Ptt::releaseAt(Holder holder, Time at) {
    _holders &= ~static_cast<unsigned>(holder);
    _until = std::max(_until, at);
}

void Ptt::drop(Time now) {
    _isOn = false;
    _holders = 0;
    _until = now;
    refresh(now);
}

bool Ptt::takeFirstElement() {
    return std::exchange(_isFirst, false);
}

std::optional<Time> Ptt::due() const {
    return _isOn && _holders == 0 ? std::optional{_until} : std::nullopt;
}

void Ptt::run(Time now) {
    drop(now);
}

void Ptt::refresh(Time now) {
    const bool shown = _isOn && _registers.pttOn();
    if (shown == _isShown) {
        return;
    }
    _isShown = shown;
    _outbox.post(now, PttLine{shown});
}

} // namespace virtualkeyer
