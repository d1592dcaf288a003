#include "tests/support/RegisteredTest.h"
#include "tests/virtualkeyer/core/KeyerBench.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

/// The paddle's contacts from a time on, in ms from the first touch.
struct Touch {
    double at;
    bool dit;
    bool dah;
};

using Touches = QList<Touch>;

/// Moves the paddle and lets the keyer come to rest; how long the key was down and up in turn.
QString keyed(const QByteArray& set, const Touches& touches) {
    KeyerBench bench;
    bench.open();
    bench.text(set.toStdString());
    const auto start = bench.now;
    for (const Touch& touch : touches) {
        bench.wait(static_cast<double>((start - bench.now).count()) / 1e6 + touch.at);
        bench.paddle(touch.dit, touch.dah);
    }
    return bench.finish() ? bench.keying() : u"does not end"_s;
}

} // namespace

Q_DECLARE_METATYPE(Touch)

/// Paddle keying: modes, memory, break-in, echo.
class KeyerPaddleTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void contactsMakeElements_data();
    void contactsMakeElements();
    void breakInFromIdleIsReported();
    void breakInCutsTheTextAndEchoesItsLetter();
    void breakInDuringALetterSpaceStartsAtOnce();
    void breakInEndsAWaitAndATimedKey_data();
    void breakInEndsAWaitAndATimedKey();
    void breakInEndsAPause();
    void textDuringBreakInIsDiscarded();
    void immediateCommandsWorkDuringBreakIn();
    void lettersAndWordsAreEchoed();
    void elementsThatMakeNoCharacterAreNotEchoed();
    void hangTimeFollowsThePinConfiguration_data();
    void hangTimeFollowsThePinConfiguration();
    void leadInComesBeforeThePaddle();
    void firstExtensionGoesToTheFirstElement();
    void autospaceMakesLetterSpaces_data();
    void autospaceMakesLetterSpaces();
    void watchdogStopsAStuckPaddle();
    void watchdogCanBeTurnedOff();
    void pressedPaddleSurvivesAClose();
    void swapTakesEffectAtOnce();
};

void KeyerPaddleTest::contactsMakeElements_data() {
    QTest::addColumn<QByteArray>("set");
    QTest::addColumn<Touches>("touches");
    QTest::addColumn<QString>("keying");
    const auto row = [](const char* name, const QByteArray& set, const Touches& touches,
                        const QString& keying) { QTest::newRow(name) << set << touches << keying; };
    const QByteArray iambicA = "\x0E\x10"_ba;
    const QByteArray ultimatic = "\x0E\x20"_ba;
    const QByteArray bug = "\x0E\x30"_ba;

    row("a tap makes one dit", {}, {{0, true, false}, {5, false, false}}, u"60"_s);
    row("a tap makes one dah", {}, {{0, false, true}, {5, false, false}}, u"180"_s);
    row("a held contact repeats", {}, {{0, true, false}, {130, false, false}}, u"60 60 60"_s);
    row("a squeeze alternates from the contact that closed first", iambicA,
        {{0, false, true}, {5, true, true}, {430, false, false}}, u"180 60 60 60 180"_s);
    row("a squeeze of both at once begins with a dit", iambicA,
        {{0, true, true}, {130, false, false}}, u"60 60 180"_s);
    row("iambic B adds an element after the squeeze", {}, {{0, true, true}, {150, false, false}},
        u"60 60 180"_s);
    row("iambic B adds it after the look-again delay only", {},
        {{0, true, true}, {50, false, false}}, u"60"_s);
    row("iambic B adds it in the gap too", {}, {{0, true, true}, {70, false, false}},
        u"60 60 180"_s);
    row("iambic A does not", iambicA, {{0, true, true}, {70, false, false}}, u"60"_s);
    row("iambic B adds a dit after the dah", {}, {{0, true, true}, {200, false, false}},
        u"60 60 180 60 60"_s);
    row("iambic A remembers a touch during an element", iambicA,
        {{0, false, true}, {100, true, true}, {120, false, true}, {150, false, false}},
        u"180 60 60"_s);
    row("a touch before the look-again delay is not remembered", iambicA,
        {{0, false, true}, {30, true, true}, {50, false, true}, {100, false, false}}, u"180"_s);
    row("the switchpoint moves that delay", "\x0E\x10\x12\x14"_ba,
        {{0, false, true}, {30, true, true}, {50, false, true}, {100, false, false}},
        u"180 60 60"_s);
    row("without paddle memory no touch is remembered", "\x12\0"_ba,
        {{0, false, true}, {100, true, true}, {120, false, true}, {150, false, false}}, u"180"_s);
    row("without paddle memory a first tap still counts", "\x12\0"_ba,
        {{0, false, true}, {1, false, false}}, u"180"_s);
    row("swapped contacts", "\x0E\x08"_ba, {{0, true, false}, {5, false, false}}, u"180"_s);
    row("ultimatic: the last contact wins", ultimatic,
        {{0, true, false}, {100, true, true}, {400, true, false}, {610, false, false}},
        u"60 60 180 60 180 60 60"_s);
    row("ultimatic: dah has priority", ultimatic + "\x09\x47"_ba,
        {{0, false, true}, {100, true, true}, {400, false, false}}, u"180 60 180"_s);
    row("ultimatic: dit has priority", ultimatic + "\x09\x87"_ba,
        {{0, true, false}, {100, true, true}, {200, false, false}}, u"60 60 60"_s);
    row("a bug's dits are automatic", bug, {{0, true, false}, {130, false, false}}, u"60 60 60"_s);
    row("a bug's dahs are by hand", bug, {{0, false, true}, {777, false, false}}, u"777"_s);
    row("a bug's dah follows its dits", bug,
        {{0, true, false}, {70, false, true}, {300, false, false}}, u"60 60 180"_s);
    row("a bug's dah that comes and goes during a dit is none", bug,
        {{0, true, false}, {70, false, true}, {80, false, false}}, u"60"_s);
    row("weighting and ratio shape the elements", "\x03\x3C\x17\x3C"_ba,
        {{0, false, true}, {200, true, false}, {310, false, false}}, u"228 48 72"_s);
    row("Farnsworth speeds the elements up", "\x0D\x28"_ba, {{0, true, false}, {65, false, false}},
        u"30 30 30"_s);
}

