#include "platform/LeadingNumber.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace LeadingNumber {

qint64 integer(const QString& text) {
    static const QRegularExpression pattern(u"^\\s*([-+]?[0-9]+)"_s);
    const auto digits = pattern.match(text).captured(1);
    bool fits = false;
    const auto number = digits.toLongLong(&fits);
    return fits ? number : integerPart(digits.toDouble());
}

double real(const QString& text) {
    static const QRegularExpression pattern(
        u"^\\s*([-+]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:[eE][-+]?[0-9]+)?)"_s);
    return pattern.match(text).captured(1).toDouble();
}

qint64 integerPart(double number) {
    constexpr auto limit = 9223372036854774784.0;
    if (std::isnan(number)) {
        return 0;
    }
    return static_cast<qint64>(std::trunc(std::clamp(number, -limit, limit)));
}

} // namespace LeadingNumber
