#include "keyer/UnheardCharacters.h"

#include <algorithm>

void UnheardCharacters::add(char character, qsizetype place) {
    _characters.append({static_cast<std::uint8_t>(character), place, false});
}

void UnheardCharacters::addJoined(char character, qsizetype place) {
    _characters.append({static_cast<std::uint8_t>(character), place, true});
}

void UnheardCharacters::takeEcho(std::uint8_t echo) {
    if (_characters.isEmpty() || takeAbandoned(echo) || isOfNoCharacter(echo)) {
        return;
    }
    if (isFirstLost(echo)) {
        _characters.removeFirst();
    }
    const auto isIt = [echo](const Character& each) { return each.byte == echo || !each.isJoined; };
    const auto found = std::find_if(_characters.begin(), _characters.end(), isIt);
    // Joined letters of which the echo is not one were not echoed.
    const bool isSilent = found != _characters.end() && found->byte == echo;
    _characters.erase(_characters.begin(), isSilent ? found + 1 : _characters.begin() + 1);
    _abandoned.clear();
}

bool UnheardCharacters::takeAbandoned(std::uint8_t echo) {
    const bool isAbandoned =
        _characters.constFirst().byte != echo && _abandoned.contains(static_cast<char>(echo));
    if (isAbandoned) {
        _abandoned.clear();
    }
    return isAbandoned;
}

/// Some keyers echo the sign for half a space, which is none of the characters.
bool UnheardCharacters::isOfNoCharacter(std::uint8_t echo) const {
    return echo == '|' && _characters.constFirst().byte != '|';
}

/// One echo may be lost: the next one's tells of both.
bool UnheardCharacters::isFirstLost(std::uint8_t echo) const {
    return _characters.size() > 1 && _characters.constFirst().byte != echo &&
           !_characters.at(1).isJoined && _characters.at(1).byte == echo;
}

void UnheardCharacters::restrictPlaces(qsizetype size) {
    for (auto& each : _characters) {
        each.place = std::min(each.place, size);
    }
}

void UnheardCharacters::clear() {
    _characters.clear();
    _abandoned.clear();
}

void UnheardCharacters::abandon() {
    for (const auto& each : _characters) {
        _abandoned.append(static_cast<char>(each.byte));
    }
    _characters.clear();
}

std::optional<qsizetype> UnheardCharacters::oldestPlace() const {
    return _characters.isEmpty() ? std::nullopt : std::optional(_characters.constFirst().place);
}

qsizetype UnheardCharacters::countAtOldest() const {
    return std::count_if(_characters.begin(), _characters.end(), [this](const Character& each) {
        return each.place == _characters.constFirst().place;
    });
}
