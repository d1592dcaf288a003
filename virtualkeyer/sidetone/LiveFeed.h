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
    LiveFeed(int sampleRate, std::size_t cushion)
        : _sampleRate(sampleRate), _renderer(sampleRate), _cushion(cushion) {}

    void setTone(int frequency, Time at) { _renderer.setTone(frequency, at); }
    /// From 0, which is silent, to 1.
    void setVolume(double volume) { _volume = volume; }

    /// Whether nothing is heard, nor will be of what was keyed.
    [[nodiscard]] bool isSilent() const { return _renderer.isSilent() && _renderer.waiting() == 0; }
    /// Edges of tones that are still to be dealt out: those of a second at most, however long the
    /// device takes nothing.
    [[nodiscard]] std::size_t waiting() const { return _renderer.waiting(); }

    /// What the device is given at `now`, `room` samples at most, when it has `stored` samples
    /// still to play. Nothing but what was keyed before `now`.
    [[nodiscard]] std::vector<std::int16_t> next(Time now, std::size_t room, std::size_t stored);

  private:
    int _sampleRate;
    SidetoneRenderer _renderer;
    std::size_t _cushion;
    double _volume = 0.5;
};

} // namespace virtualkeyer
