#include "formatters/CallsignFormatter.h"

#include "keyer/CharacterSet.h"

namespace {

constexpr CharacterSet callsignCharacters{
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz/"};

/// The character after a deleted one is not looked at: the next edit sees to it.
QString replacementFor(const QString& text) {
    QString replacement = text.toUpper();
    for (qsizetype i = 0; i < replacement.size(); ++i) {
        if (!callsignCharacters.characterIsMember(replacement.at(i))) {
            replacement.remove(i, 1);
        }
    }
    return replacement;
}

} // namespace

bool CallsignFormatter::isPartialStringValid(const QString& partialString, QString* newString,
                                             QString*) const {
    *newString = replacementFor(partialString);
    return false;
}

void CallsignFormatter::replace(QString& input, int& position) const {
    // What goes of a text depends on nothing that stands behind it.
    position = static_cast<int>(replacementFor(input.left(position)).size());
    input = replacementFor(input);
}
