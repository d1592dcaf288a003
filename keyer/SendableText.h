#pragma once

#include <QString>

/// Whether a character can go to the keyer as text, which takes a single byte. Anything below the
/// space would reach it as a command.
[[nodiscard]] constexpr bool isSendable(QChar character) {
    return character >= u' ' && character <= u'~';
}

/// The text without what cannot be sent.
[[nodiscard]] inline QString sendable(QString text) {
    text.removeIf([](QChar each) { return !isSendable(each); });
    return text;
}
