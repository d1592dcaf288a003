#include "virtualkeyer/core/MorseTable.h"

#include "tests/support/RegisteredTest.h"

#include <QtTest>

#include <map>
#include <string>

using namespace virtualkeyer;

/// The characters and their elements.
class MorseTableTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void prosignsAreTheirLettersRunTogether_data();
    void prosignsAreTheirLettersRunTogether();
    void digitsCountTheirDits();
    void lettersDifferInEveryPattern();
    void knownLetters();
    void lowerCaseIsAsUpperCase();
    void otherCharactersHaveNoMorse();
    void sharedPatternsReadAsTheFirst();
    void unknownPatternsMakeNoCharacter();
};

void MorseTableTest::prosignsAreTheirLettersRunTogether_data() {
    QTest::addColumn<char>("character");
    QTest::addColumn<QByteArray>("letters");
    const auto row = [](char character, const char* letters) {
        QTest::newRow(letters) << character << QByteArray(letters);
    };
    row('+', "AR");
    row('=', "BT");
    row('@', "AC");
    row('-', "DU");
    row('(', "KN");
    row(')', "KK");
    row('\'', "WG");
    row('"', "RR");
    row('<', "AR");
    row('>', "SK");
    row('$', "SX");
    row('[', "AS");
    row('\\', "DN");
    row(']', "KN");
    row(':', "KN");
    row(';', "AA");
    row('.', "RK");
    row(',', "MIM");
    row('?', "UD");
    row('/', "NR");
}

void MorseTableTest::prosignsAreTheirLettersRunTogether() {
    QFETCH(char, character);
    QFETCH(QByteArray, letters);
    std::string elements;
    for (const char letter : letters) {
        elements += elementsOf(letter);
    }
    QCOMPARE(std::string(elementsOf(character)), elements);
}

void MorseTableTest::digitsCountTheirDits() {
    for (std::size_t digit = 0; digit <= 9; ++digit) {
        const std::string expected =
            digit <= 5 && digit > 0
                ? std::string(digit, '.') + std::string(5 - digit, '-')
                : std::string((digit + 5) % 10, '-') + std::string((15 - digit - 5) % 10, '.');
        const auto character = static_cast<char>('0' + digit);
        QCOMPARE(std::string(elementsOf(character)), digit == 0 ? std::string("-----") : expected);
    }
}

void MorseTableTest::lettersDifferInEveryPattern() {
    std::map<std::string, char> patterns;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const std::string elements(elementsOf(letter));
        QVERIFY(!elements.empty() && elements.size() <= 4);
        QVERIFY(patterns.emplace(elements, letter).second);
        QCOMPARE(characterOf(elements), std::optional(letter));
    }
}

void MorseTableTest::knownLetters() {
    // The letters of each length by the alphabet's usual tree, dit before dah at every branch.
    const std::map<std::size_t, std::string> tree{
        {1, "ET"}, {2, "IANM"}, {3, "SURWDKGO"}, {4, "HVF L PJBXCYZQ  "}};
    for (const auto& [length, letters] : tree) {
        for (std::size_t code = 0; code < letters.size(); ++code) {
            std::string elements;
            for (std::size_t bit = length; bit-- > 0;) {
                elements += ((code >> bit) & 1) != 0 ? '-' : '.';
            }
            if (letters[code] != ' ') {
                QCOMPARE(characterOf(elements), std::optional(letters[code]));
            }
        }
    }
}

void MorseTableTest::lowerCaseIsAsUpperCase() {
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        QCOMPARE(elementsOf(letter), elementsOf(static_cast<char>(letter - 'a' + 'A')));
    }
}

void MorseTableTest::otherCharactersHaveNoMorse() {
    for (const char character : std::string(" !#%&*^_`{|}~\x7F\x1F\x80\xFF")) {
        QVERIFY(elementsOf(character).empty());
    }
}

void MorseTableTest::sharedPatternsReadAsTheFirst() {
    QCOMPARE(characterOf("-..-."), std::optional('/'));
    QCOMPARE(characterOf("-.--."), std::optional('('));
    QCOMPARE(characterOf(".-.-."), std::optional('+'));
}

void MorseTableTest::unknownPatternsMakeNoCharacter() {
    QVERIFY(!characterOf(""));
    QVERIFY(!characterOf("........"));
    QVERIFY(!characterOf("----"));
}

static const RegisteredTest<MorseTableTest> registered;
#include "MorseTableTest.moc"
