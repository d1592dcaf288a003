#include "virtualkeyer/core/Lines.h"

#include "virtualkeyer/core/Registers.h"

namespace virtualkeyer {

void Lines::press(Source source, Time at) {
    _sources |= source;
    refresh(at);
}

void Lines::release(Source source, Time at) {
    _sources &= ~static_cast<unsigned>(source);
    refresh(at);
}

void Lines::releaseAll(Time at) {
    _sources = 0;
    refresh(at);
}

void Lines::beep(bool isOn, Time at) {
    _beeps = isOn;
    refresh(at);
}

void Lines::refresh(Time at) {
    for (int output = 1; output <= 2; ++output) {
        bool& isDown = _isDown[static_cast<std::size_t>(output - 1)];
        const bool wanted = _sources != 0 && _registers.keysOutput(output);
        if (wanted == isDown) {
            continue;
        }
        isDown = wanted;
        _outbox.post(at, KeyLine{isDown, output});
    }
    if (const int tone = wantedTone(); tone != _tone) {
        _tone = tone;
        _outbox.post(at, Tone{tone});
    }
}

int Lines::wantedTone() const {
    const unsigned heard = _registers.sidetoneForPaddleOnly() ? Paddle : Host | Paddle | Tune;
    const bool sounds = _beeps || (_registers.sidetoneOn() && (_sources & heard) != 0);
    return sounds ? _registers.sidetoneHz() : 0;
}

} // namespace virtualkeyer
