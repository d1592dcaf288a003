#pragma once

#include <QString>

/// The number that a text begins with, as settings and answers are read: "1000 lpm" is 1000. White
/// space before it does not count. 0 when there is none.
namespace LeadingNumber {

/// Saturates at the ends of its range.
[[nodiscard]] qint64 integer(const QString& text);
[[nodiscard]] double real(const QString& text);

/// The integer part of a number; 0 for what is none. Saturates at the ends of its range.
[[nodiscard]] qint64 integerPart(double number);

} // namespace LeadingNumber
