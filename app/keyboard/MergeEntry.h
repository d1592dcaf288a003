#pragma once

#include <QString>

/// The sign "{" and the two letters that it joins, while they are being typed.
///
/// They are handed over together: a sending that came upon a "{" without its letters would end
/// there, and send them unjoined later on.
class MergeEntry {
  public:
    /// Adds what was typed, and yields what is complete. Inside of it, only what the keyer keys as
    /// a letter counts; the rest is dropped.
    [[nodiscard]] QString take(const QString& typed);

    /// What is kept back: nothing, the sign, or the sign and a letter.
    [[nodiscard]] QString kept() const { return _kept; }
    [[nodiscard]] bool isBegun() const { return !_kept.isEmpty(); }

    /// Takes back the last character of what is kept.
    void eraseLast() { _kept.chop(1); }
    void clear() { _kept.clear(); }

  private:
    QString _kept;
};
