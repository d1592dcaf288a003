#include "keyer/KeyerMemory.h"
#include "keyer/DefaultSettings.h"
#include "keyer/MorseTable.h"
#include "keyer/WinKeyerUsb.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace KeyerMemory;
using namespace Qt::StringLiterals;

static_assert(imageOf(DefaultSettings())[Offset::signature] == 0xA5);
static_assert(imageOf(DefaultSettings())[Offset::modeRegister] == 0x11);
static_assert(imageOf(DefaultSettings())[0x02] == 0x00);

namespace {

using Texts = std::array<QString, messageCount>;

} // namespace

class KeyerMemoryTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void imageOfTheDefaults();
    void codesOfTheTable_data();
    void codesOfTheTable();
    void everyCodeDecodesToTheFirstCharacterThatHasIt();
    void codesThatDecodeToAnotherCharacter_data();
    void codesThatDecodeToAnotherCharacter();
    void emptyMessagesTakeNoSpace();
    void messagesStandBackToBack();
    void aMessageOf232DoesNotFitOneOf231Does();
    void aShorterMessageStillFitsAfterOneThatDoesNot();
    void lengthIsCountedInUpperCase();
    void charactersWithoutACodeAreNamed_data();
    void charactersWithoutACodeAreNamed();
    void encodingMarksTheLastCharacter();
    void encodingRefusesWhatItCannotWrite();
    void decodingGivesTheTextBack_data();
    void decodingGivesTheTextBack();
    void decodingStopsAtADollarSign();
    void decodingWrapsAtTheEndOfTheImage();
    void decodingEndsWithoutAnEndMark();
    void decodingEndsAtWhatIsNoCode();
};

void KeyerMemoryTest::imageOfTheDefaults() {
    const auto image = imageOf(DefaultSettings());
    QByteArray head;
    for (std::size_t i = 0; i < Offset::messages; ++i) {
        head.append(static_cast<char>(image[i]));
    }
    QCOMPARE(head.toHex(' '), "a5 11 00 8a 32 00 0a 0d 20 00 00 0a 32 32 06 0c 0a 18 "
                              "10 10 10 10 10 10");
    QVERIFY(std::all_of(image.begin() + Offset::messages, image.end(),
                        [](auto byte) { return byte == 0; }));
}

void KeyerMemoryTest::codesOfTheTable_data() {
    QTest::addColumn<int>("code");
    const auto row = [](const char* character, int code) { QTest::newRow(character) << code; };
    row("E", 0x02);
    row("T", 0x03);
    row("A", 0x06);
    row("N", 0x05);
    row("B", 0x11);
    row("C", 0x15);
    row("Q", 0x1B);
    row("0", 0x3F);
    row("5", 0x20);
    row("1", 0x3E);
    row(" ", 0x1C);
    row("\"", 0x52);
    row("$", 0xC8);
    row("'", 0x5E);
    row("(", 0x2D);
    row(")", 0x6D);
    row("+", 0x2A);
    row(",", 0x73);
    row("-", 0x61);
    row(".", 0x6A);
    row("/", 0x29);
    row(":", 0x2D);
    row(";", 0x1A);
    row("<", 0x2A);
    row("=", 0x31);
    row(">", 0x68);
    row("?", 0x4C);
    row("@", 0x56);
    row("[", 0x22);
    row("\\", 0x29);
    row("]", 0x2D);
    row("|", 0x2C);
    for (const auto* none : {"!", "#", "%", "&", "*", "^", "_", "`", "{", "}", "~", "\x7F"}) {
        row(none, 0x01);
    }
}

void KeyerMemoryTest::codesOfTheTable() {
    QFETCH(int, code);
    const auto character = static_cast<unsigned char>(*QTest::currentDataTag());
    QCOMPARE(int{MorseTable::codeOf(character)}, code);
}

