#pragma once

#include "virtualkeyer/core/Event.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>

namespace virtualkeyer {

/// Turns the beginnings and ends of a tone into samples, each edge at the sample of its time.
///
/// An edge is a raised cosine of 5 ms that begins at its time, rising or falling, so that a tone is
/// as long as its element from any height of the one edge to the same height of the other. It reads
/// no clock. Not thread-safe.
class SidetoneRenderer {
  public:
    static constexpr Time edgeTime = std::chrono::milliseconds{5};

    /// `sampleRate` is in Hz, 8000 at least.
    explicit SidetoneRenderer(int sampleRate);

    /// The tone has `frequency` Hz from `at` on, 0 for none. Times must not lie before an earlier
    /// call's; what comes later than its sample was rendered takes effect with the next.
    void setTone(int frequency, Time at);

    /// The sample at which `at` is, counted from 0.
    [[nodiscard]] std::int64_t sampleAt(Time at) const;

    /// How many samples were rendered.
    [[nodiscard]] std::int64_t position() const { return _position; }

    /// Leaves samples out, up to `sample`, which nobody notices in a silence: false, and nothing is
    /// left out, when there is a tone up to then.
    bool skipTo(std::int64_t sample);

    /// Leaves samples out, up to `sample`, whatever is heard: what is to change by then has
    /// changed.
    void jumpTo(std::int64_t sample);

    /// How many calls of setTone() are still to take effect.
    [[nodiscard]] std::size_t waiting() const { return _changes.size(); }

    /// Whether the next sample is silent, unless a tone begins with it.
    [[nodiscard]] bool isSilent() const { return !_sounds && _level == 0; }

    /// Renders the next samples, from -1 to 1.
    void render(std::span<float> samples);

  private:
    struct Change {
        std::int64_t sample;
        int frequency;
    };

    void make(const Change& change);
    [[nodiscard]] float next();

    int _sampleRate;
    int _edgeSamples;
    std::deque<Change> _changes;
    std::int64_t _position = 0;
    bool _sounds = false;
    int _level = 0; // of the edge: 0 is silent, its number of samples is full
    double _phase = 0;
    double _phaseStep = 0;
};

} // namespace virtualkeyer
