#include "virtualkeyer/core/Status.h"

#include <utility>

namespace virtualkeyer {

namespace {

constexpr unsigned statusByte = 0xC0;
constexpr unsigned xoffBit = 0x01;
constexpr unsigned breakInBit = 0x02;
constexpr unsigned busyBit = 0x04;
constexpr unsigned keyDownBit = 0x08;
constexpr unsigned waitBit = 0x10;
constexpr std::uint8_t buttonByte = 0xC8;
constexpr std::uint8_t buttonBits = 0x17;

} // namespace

void Status::change(unsigned added, unsigned dropped, Time at) {
    const std::uint8_t before = byte();
    _reasons = (_reasons & ~dropped) | added;
    if (byte() != before) {
        report(at);
    }
}

void Status::report(Time at) {
    _outbox.tell(byte(), at);
}

void Status::selectVersion2(Time at) {
    _isVersion2 = true;
    tellButtons(_buttons, at);
}

void Status::setPushButtons(std::uint8_t mask, Time at) {
    const auto buttons = static_cast<std::uint8_t>(mask & buttonBits);
    if (buttons == _buttons) {
        return;
    }
    _buttons = buttons;
    if (_profile.buttonReport == ButtonReport::AsTheyMove) {
        return tellButtons(_buttons, at);
    }
    _pressed |= _buttons;
    if (_buttons == 0) {
        tellButtons(std::exchange(_pressed, 0), at);
        tellButtons(0, at);
    }
}

void Status::tellButtons(unsigned buttons, Time at) {
    if (_isVersion2) {
        _outbox.tell(static_cast<std::uint8_t>(buttonByte | buttons), at);
    }
}

std::uint8_t Status::byte() const {
    unsigned bits = statusByte;
    if (has(BufferFull)) {
        bits |= xoffBit;
    }
    if (has(BreakIn)) {
        bits |= breakInBit;
    }
    const bool isBusy = has(Sending) || has(TuneKeyed) || has(PaddleKeyed);
    const bool hidesBusy = has(BufferFull) && _profile.xoffStatus == XoffStatus::Bare;
    if (isBusy && !hidesBusy) {
        bits |= busyBit;
    }
    if (has(Waiting) || has(Tuning)) {
        bits |= waitBit;
    }
    if (has(Tuning) && !_isVersion2) {
        bits |= keyDownBit;
    }
    return static_cast<std::uint8_t>(bits);
}

} // namespace virtualkeyer
