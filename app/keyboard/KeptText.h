#pragma once

#include <QString>

/// What has been typed and is kept back for a while.
///
/// "{" waits for the two letters that it joins: a sending that came upon it without them would end
/// there, and send them unjoined later on. All of a text waits while the keyer drops what it is
/// sent.
class KeptText {
  public:
    /// Adds what was typed. Of what follows "{", only what the keyer keys as a letter counts; the
    /// rest is dropped.
    void add(const QString& typed);

    /// Yields what is complete, which is not kept any more.
    [[nodiscard]] QString release();

    /// All that is kept.
    [[nodiscard]] QString all() const { return _text; }
    [[nodiscard]] bool isEmpty() const { return _text.isEmpty(); }
    [[nodiscard]] bool hasComplete() const { return completeLength() > 0; }

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