void KeyerPaddleTest::contactsMakeElements() {
    QFETCH(QByteArray, set);
    QFETCH(Touches, touches);
    QTEST(keyed(set, touches), "keying");
}

void KeyerPaddleTest::breakInFromIdleIsReported() {
    KeyerBench bench;
    bench.open();
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C6, 540 C4, 540 C0"_s);
    QCOMPARE(bench.log(u"ptt"_s), u"0 on, 540 off"_s);
}

void KeyerPaddleTest::breakInCutsTheTextAndEchoesItsLetter() {
    KeyerBench bench;
    bench.open();
    bench.text("STOP");
    bench.waitUntil(130);
    bench.paddle(false, true);
    bench.waitUntil(140);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"60 60 60 60 180"_s);
    QCOMPARE(bench.host(), u"0 C4, 240 C6, 240 53, 900 C4, 900 C0"_s);
}

void KeyerPaddleTest::breakInDuringALetterSpaceStartsAtOnce() {
    KeyerBench bench;
    bench.open();
    bench.text("EE");
    bench.waitUntil(150);
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 120 45, 150 C6, 690 C4, 690 C0"_s);
    QCOMPARE(bench.keying(), u"60 90 60"_s);
}

void KeyerPaddleTest::breakInEndsAWaitAndATimedKey_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("host");
    QTest::addColumn<QString>("keying");
    QTest::newRow("wait") << "E\x1A\x63"_ba << u"0 C4, 120 45, 240 D4, 1000 C6, 1540 C4, 1540 C0"_s
                          << u"60 940 60"_s;
    QTest::newRow("timed key-down")
        << "\x19\x63"_ba << u"0 D4, 1000 C6, 1540 C4, 1540 C0"_s << u"1000 0 60"_s;
}

void KeyerPaddleTest::breakInEndsAWaitAndATimedKey() {
    QFETCH(QByteArray, bytes);
    KeyerBench bench;
    bench.open();
    bench.text(bytes.toStdString());
    bench.waitUntil(1000);
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QTEST(bench.host(), "host");
    QTEST(bench.keying(), "keying");
}

void KeyerPaddleTest::breakInEndsAPause() {
    KeyerBench bench;
    bench.open();
    bench.text("ET");
    bench.waitUntil(30);
    bench.send({0x06, 1});
    bench.waitUntil(1000);
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    bench.text("T");
    bench.forget();
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes(), u"C4 54 C0"_s);
}

void KeyerPaddleTest::textDuringBreakInIsDiscarded() {
    KeyerBench bench;
    bench.open();
    bench.paddle(true, false);
    bench.paddle(false, false);
    bench.text("TEST\x1C\x0A");
    bench.send({0x16, 3, 9});
    bench.waitUntil(539);
    bench.text("T");
    bench.waitUntil(541);
    bench.text("E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"60 490.167 60"_s);
    QCOMPARE(bench.bytes(), u"C6 C4 C0 C4 45 C0"_s);
}

void KeyerPaddleTest::immediateCommandsWorkDuringBreakIn() {
    KeyerBench bench;
    bench.open();
    bench.paddle(true, false);
    bench.waitUntil(90);
    bench.send({0x02, 40, 0x15});
    bench.waitUntil(125);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"60 60 30"_s);
    QCOMPARE(bench.bytes(), u"C6 C6 C4 C0"_s);
}

void KeyerPaddleTest::lettersAndWordsAreEchoed() {
    KeyerBench bench;
    bench.open();
    bench.send({0x0E, 0x40});
    bench.paddle(true, false);
    bench.waitUntil(110);
    bench.paddle(false, true);
    bench.waitUntil(200);
    bench.paddle(false, false);
    bench.waitUntil(300 + 125);
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"60 60 180 125 60"_s);
    QCOMPARE(bench.host(), u"0 C6, 420 41, 605 45, 905 20, 965 C4, 965 C0"_s);
}

