#pragma once

#include "loggers/LoggerText.h"

#include <QByteArray>

#include <variant>

/// What a logger asks for in one datagram.
namespace LoggerRequest {

/// The most bytes that a request may have, without what lies behind the end of its string.
inline constexpr qsizetype longest = 256;

/// To be keyed, behind what waits already.
struct Text {
    LoggerText text;
    /// What goes back to the sender when it has been keyed; empty for nothing.
    QByteArray echo;
};
/// Drops what waits, and all parameters are again what they were.
struct Reset {};
/// 5 to 60 wpm.
struct Speed {
    int wpm;
};
/// 1 to 4000 Hz.
struct Sidetone {
    int hertz;
};
/// Ends what is being sent, and drops what waits.
struct Abort {};
/// From now on Abort is not heeded.
struct WordMode {};
/// -50 to 50, 0 neutral.
struct Weighting {
    int percent;
};
/// Keys down for 1 to 10 s.
struct Tune {
    int seconds;
};
/// 0 to 50 ms.
struct PttLead {
    int milliseconds;
};
/// Goes back to the sender when the next text has been keyed.
struct Reply {
    QByteArray text;
};

/// The first of them for what means nothing here, or nothing at all.
using Request = std::variant<std::monostate, Text, Reset, Speed, Sidetone, Abort, WordMode,
                             Weighting, Tune, PttLead, Reply>;

/// Reads one datagram, which may hold anything.
[[nodiscard]] Request read(const QByteArray& datagram);

} // namespace LoggerRequest
