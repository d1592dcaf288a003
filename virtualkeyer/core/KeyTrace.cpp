#include "virtualkeyer/core/KeyTrace.h"

#include <algorithm>
#include <utility>

namespace virtualkeyer {

namespace {

using Kind = TraceElement::Kind;

Kind kindOfSpace(Time length, const Timing& timing) {
    if (length > 2 * timing.wordSpace) {
        return Kind::Pause;
    }
    if (length >= wordLimit(timing)) {
        return Kind::WordSpace;
    }
    return length >= letterLimit(timing) ? Kind::LetterSpace : Kind::Space;
}

} // namespace

void KeyTrace::key(bool isDown, const Timing& timing, Time at) {
    if (isDown == _downSince.has_value()) {
        return;
    }
    _decoder.setTiming(timing);
    _decoder.key(isDown, at);
    noteLetters();
    if (isDown) {
        if (_upSince) {
            _elements.push_back({{*_upSince, at}, kindOfSpace(at - *_upSince, timing)});
        }
        _downSince = at;
        _letterStart = _letterStart.value_or(at);
    } else {
        const Stretch mark{*std::exchange(_downSince, std::nullopt), at};
        _elements.push_back({mark, isDah(timing, mark.length()) ? Kind::Dah : Kind::Dit});
        _upSince = at;
    }
    _lastEdge = at;
    forget(at);
}

void KeyTrace::ptt(bool isOn, Time at) {
    if (isOn == _onSince.has_value()) {
        return;
    }
    if (isOn) {
        _onSince = at;
    } else {
        _transmissions.push_back({*std::exchange(_onSince, std::nullopt), at});
    }
    _lastEdge = at;
}

void KeyTrace::advance(Time now) {
    _decoder.advance(now);
    noteLetters();
    forget(now);
}

void KeyTrace::noteLetters() {
    for (const char character : _decoder.takeText()) {
        if (character != ' ' && _letterStart && _upSince) {
            _letters.push_back(
                {{*std::exchange(_letterStart, std::nullopt), *_upSince}, character});
        }
    }
}

void KeyTrace::forget(Time now) {
    const auto forgetOld = [limit = now - kept](auto& list, auto endOf) {
        while (!list.empty() && endOf(list.front()) < limit) {
            list.pop_front();
        }
    };
    const auto endOf = [](const auto& each) { return each.stretch.to; };
    while (_elements.size() > mostElements) {
        _elements.pop_front();
    }
    forgetOld(_elements, endOf);
    forgetOld(_letters, endOf);
    forgetOld(_transmissions, [](const Stretch& stretch) { return stretch.to; });
}

} // namespace virtualkeyer
