#include "keyer/SendingText.h"

#include "keyer/Replace.h"
#include "keyer/SendableText.h"

#include <algorithm>

namespace {

/// The byte that keys `character`, which is a sendable one.
char byteOf(QChar character) {
    return character.toUpper().toLatin1();
}

} // namespace

bool SendingText::setText(const QString& text) {
    return replace(_text, text);
}

void SendingText::restrictToText() {
    _index = std::min(_index, _text.size());
    _inFlightIndex = std::min(_inFlightIndex, _index);
}

void SendingText::rewind() {
    endCallsign();
    _index = 0;
    _inFlightIndex = 0;
}

void SendingText::acknowledge() {
    if (!_isReadingCallsign) {
        _inFlightIndex = _index;
    }
}

void SendingText::keepInFlight(qsizetype place) {
    _inFlightIndex = std::min(place, _index);
}

void SendingText::takeBack() {
    endCallsign();
    _index = _inFlightIndex;
}

std::optional<char> SendingText::peek() const {
    return _index < _text.size() ? std::optional(byteOf(_text.at(_index))) : std::nullopt;
}

std::optional<char> SendingText::next() {
    const auto character = peek();
    _index += character ? 1 : 0;
    return character;
}

std::optional<std::pair<char, char>> SendingText::nextTwo() {
    if (_index + 1 >= _text.size()) {
        return std::nullopt;
    }
    const std::pair two(byteOf(_text.at(_index)), byteOf(_text.at(_index + 1)));
    _index += 2;
    return two;
}

bool SendingText::setCallsign(const QString& callsign) {
    return replace(_callsign, callsign);
}

void SendingText::beginCallsign() {
    _isReadingCallsign = true;
    _takenOfCallsign.clear();
}

std::optional<char> SendingText::nextOfCallsign() {
    // The field has filtered the call, but a single pass leaves some things in.
    while (_callsignIndex < _callsign.size() && !isSendable(_callsign.at(_callsignIndex))) {
        ++_callsignIndex;
    }
    if (_callsignIndex >= _callsign.size()) {
        endCallsign();
        acknowledge();
        return std::nullopt;
    }
    const auto byte = byteOf(_callsign.at(_callsignIndex++));
    _takenOfCallsign += QLatin1Char(byte);
    return byte;
}

void SendingText::endCallsign() {
    _isReadingCallsign = false;
    _callsignIndex = 0;
}
