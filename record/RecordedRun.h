#pragma once

#include "keyer/TextSource.h"

#include <QString>

#include <optional>

/// What one sender had keyed without a rest, as the record keeps it.
struct RecordedRun {
    enum class Ending { Sent, Stopped, BrokenIn, LinkLost };

    /// When its first character was handed to the keyer: milliseconds since 1970, UTC.
    qint64 begun = 0;
    /// What was keyed, with call signs in place of tokens. Its last character is the one that was
    /// under way, where the run ended early.
    QString text = {};
    /// What was left of it then, likewise.
    QString rest = {};
    /// The speed at which it began; nothing where that is not known. High-speed CW is measured in
    /// letters a minute.
    std::optional<int> wordsPerMinute = {};
    std::optional<int> lettersPerMinute = {};
    TextSource source = {};
    /// The message's label, or the logger's program; empty for none.
    QString name = {};
    Ending ending = Ending::Sent;

    [[nodiscard]] QString whole() const { return text + rest; }
    [[nodiscard]] friend bool operator==(const RecordedRun&, const RecordedRun&) = default;
};
