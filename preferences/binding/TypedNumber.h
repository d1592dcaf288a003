#pragma once

#include <optional>

class QLocale;
class QString;

/// A number as it is being typed, with either decimal sign whatever the language of the session is:
/// a radio's manual and a keyboard's number pad do not know it.
struct TypedNumber {
    /// Nothing while there is no digit; infinite when it is larger than any number.
    std::optional<double> value;
    /// Whether the text is a number, or may become one by more typing.
    bool isPossible = false;

    /// A sign of thousands is none here: it would be taken for the other one.
    [[nodiscard]] static TypedNumber read(const QString& text, const QLocale& locale);
};
