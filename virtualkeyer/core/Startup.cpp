#include "virtualkeyer/core/Startup.h"

#include <utility>

namespace virtualkeyer {

void Startup::restart(Time deafUntil, Time now) {
    _board.lines.beep(false, now);
    _deafUntil = deafUntil;
    _hasBeeped = false;
    _heldUntil.reset();
    _held.clear();
}

bool Startup::admits(std::uint8_t byte, Time now) {
    if (isDeaf(now)) {
        return false;
    }
    if (!_hasBeeped && _board.profile.firstCommandBeep > Time{0}) {
        _hasBeeped = true;
        _heldUntil = now + _board.profile.firstCommandBeep;
        _board.lines.beep(true, now);
    }
    if (!_heldUntil) {
        return true;
    }
    _held.push_back(byte);
    return false;
}

std::vector<std::uint8_t> Startup::takeHeld(Time now) {
    _heldUntil.reset();
    _board.lines.beep(false, now);
    return std::exchange(_held, {});
}

} // namespace virtualkeyer
