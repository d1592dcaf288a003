#pragma once

#include <QString>

#include <optional>
#include <utility>

/// The text of a sending run, sent and to be sent, and the place up to which it has been handed to
/// the keyer; with it the other station's call sign, which is read at its token, character by
/// character. Knows nothing of the keyer: the engine takes characters from it.
class SendingText {
  public:
    /// Null before the first text.
    [[nodiscard]] const QString& text() const { return _text; }
    /// True when that changes it. The places in the text stay, until restrictToText().
    bool setText(const QString& text);
    void append(const QString& text) { _text += text; }
    /// Has the places in the text end where it ends.
    void restrictToText();
    /// Goes back to the beginning, and out of the call sign.
    void rewind();

    /// Index of the next character of text().
    [[nodiscard]] qsizetype index() const { return _index; }
    /// Index of the first character that has been taken and that the keyer has not told to be sent;
    /// index() when there is none. While a call sign is being read, that of its token.
    [[nodiscard]] qsizetype inFlightIndex() const { return _inFlightIndex; }
    /// Whether a part of the text is still to be told to be sent.
    [[nodiscard]] bool hasUnsent() const { return _inFlightIndex < _text.size(); }
    /// What has been taken is told to be sent. Within a call sign nothing is, until its end.
    void acknowledge();
    /// What has been taken from `place` on is still to be told to be sent.
    void keepInFlight(qsizetype place);
    /// What has been taken and not acknowledged is to be taken once more, a call sign from its
    /// beginning.
    void takeBack();

    /// The next character, in upper case, which is not taken yet; nothing at the end.
    [[nodiscard]] std::optional<char> peek() const;
    /// The next character, in upper case; nothing at the end.
    [[nodiscard]] std::optional<char> next();
    /// The next two; nothing, and nothing is taken, where only one is left.
    [[nodiscard]] std::optional<std::pair<char, char>> nextTwo();

    [[nodiscard]] const QString& callsign() const { return _callsign; }
    /// True when that changes it.
    bool setCallsign(const QString& callsign);
    void beginCallsign();
    [[nodiscard]] bool isReadingCallsign() const { return _isReadingCallsign; }
    /// The next character of the call sign that can be sent; nothing at its end, from where on the
    /// text is read again.
    [[nodiscard]] std::optional<char> nextOfCallsign();
    /// What has been taken of the call sign at the token that was come upon last.
    [[nodiscard]] const QString& takenOfCallsign() const { return _takenOfCallsign; }

  private:
    void endCallsign();

    QString _text;
    qsizetype _index = 0;
    qsizetype _inFlightIndex = 0;
    QString _callsign;
    bool _isReadingCallsign = false;
    qsizetype _callsignIndex = 0;
    QString _takenOfCallsign;
};
