#pragma once

#include <QByteArray>
#include <QList>
#include <QtGlobal>

#include <cstdint>
#include <optional>

/// The characters that the keyer has been given and that it has not echoed, oldest first.
///
/// With one at a time the keyer is near: whatever it echoes is the one, and an idle keyer has keyed
/// it. With more there is a line with delay between, and what the keyer says may be older than what
/// it was given last. An echo then takes the oldest one, or the one behind it if the echo of the
/// oldest was lost; any other byte takes none. Letters that are joined may be echoed or not.
class CharactersOnTheirWay {
  public:
    /// 1 to 8; what is beyond counts as the nearer of them. While some are on their way it stays.
    void setLimit(qint64 limit);
    [[nodiscard]] bool isOneAtATime() const { return _limit == 1; }
    /// Whether one more may go. With one at a time each answer of the keyer lets one go.
    [[nodiscard]] bool hasRoom() const { return isOneAtATime() || plainOnes() < _limit; }
    /// Whether what acts when it is written has to wait, lest it overtake what is to be keyed
    /// first.
    [[nodiscard]] bool holdCommandsBack() const { return !isOneAtATime() && areAwaited(); }
    /// Whether one is on its way whose echo is sure to come.
    [[nodiscard]] bool areAwaited() const { return plainOnes() > 0; }
    /// Where in the text the oldest one stands.
    [[nodiscard]] std::optional<qsizetype> oldestPlace() const;

    /// Of the plain ones, those that stand where the oldest one does: the letters of a call sign
    /// all stand at its token.
    [[nodiscard]] qsizetype countAtOldest() const;

    /// `place` is where in the text it stands, or what had to be sent with it begins.
    void addPlain(char character, qsizetype place);
    void addJoined(char character, qsizetype place);
    void takeEcho(std::uint8_t echo);
    /// The text ends at `size`.
    void restrictPlaces(qsizetype size);
    /// They are keyed, or lost.
    void clear();
    /// The keyer was told to drop them; some are echoed all the same, by the time that it hears.
    void abandon();

  private:
    struct Character {
        std::uint8_t byte;
        qsizetype place;
        bool isPlain;
    };

    [[nodiscard]] qsizetype plainOnes() const;
    [[nodiscard]] bool takeAbandoned(std::uint8_t echo);

    qint64 _limit = 1;
    QList<Character> _characters;
    QByteArray _abandoned;
};