void KeyerPaddleTest::elementsThatMakeNoCharacterAreNotEchoed() {
    KeyerBench bench;
    bench.open();
    bench.send({0x0E, 0x40});
    bench.paddle(true, false);
    bench.waitUntil(1000);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes(), u"C6 20 C4 C0"_s);
}

void KeyerPaddleTest::hangTimeFollowsThePinConfiguration_data() {
    QTest::addColumn<QByteArray>("set");
    QTest::addColumn<QString>("ptt");
    QTest::newRow("word space and one dit") << "\x09\x07"_ba << u"0 on, 540 off"_s;
    QTest::newRow("word space and two dits") << "\x09\x17"_ba << u"0 on, 600 off"_s;
    QTest::newRow("word space and four dits") << "\x09\x27"_ba << u"0 on, 720 off"_s;
    QTest::newRow("word space and eight dits") << "\x09\x37"_ba << u"0 on, 960 off"_s;
    QTest::newRow("contest word space and one dit") << "\x0E\x01"_ba << u"0 on, 480 off"_s;
}

void KeyerPaddleTest::hangTimeFollowsThePinConfiguration() {
    QFETCH(QByteArray, set);
    KeyerBench bench;
    bench.open();
    bench.text(set.toStdString());
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QTEST(bench.log(u"ptt"_s), "ptt");
}

void KeyerPaddleTest::leadInComesBeforeThePaddle() {
    KeyerBench bench;
    bench.open();
    bench.send({0x04, 10, 0});
    bench.paddle(false, true);
    bench.wait(5);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.log(u"ptt"_s), u"-100 on, 660 off"_s);
    QCOMPARE(bench.host(), u"0 C6, 660 C4, 660 C0"_s);
    QCOMPARE(bench.keying(), u"180"_s);
}

void KeyerPaddleTest::firstExtensionGoesToTheFirstElement() {
    QCOMPARE(keyed("\x10\x1E"_ba, {{0, true, false}, {160, false, false}}), u"90 60 60"_s);
}

void KeyerPaddleTest::autospaceMakesLetterSpaces_data() {
    QTest::addColumn<QByteArray>("set");
    QTest::addColumn<double>("again");
    QTest::addColumn<QString>("keying");
    QTest::addColumn<QString>("echoes");
    QTest::newRow("off: a touch keys at once")
        << "\x0E\x40"_ba << 130.0 << u"60 70 60"_s << u"C6 49 20 C4 C0"_s;
    QTest::newRow("on: a touch after one dit waits for the letter space")
        << "\x0E\x42"_ba << 130.0 << u"60 180 60"_s << u"C6 45 45 20 C4 C0"_s;
    QTest::newRow("on: a touch within one dit is the same letter")
        << "\x0E\x42"_ba << 110.0 << u"60 60 60"_s << u"C6 49 20 C4 C0"_s;
    QTest::newRow("on: a touch after the letter space keys at once")
        << "\x0E\x42"_ba << 250.0 << u"60 190 60"_s << u"C6 45 45 20 C4 C0"_s;
}

void KeyerPaddleTest::autospaceMakesLetterSpaces() {
    QFETCH(QByteArray, set);
    QFETCH(double, again);
    KeyerBench bench;
    bench.open();
    bench.text(set.toStdString());
    bench.paddle(true, false);
    bench.paddle(false, false);
    bench.waitUntil(again);
    bench.paddle(true, false);
    bench.waitUntil(again + 5);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QTEST(bench.keying(), "keying");
    QTEST(bench.bytes(), "echoes");
}

void KeyerPaddleTest::watchdogStopsAStuckPaddle() {
    KeyerBench bench;
    bench.open();
    bench.paddle(true, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.log(u"key down"_s).count(u',') + 1, 128);
    QCOMPARE(bench.bytes(), u"C6 C4 C0"_s);
    bench.forget();
    bench.send({0x0E, 0x00});
    bench.paddle(true, true);
    QVERIFY(bench.finish());
    QCOMPARE(bench.log({}), QString());
    bench.paddle(false, false);
    bench.paddle(false, true);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"180"_s);
}

void KeyerPaddleTest::watchdogCanBeTurnedOff() {
    KeyerBench bench;
    bench.open();
    bench.send({0x0E, 0x80});
    bench.paddle(false, true);
    bench.wait(240.0 * 300 - 1);
    QCOMPARE(bench.log(u"key down"_s).count(u',') + 1, 300);
}

void KeyerPaddleTest::pressedPaddleSurvivesAClose() {
    KeyerBench bench;
    bench.open();
    bench.paddle(false, true);
    bench.waitUntil(50);
    bench.send({0x00, 3});
    bench.waitUntil(60);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"50 0 180"_s);
    QCOMPARE(bench.bytes(), u"C6"_s);
}

void KeyerPaddleTest::swapTakesEffectAtOnce() {
    KeyerBench bench;
    bench.open();
    bench.paddle(true, false);
    bench.waitUntil(70);
    bench.send({0x0E, 0x08});
    bench.waitUntil(200);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"60 60 180"_s);
}

static const RegisteredTest<KeyerPaddleTest> registered;
#include "KeyerPaddleTest.moc"
