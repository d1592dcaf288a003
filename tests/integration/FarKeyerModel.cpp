#include "tests/integration/FarKeyerModel.h"

using namespace Qt::StringLiterals;

void FarKeyerModel::edit(const QString& text) {
    _text = text;
    _index = std::min(_index, _text.size());
    _arePlacesKnown = false;
}

void FarKeyerModel::append(const QString& message) {
    _text += (_text.isEmpty() ? u""_s : u" "_s) + message;
}

void FarKeyerModel::clear() {
    _areStaleEchoesDue = _areStaleEchoesDue || !_awaited.empty();
    _arePlacesKnown = !_areStaleEchoesDue;
    _text.clear();
    _index = 0;
    _isReadingCall = false;
    _callIndex = 0;
    _awaited.clear();
    _lastKeyedPlace = -1;
}

void FarKeyerModel::wrote(const QByteArray& bytes) {
    auto rest = bytes;
    while (!rest.isEmpty() && _trouble.isEmpty()) {
        if (rest.startsWith('\x0A')) { // clear buffer
            rest.remove(0, 1);
            _given.emplace_back();
        } else if (rest.startsWith('\x06')) { // pause
            rest.remove(0, 2);
        } else {
            take(rest);
        }
    }
}

void FarKeyerModel::take(QByteArray& bytes) {
    if (_isReadingCall) {
        takeCallsign(bytes);
        return;
    }
    if (_index >= _text.size()) {
        note("written beyond the text: " + bytes.toHex(' '));
        return;
    }
    const auto character = at(_index);
    switch (character) {
    case '%':
        takeCommand(bytes, hscwCommand, 1);
        break;
    case '^':
        takeCommand(bytes, "\x1E", 1);
        break;
    case '{':
        takeJoined(bytes);
        break;
    case '|':
        if (bytes.front() != '|') {
            note("a half space is missing");
        }
        bytes.remove(0, 1);
        ++_index;
        break;
    case '~':
        if (isAwaiting()) {
            note("the call was read too early");
        }
        _isReadingCall = true;
        _callIndex = 0;
        ++_index;
        break;
    default:
        ++_index;
        takePlain(bytes, {character, _index - 1, Kind::Plain});
    }
}

void FarKeyerModel::takeJoined(QByteArray& bytes) {
    const auto place = _index;
    takeCommand(bytes, QByteArray("\x1B") + at(place + 1) + at(place + 2), 3);
    for (const auto each : {at(place + 1), at(place + 2)}) {
        _given.back() += each;
        _awaited.push_back({each, place, Kind::Joined});
    }
}

void FarKeyerModel::takeCallsign(QByteArray& bytes) {
    if (_callIndex == callsign.size()) {
        _isReadingCall = false;
        return;
    }
    ++_callIndex;
    takePlain(bytes, {callsign.at(_callIndex - 1).toLatin1(), _index - 1, Kind::OfCall});
}

void FarKeyerModel::takePlain(QByteArray& bytes, const Awaited& expected) {
    if (bytes.front() != expected.character) {
        note(QByteArray("in place of ") + expected.character + " was written " + bytes.toHex(' '));
    }
    bytes.remove(0, 1);
    _given.back() += expected.character;
    _awaited.push_back(expected);
    if (isAwaiting() && !_areStaleEchoesDue && plainOnes() > _ahead) {
        note("too many are on their way");
    }
}

void FarKeyerModel::takeCommand(QByteArray& bytes, const QByteArray& expected, qsizetype length) {
    if (!bytes.startsWith(expected)) {
        note("in place of " + expected.toHex(' ') + " was written " + bytes.toHex(' '));
    }
    if (isAwaiting()) {
        note("a command overtakes what is to be keyed: " + expected.toHex(' '));
    }
    bytes.remove(0, expected.size());
    _index += length;
}

void FarKeyerModel::hears(std::uint8_t byte) {
    if (!_awaited.empty() && _awaited.front().character == static_cast<char>(byte)) {
        // The others are on their way as a whole, with what goes with them.
        if (_awaited.front().kind == Kind::Plain) {
            _lastKeyedPlace = _awaited.front().place;
        }
        _awaited.pop_front();
    }
}

void FarKeyerModel::isAt(qsizetype index) {
    while (_index < index && at(_index) == '~' && callsign.isEmpty()) {
        ++_index;
    }
    if (_index != index) {
        note("the engine is elsewhere");
    }
}

bool FarKeyerModel::mayBeInFlightFrom(qsizetype place) const {
    if (!_arePlacesKnown || !_areEchoesSure || !isAwaiting()) {
        return true;
    }
    return place <= _awaited.front().place && place >= _lastKeyedPlace;
}

std::ptrdiff_t FarKeyerModel::plainOnes() const {
    return std::count_if(_awaited.begin(), _awaited.end(),
                         [](const Awaited& each) { return each.kind != Kind::Joined; });
}

void FarKeyerModel::note(const QByteArray& trouble) {
    if (_trouble.isEmpty()) {
        _trouble = trouble;
    }
}

char FarKeyerModel::at(qsizetype index) const {
    return index < _text.size() ? _text.at(index).toLatin1() : '\0';
}
