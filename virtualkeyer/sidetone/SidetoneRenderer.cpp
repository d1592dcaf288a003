#include "virtualkeyer/sidetone/SidetoneRenderer.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace virtualkeyer {

namespace {

constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;
constexpr double fullTurn = 2 * std::numbers::pi;

} // namespace

SidetoneRenderer::SidetoneRenderer(int sampleRate)
    : _sampleRate(sampleRate), _edgeSamples(static_cast<int>(sampleAt(edgeTime))) {}

void SidetoneRenderer::setTone(int frequency, Time at) {
    _changes.push_back({sampleAt(at), frequency});
}

std::int64_t SidetoneRenderer::sampleAt(Time at) const {
    // Apart, because the product of hours and the rate has no room.
    const std::int64_t seconds = at.count() / nanosecondsPerSecond;
    const std::int64_t rest = at.count() % nanosecondsPerSecond;
    return seconds * _sampleRate +
           (rest * _sampleRate + nanosecondsPerSecond / 2) / nanosecondsPerSecond;
}

void SidetoneRenderer::render(std::span<float> samples) {
    for (float& sample : samples) {
        while (!_changes.empty() && _changes.front().sample <= _position) {
            make(_changes.front());
            _changes.pop_front();
        }
        sample = isSilent() ? 0.0F : next();
        ++_position;
    }
}

bool SidetoneRenderer::skipTo(std::int64_t sample) {
    const bool staysSilent = isSilent() && (_changes.empty() || _changes.front().sample >= sample);
    if (staysSilent) {
        _position = std::max(_position, sample);
    }
    return staysSilent;
}

void SidetoneRenderer::jumpTo(std::int64_t sample) {
    while (!_changes.empty() && _changes.front().sample <= sample) {
        make(_changes.front());
        _changes.pop_front();
    }
    _position = std::max(_position, sample);
}

void SidetoneRenderer::make(const Change& change) {
    if (isSilent()) {
        _phase = 0;
    }
    _sounds = change.frequency != 0;
    if (_sounds) {
        _phaseStep = fullTurn * change.frequency / _sampleRate;
    }
}

/// A sample stands in the middle of its time, so that rising and falling edges are alike.
float SidetoneRenderer::next() {
    const int before = _level;
    _level = std::clamp(_level + (_sounds ? 1 : -1), 0, _edgeSamples);
    const double root = std::sin(std::numbers::pi / 4 * (before + _level) / _edgeSamples);
    const double value = root * root * std::sin(_phase + _phaseStep / 2);
    _phase = std::fmod(_phase + _phaseStep, fullTurn);
    return static_cast<float>(value);
}

} // namespace virtualkeyer