void KeyerMemoryTest::everyCodeDecodesToTheFirstCharacterThatHasIt() {
    for (int code = 0; code < 256; ++code) {
        int expected = 0;
        for (int character = 0x7F; character >= 0x20; --character) {
            if (MorseTable::codeOf(static_cast<char16_t>(character)) == code) {
                expected = character;
            }
        }
        QCOMPARE(int{WinKeyerUsb::morseToAscii(static_cast<std::uint8_t>(code))}, expected);
    }
}

void KeyerMemoryTest::codesThatDecodeToAnotherCharacter_data() {
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("character");
    QTest::newRow("KN is an opening bracket") << 0x2D << int{'('};
    QTest::newRow("AR is a plus") << 0x2A << int{'+'};
    QTest::newRow("DN is a slash") << 0x29 << int{'/'};
    QTest::newRow("no elements is an exclamation mark") << 0x01 << int{'!'};
    QTest::newRow("letters are upper case") << 0x06 << int{'A'};
    QTest::newRow("what no character has is nothing") << 0x7F << 0;
}

void KeyerMemoryTest::codesThatDecodeToAnotherCharacter() {
    QFETCH(int, code);
    QFETCH(int, character);
    QCOMPARE(int{WinKeyerUsb::morseToAscii(static_cast<std::uint8_t>(code))}, character);
}

void KeyerMemoryTest::emptyMessagesTakeNoSpace() {
    const auto layout = layOut(Texts{});
    QCOMPARE(int{layout.freePointer}, 0x18);
    QCOMPARE(layout.usedBytes(), 0);
    for (const auto& message : layout.messages) {
        QVERIFY(!message.start);
        QVERIFY(!message.isLeftOut());
    }
}

void KeyerMemoryTest::messagesStandBackToBack() {
    const auto layout = layOut(Texts{u"CQ"_s, u""_s, u"test"_s});
    QCOMPARE(layout.messages[0].start.value(), 0x18);
    QVERIFY(!layout.messages[1].start);
    QCOMPARE(layout.messages[2].start.value(), 0x1A);
    QCOMPARE(layout.messages[2].text, u"TEST"_s);
    QCOMPARE(int{layout.freePointer}, 0x1E);
    QCOMPARE(layout.usedBytes(), 6);
}

void KeyerMemoryTest::aMessageOf232DoesNotFitOneOf231Does() {
    const auto tooLong = layOut(Texts{QString(232, u'E')});
    QVERIFY(!tooLong.messages[0].start);
    QVERIFY(tooLong.messages[0].isLeftOut());
    QCOMPARE(int{tooLong.freePointer}, 0x18);

    const auto longest = layOut(Texts{QString(231, u'E')});
    QCOMPARE(longest.messages[0].start.value(), 0x18);
    QCOMPARE(int{longest.freePointer}, 0xFF);
    QCOMPARE(longest.usedBytes(), 231);
}

void KeyerMemoryTest::aShorterMessageStillFitsAfterOneThatDoesNot() {
    const auto layout = layOut(Texts{QString(200, u'E'), QString(32, u'T'), QString(31, u'A')});
    QVERIFY(layout.messages[1].isLeftOut());
    QCOMPARE(layout.messages[2].start.value(), 0x18 + 200);
    QCOMPARE(int{layout.freePointer}, 0xFF);
}

void KeyerMemoryTest::lengthIsCountedInUpperCase() {
    const auto layout = layOut(Texts{u"\u00DF"_s});
    QCOMPARE(layout.messages[0].text, u"SS"_s);
    QCOMPARE(layout.messages[0].length(), 2);
}

void KeyerMemoryTest::charactersWithoutACodeAreNamed_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isRejected");
    QTest::newRow("plain text") << u"CQ 5!"_s << false;
    QTest::newRow("delete is in the table") << u"\x7F"_s << false;
    QTest::newRow("tab") << u"A\tB"_s << true;
    QTest::newRow("accented letter") << u"\u00C9"_s << true;
    QTest::newRow("beyond Latin") << u"\u03A9"_s << true;
}

