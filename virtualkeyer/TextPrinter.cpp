#include "virtualkeyer/TextPrinter.h"

#include "virtualkeyer/core/Registers.h"
#include "virtualkeyer/pty/SystemFailure.h"

#include <cstdio>

namespace virtualkeyer {

void TextPrinter::keyerDid(const Event& event, const Registers& registers) {
    const auto* line = std::get_if<KeyLine>(&event.what);
    if (line == nullptr) {
        return;
    }
    _decoder.setTiming(timingOf(registers));
    _decoder.key(line->isDown, event.at);
    print();
}

void TextPrinter::timePassed(Time now) {
    _decoder.advance(now);
    print();
}

std::optional<Time> TextPrinter::nextWish() const {
    return _decoder.nextEvent();
}

void TextPrinter::print() {
    const std::string text = _decoder.takeText();
    if (text.empty()) {
        return;
    }
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() ||
        std::fflush(stdout) != 0) {
        throwSystemFailure("cannot print the keyed text");
    }
}

} // namespace virtualkeyer
