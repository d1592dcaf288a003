#include "loggers/LoggerRequest.h"

#include <algorithm>
#include <optional>

namespace LoggerRequest {

namespace {

constexpr char escape = '\x1B';
constexpr auto lineEnd = "\r\n";

/// Nothing for what is no number, or has anything behind it.
std::optional<int> number(QByteArrayView text) {
    constexpr qsizetype longestNumber = 9;
    const bool hasSign = text.startsWith('-') || text.startsWith('+');
    const auto digits = text.sliced(hasSign ? 1 : 0);
    const bool areDigits = std::all_of(digits.begin(), digits.end(),
                                       [](char each) { return each >= '0' && each <= '9'; });
    if (digits.isEmpty() || digits.size() > longestNumber || !areDigits) {
        return std::nullopt;
    }
    const int value = digits.toByteArray().toInt();
    return text.front() == '-' ? -value : value;
}

/// The request that `make` makes of a number in the range.
template <typename Make>
Request ofNumber(QByteArrayView text, int minimum, int maximum, Make make) {
    const auto value = number(text);
    return value && *value >= minimum && *value <= maximum ? Request(make(*value)) : Request();
}

Request readEscape(char what, QByteArrayView value) {
    constexpr int all = 1'000'000'000;
    switch (what) {
    case '0':
        return Reset{};
    case '2':
        return ofNumber(value, 4, 60, [](int wpm) { return Speed{std::max(wpm, 5)}; });
    case '3':
        return ofNumber(value, 1, 4000, [](int hertz) { return Sidetone{hertz}; });
    case '4':
        return Abort{};
    case '6':
        return WordMode{};
    case '7':
        return ofNumber(value, -50, 50, [](int percent) { return Weighting{percent}; });
    case 'c':
        return ofNumber(value, 1, all, [](int seconds) { return Tune{std::min(seconds, 10)}; });
    case 'd':
        return ofNumber(value, 0, all, [](int time) { return PttLead{std::min(time, 50)}; });
    case 'h':
        return Reply{"h" + value.toByteArray() + lineEnd};
    default:
        return {};
    }
}

Request readText(QByteArrayView text) {
    const bool isEchoWanted = text.endsWith('^');
    text.chop(isEchoWanted ? 1 : 0);
    return Text{LoggerText::read(text), isEchoWanted ? text.toByteArray() + lineEnd : QByteArray()};
}

} // namespace

Request read(const QByteArray& datagram) {
    // Many a logger sends the end of its string along, and what of its memory lies behind that.
    QByteArrayView text(datagram);
    if (const auto end = text.indexOf('\0'); end >= 0) {
        text.truncate(end);
    }
    if (text.size() > longest) {
        return {};
    }
    while (text.endsWith('\r') || text.endsWith('\n')) {
        text.chop(1);
    }
    if (text.isEmpty()) {
        return {};
    }
    if (text.front() != escape) {
        return readText(text);
    }
    return text.size() > 1 ? readEscape(text.at(1), text.sliced(2)) : Request();
}

} // namespace LoggerRequest
