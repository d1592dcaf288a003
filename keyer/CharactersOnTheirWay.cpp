#include "keyer/CharactersOnTheirWay.h"

#include <algorithm>

namespace {

constexpr qint64 most = 8;

/// Of echoes in a row. To look further would find another letter of the same kind where a byte came
/// that is no echo, and all before it would count as keyed.
constexpr int mostLost = 1;

} // namespace

void CharactersOnTheirWay::setLimit(qint64 limit) {
    if (_characters.isEmpty()) {
        _limit = std::clamp<qint64>(limit, 1, most);
    }
}

std::optional<qsizetype> CharactersOnTheirWay::oldestPlace() const {
    return _characters.isEmpty() ? std::nullopt : std::optional(_characters.constFirst().place);
}

qsizetype CharactersOnTheirWay::countAtOldest() const {
    return std::count_if(_characters.begin(), _characters.end(), [this](const Character& each) {
        return each.isPlain && each.place == _characters.constFirst().place;
    });
}

void CharactersOnTheirWay::addPlain(char character, qsizetype place) {
    if (isOneAtATime()) {
        _characters.clear();
    }
    _characters.append({static_cast<std::uint8_t>(character), place, true});
}

void CharactersOnTheirWay::addJoined(char character, qsizetype place) {
    if (!isOneAtATime()) {
        _characters.append({static_cast<std::uint8_t>(character), place, false});
    }
}

void CharactersOnTheirWay::takeEcho(std::uint8_t echo) {
    if (isOneAtATime()) {
        clear();
        return;
    }
    if (takeAbandoned(echo)) {
        return;
    }
    int lost = 0;
    for (qsizetype i = 0; i < _characters.size() && lost <= mostLost; ++i) {
        if (_characters.at(i).byte == echo) {
            _characters.remove(0, i + 1);
            _abandoned.clear();
            return;
        }
        lost += _characters.at(i).isPlain ? 1 : 0;
    }
}

/// They were given to the keyer before any other, and are echoed before any other.
bool CharactersOnTheirWay::takeAbandoned(std::uint8_t echo) {
    const auto at = _abandoned.indexOf(static_cast<char>(echo));
    _abandoned.remove(0, at + 1);
    return at >= 0;
}

void CharactersOnTheirWay::restrictPlaces(qsizetype size) {
    for (auto& each : _characters) {
        each.place = std::min(each.place, size);
    }
}

void CharactersOnTheirWay::clear() {
    _characters.clear();
    _abandoned.clear();
}

void CharactersOnTheirWay::abandon() {
    if (!isOneAtATime()) {
        for (const auto& each : _characters) {
            _abandoned.append(static_cast<char>(each.byte));
        }
        _abandoned = _abandoned.last(std::min<qsizetype>(_abandoned.size(), most));
    }
    _characters.clear();
}

qsizetype CharactersOnTheirWay::plainOnes() const {
    return std::count_if(_characters.begin(), _characters.end(),
                         [](const Character& each) { return each.isPlain; });
}
