#include "virtualkeyer/sidetone/LiveFeed.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace virtualkeyer {

std::vector<std::int16_t> LiveFeed::next(Time now, std::size_t room, std::size_t stored) {
    std::vector<std::int16_t> samples;
    // A store that runs dry in mid-element would be heard as a click.
    if (_renderer.isSilent() && stored < _cushion) {
        samples.resize(std::min(_cushion - stored, room));
    }
    const std::size_t left = room - samples.size();
    const std::int64_t end = _renderer.sampleAt(now);
    const std::int64_t behind = end - static_cast<std::int64_t>(left);
    if (_renderer.position() < behind) {
        _renderer.skipTo(behind);
    }
    // A device that took nothing for so long gets on with the present.
    if (end - _renderer.position() > _sampleRate) {
        _renderer.jumpTo(std::max<std::int64_t>(behind, end - _sampleRate));
    }
    const auto wanted = std::max<std::int64_t>(0, end - _renderer.position());
    std::vector<float> rendered(std::min(static_cast<std::size_t>(wanted), left));
    _renderer.render(rendered);
    for (const float value : rendered) {
        constexpr double largest = std::numeric_limits<std::int16_t>::max();
        samples.push_back(static_cast<std::int16_t>(std::lround(value * _volume * largest)));
    }
    return samples;
}

} // namespace virtualkeyer
