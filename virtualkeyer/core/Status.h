#pragma once

#include "virtualkeyer/core/Outbox.h"
#include "virtualkeyer/core/Profile.h"

#include <cstdint>

namespace virtualkeyer {

/// The status and push-button bytes: tells the host whenever what they show has changed.
class Status {
  public:
    /// Reasons for the bits that the host sees; any number may hold at once.
    enum Reason : unsigned {
        BufferFull = 0x01,
        BreakIn = 0x02,
        Sending = 0x04, ///< keying the host's text
        Waiting = 0x08, ///< a buffered wait or timed key-down
        Tuning = 0x10,  ///< key immediate is on
        TuneKeyed = 0x20,
        PaddleKeyed = 0x40,
    };

    Status(const Profile& profile, Outbox& outbox) : _profile(profile), _outbox(outbox) {}

    /// Drops and adds reasons in one step, so the host sees one byte at most.
    void change(unsigned added, unsigned dropped, Time at);
    /// Drops reasons, and tells the host nothing of it.
    void forget(unsigned dropped) { _reasons &= ~dropped; }
    [[nodiscard]] bool has(Reason reason) const { return (_reasons & reason) != 0; }

    /// Sends the status byte although nothing has changed.
    void report(Time at);

    /// Version 1 mode has a tune bit; version 2 mode has push-button bytes instead.
    void selectVersion1() { _isVersion2 = false; }
    /// Tells an open host the push-buttons at once.
    void selectVersion2(Time at);
    /// The buttons held down: bits 0, 1, 2 and 4.
    void setPushButtons(std::uint8_t mask, Time at);
    /// The status byte as it would be sent now.
    [[nodiscard]] std::uint8_t byte() const;

  private:
    void tellButtons(unsigned buttons, Time at);

    const Profile& _profile;
    Outbox& _outbox;
    unsigned _reasons = 0;
    bool _isVersion2 = false;
    std::uint8_t _buttons = 0;
    unsigned _pressed = 0; // and not reported yet
};

} // namespace virtualkeyer
