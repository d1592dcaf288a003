#include "app/keyboard/KeptText.h"

#include "keyer/MorseKeyboardCharacterSet.h"

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

QString KeptText::release() {
    const auto complete = _text.first(completeLength());
    _text.remove(0, complete.size());
    _openMerge = isMergeOpen() ? 0 : -1;
    return complete;
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
