#pragma once

#include "virtualkeyer/sidetone/SidetoneRenderer.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace virtualkeyer {

/// Deals the sidetone out to a device that plays it now, in pieces. A tone keeps the timing of its
/// events, sample by sample; what device and keyer differ in, by their clocks or because one of
/// them was held up, is made up for in the silences. It reads no clock. Not thread-safe.
class LiveFeed {
  public:
    /// `cushion` is how many samples the device is to have in store in a silence.
    LiveFeed(int sampleRate, std::size_t cushion) : _renderer(sampleRate), _cushion(cushion) {}

    void setTone(int frequency, Time at) { _renderer.setTone(frequency, at); }
    /// From 0, which is silent, to 1.
    void setVolume(double volume) { _volume = volume; }

    /// What the device is given at `now`, `room` samples at most, when it has `stored` samples
    /// still to play. Nothing but what was keyed before `now`.
    [[nodiscard]] std::vector<std::int16_t> next(Time now, std::size_t room, std::size_t stored);

  private:
    SidetoneRenderer _renderer;
    std::size_t _cushion;
    double _volume = 0.5;
};

} // namespace virtualkeyer
