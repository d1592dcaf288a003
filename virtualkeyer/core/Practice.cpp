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
    _sent += _decoder.takeText();
}

std::vector<PracticeScore::Mark> Practice::marks() const {
    auto marks = PracticeScore::compare(_text, _sent);
    // What is still to come is no mistake.
    while (!marks.empty() && marks.back().kind == PracticeScore::Mark::Kind::Missing) {
        marks.pop_back();
    }
    return marks;
}

} // namespace virtualkeyer
