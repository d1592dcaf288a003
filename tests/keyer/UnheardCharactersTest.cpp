#include "keyer/UnheardCharacters.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

class UnheardCharactersTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void anyEchoTakesTheOldest();
    void anEchoWithoutACharacterTakesNone();
    void joinedLettersAreEchoedOrNot_data();
    void joinedLettersAreEchoedOrNot();
    void theEchoOfAnAbandonedOneTakesNone();
    void thePlacesAreWhereTheTextEnds();
    void oneEchoMayBeLost();
    void theEchoOfHalfASpaceTakesNone();
};

void UnheardCharactersTest::anyEchoTakesTheOldest() {
    UnheardCharacters characters;
    characters.add('A', 0);
    characters.add('B', 1);
    characters.takeEcho('?');
    QCOMPARE(characters.oldestPlace(), std::optional<qsizetype>(1));
    characters.takeEcho('B');
    QVERIFY(!characters.areThere());
}

void UnheardCharactersTest::anEchoWithoutACharacterTakesNone() {
    UnheardCharacters characters;
    characters.takeEcho('A');
    characters.add('A', 0);
    QVERIFY(characters.areThere());
}

void UnheardCharactersTest::joinedLettersAreEchoedOrNot_data() {
    QTest::addColumn<QByteArray>("echoes");
    QTest::newRow("echoed") << QByteArray("ARK");
    QTest::newRow("not echoed") << QByteArray("K");
    QTest::newRow("echoed as something else") << QByteArray("??K");
}

void UnheardCharactersTest::joinedLettersAreEchoedOrNot() {
    QFETCH(QByteArray, echoes);
    UnheardCharacters characters;
    characters.addJoined('A', 0);
    characters.addJoined('R', 0);
    characters.add('K', 3);
    QCOMPARE(characters.countAtOldest(), 2);
    for (const char each : echoes) {
        QVERIFY(characters.areThere());
        characters.takeEcho(static_cast<std::uint8_t>(each));
    }
    QVERIFY(!characters.areThere());
}

void UnheardCharactersTest::theEchoOfAnAbandonedOneTakesNone() {
    UnheardCharacters characters;
    characters.add('A', 0);
    characters.add('B', 1);
    characters.abandon();
    QVERIFY(!characters.areThere());
    characters.add('K', 0);
    characters.takeEcho('A');
    QVERIFY(characters.areThere());
    characters.takeEcho('K');
    QVERIFY(!characters.areThere());
}

void UnheardCharactersTest::thePlacesAreWhereTheTextEnds() {
    UnheardCharacters characters;
    characters.add('A', 7);
    characters.restrictPlaces(3);
    QCOMPARE(characters.oldestPlace(), std::optional<qsizetype>(3));
}

void UnheardCharactersTest::oneEchoMayBeLost() {
    UnheardCharacters characters;
    characters.add('A', 0);
    characters.add('B', 1);
    characters.add('C', 2);
    characters.takeEcho('B');
    QCOMPARE(characters.oldestPlace(), std::optional<qsizetype>(2));
}

void UnheardCharactersTest::theEchoOfHalfASpaceTakesNone() {
    UnheardCharacters characters;
    characters.add('A', 0);
    characters.takeEcho('|');
    QVERIFY(characters.areThere());
}

static const RegisteredTest<UnheardCharactersTest> registered;
#include "UnheardCharactersTest.moc"
