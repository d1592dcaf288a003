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

} // namespace

KeptText::Stretch KeptText::openMergeAt(const QString& text, qsizetype place) {
    const auto start = place > 0 ? text.lastIndexOf(u'{', place - 1) : -1;
    if (start < 0) {
        return {};
    }
    qsizetype length = 1;
    while (length < mergeLength && start + length < text.size() &&
           isLetter(text.at(start + length).toUpper())) {
        ++length;
    }
    const bool isOpen = length < mergeLength && place <= start + length;
    return isOpen ? Stretch{start, length} : Stretch();
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
