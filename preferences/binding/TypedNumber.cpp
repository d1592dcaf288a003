#include "preferences/binding/TypedNumber.h"

#include <QLocale>

#include <algorithm>
#include <limits>

namespace {

constexpr QChar minus{0x2212};

/// As a program writes the character of a number; a null character for any other.
QChar plain(QChar typed, const QLocale& locale) {
    if (const auto digit = typed.digitValue(); digit >= 0) {
        return static_cast<char16_t>(u'0' + digit);
    }
    if (typed == u'.' || typed == u',' || typed == locale.decimalPoint()) {
        return u'.';
    }
    if (typed == u'-' || typed == minus || typed == locale.negativeSign()) {
        return u'-';
    }
    return {};
}

bool isPossible(const QString& plain) {
    return !plain.contains(QChar()) && plain.lastIndexOf(u'-') <= 0 && plain.count(u'.') <= 1;
}

} // namespace

TypedNumber TypedNumber::read(const QString& text, const QLocale& locale) {
    auto number = text.trimmed();
    std::transform(number.begin(), number.end(), number.begin(),
                   [&locale](QChar each) { return plain(each, locale); });
    if (!::isPossible(number)) {
        return {};
    }
    const bool hasDigit =
        std::any_of(number.begin(), number.end(), [](QChar each) { return each.isDigit(); });
    if (!hasDigit) {
        return {.value = {}, .isPossible = true};
    }
    bool isRepresented = false;
    const auto value = QLocale::c().toDouble(number, &isRepresented);
    return {.value = isRepresented ? value : std::numeric_limits<double>::infinity(),
            .isPossible = true};
}
