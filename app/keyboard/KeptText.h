#pragma once

#include <QString>

#include <limits>

/// What has been typed and is kept back for a while.
///
/// "{" waits for the two letters that it joins: a sending that came upon it without them would end
/// there, and send them unjoined later on. All of a text waits while the keyer drops what it is
/// sent.
class KeptText {
  public:
    /// A part of a text.
    struct Stretch {
        qsizetype position = 0;
        qsizetype length = 0;
    };
    /// The "{" next before `place` in `text` that lacks one of its letters or both, with what it
    /// has of them; an empty stretch where there is none, or the place is behind the letter.
    [[nodiscard]] static Stretch openMergeAt(const QString& text, qsizetype place);
    /// Where the "{" stands that a sending which goes on at `begin` would come upon with fewer than
    /// two characters behind it, at the end of `text`; -1 without one.
    [[nodiscard]] static qsizetype mergeOpenAtEnd(QStringView text, qsizetype begin);

    /// Adds what was typed. Of what follows "{", only what the keyer keys as a letter counts; the
    /// rest is dropped.
    void add(const QString& typed);

    /// Ends the last complete word with a space, unless there is one. How much is complete then.
    [[nodiscard]] qsizetype endWord();

    /// Yields what is complete, so many characters of it at most, which are not kept any more.
    [[nodiscard]] QString release(qsizetype most = std::numeric_limits<qsizetype>::max());

    /// All that is kept.
    [[nodiscard]] QString all() const { return _text; }
    [[nodiscard]] bool isEmpty() const { return _text.isEmpty(); }
    [[nodiscard]] bool hasComplete() const { return completeLength() > 0; }

    /// Puts `text` in place of each `character` of what is complete.
    void replace(QChar character, const QString& text);
    /// Takes back the last character.
    void eraseLast();
    /// Drops a "{" that is not complete, and its letter.
    void dropMerge();
    void clear();

  private:
    [[nodiscard]] bool isMergeOpen() const { return _openMerge >= 0; }
    [[nodiscard]] qsizetype completeLength() const {
        return isMergeOpen() ? _openMerge : _text.size();
    }
    void add(QChar character);

    QString _text;
    /// Where the "{" stands that is not complete, -1 without one.
    qsizetype _openMerge = -1;
};
