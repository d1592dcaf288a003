#pragma once

#include "keyer/TextSource.h"

#include <QString>

#include <memory>
#include <vector>

/// Who each character of the engine's text is from.
///
/// What one sender adds to what he has added before is of one origin, as long as that has not
/// ended; each message, push-button and round of the beacon is one of its own. What is changed
/// within a text stays that text.
class TextOrigins {
  public:
    struct Details {
        TextSource source;
        /// Of the message, when it was added.
        QString name;
        /// Nothing is added to it any more.
        bool hasEnded = false;
        /// What was taken out of it, unsent, though it is none that the operator edits.
        QString takenOut;
    };
    using Origin = std::shared_ptr<Details>;

    TextOrigins();

    [[nodiscard]] const QString& text() const { return _text; }
    /// The text is another one now; what it has gained is from `source`. Its characters from `next`
    /// on have not been handed to the keyer.
    void follow(const QString& text, qsizetype next, const TextSource& source, const QString& name);

    /// Of the character at `position`, which is handed to the keyer now. What is left of a text
    /// that has ended begins as another of the same sender.
    [[nodiscard]] Origin take(qsizetype position);
    /// What there is of that origin from `position` on.
    [[nodiscard]] QString textFrom(qsizetype position, const Origin& origin) const;
    /// Whether that is more than spaces.
    [[nodiscard]] bool hasWordsFrom(qsizetype position, const Origin& origin) const;
    /// Forgets who ended texts ahead of all others were from.
    void settle();

  private:
    struct Span {
        qsizetype end;
        Origin origin;
    };

    [[nodiscard]] Origin at(qsizetype position) const;
    [[nodiscard]] std::size_t spanAt(qsizetype position) const;
    [[nodiscard]] qsizetype placeBetweenTexts(const QString& text, qsizetype place,
                                              qsizetype gained) const;
    [[nodiscard]] Origin originBetween(const Origin& left, const Origin& right,
                                       const TextSource& source, const QString& name) const;
    void noteTakenOut(qsizetype begin, qsizetype end);
    void replaceSpan(qsizetype begin, qsizetype end, qsizetype gained, const Origin& origin);

    QString _text;
    /// One behind the other, none of them empty.
    std::vector<Span> _spans;
    Origin _nobody;
};
