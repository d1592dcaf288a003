#pragma once

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <deque>

/// What is to reach a keyer far away, said a second time and as plainly as possible: which bytes
/// may follow, how many characters may be on their way, and that no command overtakes one. It is
/// told all that happens, and notes the first thing that is wrong.
class FarKeyerModel {
  public:
    /// With 2 or more.
    explicit FarKeyerModel(int charactersAhead) : _ahead(charactersAhead) {}

    QString callsign;
    QByteArray hscwCommand;

    /// The text is this from now on, by the operator's hand.
    void edit(const QString& text);
    void append(const QString& message);
    /// What was not given to the keyer is dropped.
    void clear();
    /// The engine has written this, and is about to get that, unless it is lost.
    void wrote(const QByteArray& bytes);
    void hears(std::uint8_t byte);
    /// The setting is another one, which holds as soon as nothing is on its way.
    void mayGetAhead(int characters) { _ahead = std::max(_ahead, characters); }
    /// Echoes will be lost, so that nothing is known of the places from here on.
    void losesEchoes() { _areEchoesSure = false; }

    /// The keyer may throw away what it is given, so that what is on its way is not known any more.
    void losesTrack() { _isTrackKnown = false; }

    [[nodiscard]] const QString& text() const { return _text; }
    /// The engine is at `index`; of a call that is empty nothing is written.
    void isAt(qsizetype index);
    [[nodiscard]] const QByteArray& trouble() const { return _trouble; }
    /// Whether all of the text was given to the keyer.
    [[nodiscard]] bool isThrough() const { return _index == _text.size(); }
    /// Whether a character that the engine has to wait for is on its way.
    [[nodiscard]] bool isAwaiting() const { return _isTrackKnown && plainOnes() > 0; }
    /// Whether the engine may hold the first character on its way to be at `place`.
    [[nodiscard]] bool mayBeInFlightFrom(qsizetype place) const;

    /// The characters to be keyed, given since the last Clear Buffer that was written.
    [[nodiscard]] const QByteArray& given() const { return _given.back(); }
    /// The same for each Clear Buffer, the first one first.
    [[nodiscard]] const std::deque<QByteArray>& allGiven() const { return _given; }

  private:
    /// What it is that will be echoed.
    enum class Kind { Plain, OfCall, Joined };
    struct Awaited {
        char character;
        qsizetype place;
        Kind kind;
    };

    void take(QByteArray& bytes);
    void takeCallsign(QByteArray& bytes);
    void takePlain(QByteArray& bytes, const Awaited& expected);
    void takeJoined(QByteArray& bytes);
    void takeCommand(QByteArray& bytes, const QByteArray& expected, qsizetype length);
    [[nodiscard]] std::ptrdiff_t plainOnes() const;
    void note(const QByteArray& trouble);
    [[nodiscard]] char at(qsizetype index) const;

    int _ahead;
    QString _text;
    qsizetype _index = 0;
    bool _isReadingCall = false;
    qsizetype _callIndex = 0;
    std::deque<Awaited> _awaited;
    bool _arePlacesKnown = true;
    bool _areEchoesSure = true;
    bool _isTrackKnown = true;
    bool _areStaleEchoesDue = false;
    qsizetype _lastKeyedPlace = -1;
    std::deque<QByteArray> _given{QByteArray()};
    QByteArray _trouble;
};