void KeyerMemoryTest::charactersWithoutACodeAreNamed() {
    QFETCH(QString, text);
    QFETCH(bool, isRejected);
    const auto layout = layOut(Texts{u"CQ"_s, text});
    QCOMPARE(layout.hasRejectedCharacter(), isRejected);
    QCOMPARE(layout.messages[1].rejected.has_value(), isRejected);
    QVERIFY(!layout.messages[0].rejected);
}

void KeyerMemoryTest::encodingMarksTheLastCharacter() {
    Image image{};
    QVERIFY(WinKeyerUsb::encodeMessage(u"CQ"_s, 0x18, image));
    QCOMPARE(int{image[0x17]}, 0);
    QCOMPARE(int{image[0x18]}, 0x15);
    QCOMPARE(int{image[0x19]}, 0x9B);
    QCOMPARE(int{image[0x1A]}, 0);
}

void KeyerMemoryTest::encodingRefusesWhatItCannotWrite() {
    Image image{};
    QVERIFY(!WinKeyerUsb::encodeMessage(u"A\u00C9"_s, 0x18, image));
    QVERIFY(!WinKeyerUsb::encodeMessage(u"ABC"_s, 0xFE, image));
    QVERIFY(image == Image{});
    QVERIFY(WinKeyerUsb::encodeMessage(u"AB"_s, 0xFE, image));
    QVERIFY(WinKeyerUsb::encodeMessage(u""_s, 0x18, image));
    QCOMPARE(int{image[0x17]}, 0);
}

void KeyerMemoryTest::decodingGivesTheTextBack_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("letters") << u"CQ DE N0CALL"_s;
    QTest::newRow("one character") << u"E"_s;
    QTest::newRow("signs") << u"\"')+,-./;=>?@[|"_s;
    QTest::newRow("a dollar sign at the end") << u"A$"_s;
    QTest::newRow("as long as can be") << QString(231, u'Q');
}

void KeyerMemoryTest::decodingGivesTheTextBack() {
    QFETCH(QString, text);
    Image image{};
    QVERIFY(WinKeyerUsb::encodeMessage(text, 0x18, image));
    QCOMPARE(WinKeyerUsb::decodeMessage(image, 0x18), text);
}

void KeyerMemoryTest::decodingStopsAtADollarSign() {
    Image image{};
    QVERIFY(WinKeyerUsb::encodeMessage(u"AB$CD"_s, 0x18, image));
    QCOMPARE(int{image[0x1A]}, 0xC8);
    QCOMPARE(WinKeyerUsb::decodeMessage(image, 0x18), u"AB$"_s);
}

void KeyerMemoryTest::decodingWrapsAtTheEndOfTheImage() {
    Image image{};
    image[0xFF] = MorseTable::codeOf('A');
    image[0x00] = MorseTable::codeOf('B') | 0x80;
    QCOMPARE(WinKeyerUsb::decodeMessage(image, 0xFF), u"AB"_s);
}

void KeyerMemoryTest::decodingEndsWithoutAnEndMark() {
    Image image{};
    image.fill(MorseTable::codeOf('E'));
    QCOMPARE(WinKeyerUsb::decodeMessage(image, 0x80), QString(232, u'E'));
}

void KeyerMemoryTest::decodingEndsAtWhatIsNoCode() {
    Image image{};
    image[0x18] = MorseTable::codeOf('A');
    image[0x19] = 0x7F;
    image[0x1A] = MorseTable::codeOf('B') | 0x80;
    QCOMPARE(WinKeyerUsb::decodeMessage(image, 0x18), u"A"_s);
    QCOMPARE(WinKeyerUsb::decodeMessage(Image{}, 0x18), u""_s);
}

static const RegisteredTest<KeyerMemoryTest> registered;
#include "KeyerMemoryTest.moc"
