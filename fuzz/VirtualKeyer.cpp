// Any bytes and inputs at any times: the virtual keyer goes on, its events are in order of time,
// also for a while afterwards. No longer: keying that a host has asked for may last for ever.

#include "virtualkeyer/core/Keyer.h"

#include <cstdlib>

using namespace virtualkeyer;

namespace {

void checkOrder(Keyer& keyer, Time& last) {
    for (const auto& event : keyer.takeEvents()) {
        if (event.at < last) {
            std::abort();
        }
        last = event.at;
    }
}

/// Each input is two bytes: what it is, or how long to wait first, and its value.
void feed(Keyer& keyer, std::uint8_t kind, std::uint8_t value, Time& now) {
    switch (kind) {
    case 0xF0:
        keyer.setPaddle((value & 1) != 0, (value & 2) != 0, now);
        break;
    case 0xF1:
        keyer.setPot(value, now);
        break;
    case 0xF2:
        keyer.setPushButtons(value, now);
        break;
    default:
        now += std::chrono::milliseconds(kind);
        keyer.receive(value, now);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Keyer keyer;
    Time now{0};
    Time last{0};
    for (std::size_t i = 0; i + 1 < size; i += 2) {
        feed(keyer, data[i], data[i + 1], now);
        checkOrder(keyer, last);
    }
    keyer.setPaddle(false, false, now);
    if (const auto next = keyer.nextEvent(); next && *next < now) {
        std::abort();
    }
    keyer.advance(now + std::chrono::minutes(1));
    checkOrder(keyer, last);
    return 0;
}
