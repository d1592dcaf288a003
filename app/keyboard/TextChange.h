#pragma once

#include <QString>

/// One stretch of a text replaced by another.
struct TextChange {
    qsizetype position = 0;
    QString removed;
    QString inserted;

    /// The least change that makes `after` of `before`; an empty one when they are equal.
    [[nodiscard]] static TextChange between(const QString& before, const QString& after);

    [[nodiscard]] bool isEmpty() const { return removed.isEmpty() && inserted.isEmpty(); }

    /// The change that takes this one back.
    [[nodiscard]] TextChange reversed() const { return {position, inserted, removed}; }

    /// `text` with the change made, in which `removed` stands at `position`.
    [[nodiscard]] QString appliedTo(QString text) const;

    /// Where the place before the character at `index` is after the change. A place inside what
    /// is removed becomes the beginning of what is inserted.
    [[nodiscard]] qsizetype movedStart(qsizetype index) const;
    /// Where the place behind the character at `index` - 1 is after the change.
    [[nodiscard]] qsizetype movedEnd(qsizetype index) const;

    [[nodiscard]] bool operator==(const TextChange&) const = default;
};
