#pragma once

#include <QByteArray>
#include <QList>
#include <QtGlobal>

#include <cstdint>
#include <optional>

/// The characters that a near keyer has yet to echo, oldest first.
///
/// It is given the next one whatever it answers, so that an idle report which it sent ahead of the
/// character it was given last has one more be with it than its echoes have told of, up to the end
/// of the text. The pacing takes no notice; whoever has to know what is keyed asks here. Any echo
/// takes the oldest one, since keyers have their own ideas of some characters.
class UnheardCharacters {
  public:
    /// `place` is where in the text it stands, or what had to be sent with it begins.
    void add(char character, qsizetype place);
    /// Letters that are joined may be echoed or not.
    void addJoined(char character, qsizetype place);
    void takeEcho(std::uint8_t echo);
    /// The text ends at `size`.
    void restrictPlaces(qsizetype size);
    /// They are keyed, or lost.
    void clear();
    /// The keyer was told to drop them; one may be echoed all the same.
    void abandon();

    [[nodiscard]] bool areThere() const { return !_characters.isEmpty(); }
    /// Where in the text the oldest one stands.
    [[nodiscard]] std::optional<qsizetype> oldestPlace() const;
    /// How many stand there: the letters of a call sign all stand at its token.
    [[nodiscard]] qsizetype countAtOldest() const;

  private:
    struct Character {
        std::uint8_t byte;
        qsizetype place;
        bool isJoined;
    };

    [[nodiscard]] bool takeAbandoned(std::uint8_t echo);
    [[nodiscard]] bool isOfNoCharacter(std::uint8_t echo) const;
    [[nodiscard]] bool isFirstLost(std::uint8_t echo) const;

    QList<Character> _characters;
    QByteArray _abandoned;
};
