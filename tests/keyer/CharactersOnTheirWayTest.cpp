#include "keyer/CharactersOnTheirWay.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

namespace {

/// So many at a time, each given with its place.
CharactersOnTheirWay given(const char* characters, int limit = 8) {
    CharactersOnTheirWay all;
    all.setLimit(limit);
    for (qsizetype place = 0; characters[place] != '\0'; ++place) {
        all.addPlain(characters[place], place);
    }
    return all;
}

} // namespace

class CharactersOnTheirWayTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void withOneAtATimeAnyEchoIsTheOnes();
    void withOneAtATimeThereIsAlwaysRoom();
    void thereIsRoomForSoMany_data();
    void thereIsRoomForSoMany();
    void theLimitStaysWhileSomeAreOnTheirWay();
    void eachEchoTakesTheOldest();
    void aLostEchoIsMadeUpForByTheNext();
    void whatIsNoEchoTakesNone();
    void joinedLettersMayBeEchoedOrNot();
    void commandsWaitForAll();
    void echoesOfWhatWasDroppedTakeNoNewOne();
    void placesEndWithTheText();
};

void CharactersOnTheirWayTest::withOneAtATimeAnyEchoIsTheOnes() {
    auto one = given("C", 1);
    QVERIFY(one.areAwaited());
    one.takeEcho('?');
    QVERIFY(!one.areAwaited());
}

void CharactersOnTheirWayTest::withOneAtATimeThereIsAlwaysRoom() {
    auto one = given("CQ", 1);
    QVERIFY(one.hasRoom());
    QVERIFY(!one.holdCommandsBack());
    QCOMPARE(one.oldestPlace(), 1);
}

void CharactersOnTheirWayTest::thereIsRoomForSoMany_data() {
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("room");
    QTest::newRow("two") << 2 << 2;
    QTest::newRow("eight") << 8 << 8;
    QTest::newRow("more than there can be") << 1000 << 8;
}

void CharactersOnTheirWayTest::thereIsRoomForSoMany() {
    QFETCH(const int, limit);
    QFETCH(const int, room);
    auto all = given("", limit);
    for (int i = 0; i < room; ++i) {
        QVERIFY(all.hasRoom());
        all.addPlain('E', i);
    }
    QVERIFY(!all.hasRoom());
    all.takeEcho('E');
    QVERIFY(all.hasRoom());
}

void CharactersOnTheirWayTest::theLimitStaysWhileSomeAreOnTheirWay() {
    auto all = given("CQ", 2);
    all.setLimit(1);
    QVERIFY(!all.isOneAtATime());
    all.takeEcho('C');
    all.takeEcho('Q');
    all.setLimit(0);
    QVERIFY(all.isOneAtATime());
}

void CharactersOnTheirWayTest::eachEchoTakesTheOldest() {
    auto all = given("EEE");
    all.takeEcho('E');
    QCOMPARE(all.oldestPlace(), 1);
    all.takeEcho('E');
    QCOMPARE(all.oldestPlace(), 2);
    all.takeEcho('E');
    QCOMPARE(all.oldestPlace(), std::nullopt);
    all.takeEcho('E');
    QVERIFY(!all.areAwaited());
}

void CharactersOnTheirWayTest::aLostEchoIsMadeUpForByTheNext() {
    auto all = given("CQ D");
    all.takeEcho('Q');
    QCOMPARE(all.oldestPlace(), 2);
}

/// A letter of the same kind further on stays where it is, and all before it.
void CharactersOnTheirWayTest::whatIsNoEchoTakesNone() {
    auto all = given("CQ U");
    for (const char stranger : {'U', '\x17', '|', '?'}) {
        all.takeEcho(static_cast<std::uint8_t>(stranger));
    }
    QCOMPARE(all.oldestPlace(), 0);
}

void CharactersOnTheirWayTest::joinedLettersMayBeEchoedOrNot() {
    for (const auto* echoes : {"ARK", "RK", "AK", "K"}) {
        auto all = given("", 2);
        all.addJoined('A', 0);
        all.addJoined('R', 0);
        QVERIFY(!all.areAwaited());
        QVERIFY(!all.holdCommandsBack());
        all.addPlain('K', 0);
        QVERIFY(all.hasRoom());
        all.addPlain('N', 4);
        for (const auto* echo = echoes; *echo != '\0'; ++echo) {
            QCOMPARE(all.oldestPlace(), 0);
            all.takeEcho(static_cast<std::uint8_t>(*echo));
        }
        QCOMPARE(all.oldestPlace(), 4);
    }
}

void CharactersOnTheirWayTest::commandsWaitForAll() {
    auto all = given("CQ", 3);
    QVERIFY(all.holdCommandsBack());
    all.takeEcho('C');
    QVERIFY(all.holdCommandsBack());
    all.takeEcho('Q');
    QVERIFY(!all.holdCommandsBack());
}

void CharactersOnTheirWayTest::echoesOfWhatWasDroppedTakeNoNewOne() {
    auto all = given("TEST");
    all.abandon();
    QVERIFY(!all.areAwaited());
    all.addPlain('T', 0);
    all.addPlain('E', 1);
    all.addPlain('U', 2);
    all.takeEcho('T'); // keyed before the keyer heard that it is to drop it
    QCOMPARE(all.oldestPlace(), 0);
    all.takeEcho('E');
    QCOMPARE(all.oldestPlace(), 0);
    all.takeEcho('U'); // no more of the old ones come, then
    QCOMPARE(all.oldestPlace(), 0);
    all.takeEcho('T');
    all.takeEcho('E');
    QCOMPARE(all.oldestPlace(), 2);
    all.takeEcho('U');
    QVERIFY(!all.areAwaited());
}

void CharactersOnTheirWayTest::placesEndWithTheText() {
    auto all = given("CQ D");
    all.restrictPlaces(1);
    all.takeEcho('C');
    QCOMPARE(all.oldestPlace(), 1);
    all.takeEcho('Q');
    QCOMPARE(all.oldestPlace(), 1);
}

static const RegisteredTest<CharactersOnTheirWayTest> registered;
#include "CharactersOnTheirWayTest.moc"
