#include "formatters/MessageFormatter.h"

#include "keyer/MorseKeyboardCharacterSet.h"

#include <algorithm>

bool MessageFormatter::isPartialStringValid(QString* partialString,
                                            TextRange* proposedSelectedRange, const QString&,
                                            TextRange originalSelectedRange, QString*) const {
    *partialString = partialString->toUpper();
    const auto forbidden =
        std::find_if_not(partialString->cbegin(), partialString->cend(), [](QChar each) {
            return morseKeyboardCharacters.characterIsMember(each);
        });
    if (forbidden != partialString->cend()) {
        partialString->remove(forbidden - partialString->cbegin(), 1);
        *proposedSelectedRange = {std::max<qsizetype>(proposedSelectedRange->location - 1, 0),
                                  originalSelectedRange.length};
    }
    return false;
}

void MessageFormatter::fixup(QString& input) const {
    input = stringForObjectValue(input);
}

void MessageFormatter::replace(QString& input, int& position) const {
    TextRange proposed{position, 0};
    isPartialStringValid(&input, &proposed, {}, {}, nullptr);
    position = static_cast<int>(std::min(proposed.location, input.size()));
}
