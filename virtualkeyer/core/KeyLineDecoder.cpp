#include "virtualkeyer/core/KeyLineDecoder.h"

#include "virtualkeyer/core/MorseTable.h"
#include "virtualkeyer/core/Registers.h"

#include <utility>

namespace virtualkeyer {

KeyLineDecoder::KeyLineDecoder() : _timing(timingOf(Registers{})) {}

void KeyLineDecoder::setTiming(const Timing& timing) {
    _timing = timing;
}

void KeyLineDecoder::key(bool isDown, Time at) {
    if (isDown == _isDown) {
        return;
    }
    if (isDown) {
        advance(at);
        _awaitsWord = false;
    } else {
        const Time mark = at - _lastEdge;
        _pattern += isDah(_timing, mark) ? '-' : '.';
    }
    _isDown = isDown;
    _lastEdge = at;
}

void KeyLineDecoder::advance(Time now) {
    if (_isDown) {
        return;
    }
    if (!_pattern.empty() && now >= _lastEdge + letterLimit(_timing)) {
        _text += characterOf(_pattern).value_or(unknown);
        _pattern.clear();
        _awaitsWord = true;
    }
    if (_awaitsWord && now >= _lastEdge + wordLimit(_timing)) {
        _text += ' ';
        _awaitsWord = false;
    }
}

std::optional<Time> KeyLineDecoder::nextEvent() const {
    if (_isDown) {
        return std::nullopt;
    }
    if (!_pattern.empty()) {
        return _lastEdge + letterLimit(_timing);
    }
    if (_awaitsWord) {
        return _lastEdge + wordLimit(_timing);
    }
    return std::nullopt;
}

std::string KeyLineDecoder::takeText() {
    return std::exchange(_text, {});
}

} // namespace virtualkeyer
