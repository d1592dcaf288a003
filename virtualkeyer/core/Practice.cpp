#include "virtualkeyer/core/Practice.h"

#include <utility>

namespace virtualkeyer {

void Practice::start(std::string text) {
    *this = {};
    _text = std::move(text);
}

void Practice::key(bool isDown, const Timing& timing, Time at) {
    _decoder.setTiming(timing);
    _decoder.key(isDown, at);
    _trace.key(isDown, timing, at);
    const auto& elements = _trace.elements();
    if (!elements.empty() && elements.back().stretch.to == at) {
        const TraceElement& element = elements.back();
        const bool isWithinLetter = element.isMark() || element.kind == TraceElement::Kind::Space;
        _score.add(element, isWithinLetter ? timing.unit : timing.spaceUnit);
    }
    advance(at);
}

void Practice::advance(Time now) {
    _decoder.advance(now);
    // Whoever goes on keying something else needs no more of it compared.
    const auto enough = 2 * _text.size() + 20;
    const auto text = _decoder.takeText();
    if (_sent.size() < enough) {
        _sent += text;
    }
}

std::vector<PracticeScore::Mark> Practice::marks() const {
    return PracticeScore::compare(_text, _sent);
}

} // namespace virtualkeyer
