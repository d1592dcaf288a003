#include "app/keyboard/MergeEntry.h"

#include "keyer/MorseKeyboardCharacterSet.h"

#include <utility>

namespace {

constexpr qsizetype wholeLength = 3;

/// What may be typed but is keyed as something else than one letter, or as nothing.
constexpr CharacterSet noLetters{" |`~#{%^"};

bool isLetter(QChar character) {
    return morseKeyboardCharacters.characterIsMember(character) &&
           !noLetters.characterIsMember(character);
}

} // namespace

QString MergeEntry::take(const QString& typed) {
    QString complete;
    for (const auto character : typed) {
        const auto letter = character.toUpper();
        if (!isBegun() && character != u'{') {
            complete += character;
        } else if (!isBegun() || isLetter(letter)) {
            _kept += letter;
        }
        if (_kept.size() == wholeLength) {
            complete += std::exchange(_kept, {});
        }
    }
    return complete;
}
