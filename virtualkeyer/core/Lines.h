#pragma once

#include "virtualkeyer/core/Outbox.h"

#include <array>

namespace virtualkeyer {

class Registers;

/// The key outputs and the sidetone.
class Lines {
  public:
    /// Who holds the key down; it is up when nobody does.
    enum Source : unsigned { Host = 1, Paddle = 2, Tune = 4 };

    Lines(const Registers& registers, Outbox& outbox) : _registers(registers), _outbox(outbox) {}

    void press(Source source, Time at);
    void release(Source source, Time at);
    /// Everybody lets go.
    void releaseAll(Time at);
    /// A tone that keys nothing.
    void beep(bool isOn, Time at);
    /// The registers have changed.
    void refresh(Time at);

  private:
    [[nodiscard]] int wantedTone() const;

    const Registers& _registers;
    Outbox& _outbox;
    unsigned _sources = 0;
    bool _beeps = false;
    std::array<bool, 2> _isDown{};
    int _tone = 0;
};

} // namespace virtualkeyer
