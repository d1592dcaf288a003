#pragma once

#include "virtualkeyer/core/Lines.h"
#include "virtualkeyer/core/Outbox.h"
#include "virtualkeyer/core/Profile.h"
#include "virtualkeyer/core/Ptt.h"
#include "virtualkeyer/core/Registers.h"
#include "virtualkeyer/core/Status.h"

namespace virtualkeyer {

/// What everything that keys has in common: the settings, and the ways out of the keyer.
struct Board {
    explicit Board(const Profile& chosen) : profile(chosen), registers(chosen.potWpm) {}
    Board(const Board&) = delete;
    Board& operator=(const Board&) = delete;

    Profile profile;
    Registers registers;
    Outbox outbox;
    Status status{profile, outbox};
    Lines lines{registers, outbox};
    Ptt ptt{registers, outbox};
};

} // namespace virtualkeyer
