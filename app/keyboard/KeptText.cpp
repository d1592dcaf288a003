#include "app/keyboard/KeptText.h"

#include "keyer/MorseKeyboardCharacterSet.h"

#include <algorithm>

namespace {

/// The sign and its two letters.
constexpr qsizetype mergeLength = 3;

/// What may be typed but is keyed as something else than one letter, or as nothing.
constexpr CharacterSet noLetters{" |`~#{%^"};

bool isLetter(QChar character) {
    return morseKeyboardCharacters.characterIsMember(character) &&
           !noLetters.characterIsMember(character);
}

/// What a merge may be followed by for its letters to come yet, or to have come.
bool isLetterOrDropped(QChar character) {
    return !noLetters.characterIsMember(character.toUpper());
}

} // namespace

/// Looks no further than a merge reaches, whatever the text around it. What cannot be typed at all
/// does not stay in the text.
KeptText::Stretch KeptText::openMergeAt(const QString& text, qsizetype place) {
    auto start = place - 1;
    while (start >= 0 && place - start < mergeLength && isLetterOrDropped(text.at(start))) {
        --start;
    }
    if (start < 0 || text.at(start) != u'{') {
        return {};
    }
    auto end = start + 1;
    int letters = 0;
    while (letters < mergeLength - 1 && end < text.size() && isLetterOrDropped(text.at(end))) {
        letters += isLetter(text.at(end).toUpper()) ? 1 : 0;
        ++end;
    }
    const bool isOpen = letters < mergeLength - 1 && place <= end;
    return isOpen ? Stretch{start, end - start} : Stretch();
}

qsizetype KeptText::mergeOpenAtEnd(QStringView text, qsizetype begin) {
    // A place that no "{" reaches beyond is one that the sending comes to.
    const auto isReached = [&](qsizetype place) {
        const auto from = std::max(begin, place - mergeLength + 1);
        return from < place && text.sliced(from, place - from).contains(u'{');
    };
    auto place = std::max(begin, text.size() - mergeLength + 1);
    while (isReached(place)) {
        --place;
    }
    while (place < text.size()) {
        if (text.at(place) == u'{' && text.size() - place < mergeLength) {
            return place;
        }
        place += text.at(place) == u'{' ? mergeLength : 1;
    }
    return -1;
}

void KeptText::add(const QString& typed) {
    if (!isMergeOpen() && !typed.contains(u'{')) {
        _text += typed;
        return;
    }
    for (const auto character : typed) {
        add(character);
    }
}

void KeptText::add(QChar character) {
    if (!isMergeOpen()) {
        _openMerge = character == u'{' ? _text.size() : -1;
        _text += character;
    } else if (isLetter(character.toUpper())) {
        _text += character.toUpper();
        _openMerge = _text.size() - _openMerge < mergeLength ? _openMerge : -1;
    }
}

qsizetype KeptText::endWord() {
    const auto end = completeLength();
    if (end == 0 || _text.at(end - 1) == u' ') {
        return end;
    }
    _text.insert(end, u' ');
    _openMerge += isMergeOpen() ? 1 : 0;
    return end + 1;
}

QString KeptText::release(qsizetype most) {
    const auto complete = _text.first(std::min(most, completeLength()));
    _text.remove(0, complete.size());
    _openMerge -= isMergeOpen() ? complete.size() : 0;
    return complete;
}

void KeptText::replace(QChar character, const QString& text) {
    const auto open = _text.sliced(completeLength());
    _text.truncate(completeLength());
    _text.replace(character, text);
    _openMerge = open.isEmpty() ? -1 : _text.size();
    _text += open;
}

void KeptText::eraseLast() {
    const auto shorter = _text.chopped(1);
    clear();
    add(shorter);
}

void KeptText::dropMerge() {
    _text.truncate(completeLength());
    _openMerge = -1;
}

void KeptText::clear() {
    _text.clear();
    _openMerge = -1;
}
