#include "tests/support/RegisteredTest.h"
#include "tests/virtualkeyer/core/KeyerBench.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;

namespace {

/// A version 2 keyer but for one field, opened with reports of the push-buttons.
struct OpenKeyer : KeyerBench {
    template <typename Value>
    OpenKeyer(Value Profile::*field, Value value) : KeyerBench(with(field, value)) {
        open();
        send({0x00, 11});
        forget();
    }

  private:
    template <typename Value>
    static Profile with(Value Profile::*field, Value value) {
        Profile profile;
        profile.*field = value;
        return profile;
    }
};

} // namespace

/// What boards do that are no keyer of the second version in everything.
class KeyerTraitsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void textMayBeKeptThroughABreakIn();
    void keptTextGoesWithAClear();
    void keptTextHasNoSecondHalfOfAMerge();
    void cutLetterMayBeEchoedBeforeTheBreakIn();
    void speedMayStayWhenGivenBack();
    void knobMayBeReportedOnly();
    void xoffMayBeBare();
    void buttonsMayBeReportedAtRelease();
    void buttonMayBreakIn();
    void buttonOutsideTextBreaksInNowhere();
    void tuneMayYield_data();
    void tuneMayYield();
    void tuneMayBeSwallowedInText();
    void silenceMayFollowOpen();
    void textMayBeSwallowedBehindAClear();
    void resetLosesTheHost();
    void resetIsFollowedByTheBootLoader();
};

void KeyerTraitsTest::textMayBeKeptThroughABreakIn() {
    OpenKeyer bench(&Profile::textAtBreakIn, TextAtBreakIn::Kept);
    bench.text("TTE");
    bench.waitUntil(90);
    bench.paddle(true, false);
    bench.paddle(false, false);
    bench.wait(400);
    bench.text("A");
    QVERIFY(bench.finish());
    // The first letter as long as its element, the paddle's dit, and what waited or came.
    QCOMPARE(bench.keying(), u"180 60 60 489.167 180 180 60 180 60 60 180"_s);
    QCOMPARE(bench.bytes(), u"C4 C6 54 C4 C0 C4 54 45 41 C0"_s);
}

void KeyerTraitsTest::keptTextGoesWithAClear() {
    OpenKeyer bench(&Profile::textAtBreakIn, TextAtBreakIn::Kept);
    bench.text("TTE");
    bench.waitUntil(90);
    bench.paddle(true, false);
    bench.paddle(false, false);
    bench.wait(200);
    bench.send({0x0A});
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"180 60 60"_s);
}

void KeyerTraitsTest::keptTextHasNoSecondHalfOfAMerge() {
    OpenKeyer bench(&Profile::textAtBreakIn, TextAtBreakIn::Kept);
    bench.text("\x1BTTE");
    bench.waitUntil(90);
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"180 60 60 489.167 60"_s);
}

void KeyerTraitsTest::cutLetterMayBeEchoedBeforeTheBreakIn() {
    OpenKeyer bench(&Profile::cutLetterEcho, CutLetterEcho::BeforeBreakIn);
    bench.text("TE");
    bench.waitUntil(90);
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes(), u"C4 54 C6 C4 C0"_s);
}

void KeyerTraitsTest::speedMayStayWhenGivenBack() {
    OpenKeyer bench(&Profile::speedGivenBack, SpeedGivenBack::Nowhere);
    bench.send({0x02, 30, 0x02, 0});
    QCOMPARE(bench.keyer.registers().wpm(), 30);
    bench.send({0x1D, 10});
    QVERIFY(bench.finish());
    bench.send({0x02, 0});
    QCOMPARE(bench.keyer.registers().wpm(), 200);
    bench.send({0x02, 25});
    QCOMPARE(bench.keyer.registers().wpm(), 25);
}

void KeyerTraitsTest::knobMayBeReportedOnly() {
    OpenKeyer bench(&Profile::knobInHostMode, KnobInHostMode::Reported);
    bench.send({0x02, 0});
    bench.keyer.setPot(24, bench.now);
    bench.send({});
    QCOMPARE(bench.bytes(), u"8E"_s);
    QCOMPARE(bench.keyer.registers().wpm(), 20);
    bench.send({0x00, 3});
    QCOMPARE(bench.keyer.registers().wpm(), 24);
    bench.keyer.setPot(18, bench.now);
    QCOMPARE(bench.keyer.registers().wpm(), 18);
}

void KeyerTraitsTest::xoffMayBeBare() {
    OpenKeyer bench(&Profile::xoffStatus, XoffStatus::Bare);
    bench.text("E");
    bench.waitUntil(10);
    bench.text(std::string(86, 'E'));
    QCOMPARE(bench.bytes(), u"C4 C1"_s);
    bench.wait(400);
    QCOMPARE(bench.bytes(), u"C4 C1 45 C4 45"_s);
}

void KeyerTraitsTest::buttonsMayBeReportedAtRelease() {
    OpenKeyer bench(&Profile::buttonReport, ButtonReport::AtRelease);
    bench.keyer.setPushButtons(1, 1s);
    bench.keyer.setPushButtons(3, 2s);
    bench.keyer.setPushButtons(2, 3s);
    bench.send({});
    QCOMPARE(bench.bytes(), QString());
    bench.keyer.setPushButtons(0, 4s);
    bench.send({});
    QCOMPARE(bench.bytes(), u"CB C8"_s);
}

void KeyerTraitsTest::buttonMayBreakIn() {
    OpenKeyer bench(&Profile::buttonInText, ButtonInText::BreaksIn);
    bench.text("TE");
    bench.waitUntil(90);
    bench.keyer.setPushButtons(1, bench.now);
    bench.wait(50);
    bench.keyer.setPushButtons(0, bench.now);
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"180"_s);
    QCOMPARE(bench.bytes(), u"C4 C6 C0 54"_s);
}

void KeyerTraitsTest::buttonOutsideTextBreaksInNowhere() {
    OpenKeyer bench(&Profile::buttonInText, ButtonInText::BreaksIn);
    bench.keyer.setPushButtons(1, 1s);
    bench.keyer.setPushButtons(0, 2s);
    bench.send({});
    QCOMPARE(bench.bytes(), u"C9 C8"_s);
}

void KeyerTraitsTest::tuneMayYield_data() {
    QTest::addColumn<QByteArray>("cause");
    QTest::addColumn<QString>("bytes");

    QTest::newRow("to the paddle") << QByteArray() << u"D0 D4 C6 C4 C0"_s;
    QTest::newRow("to a letter") << "E"_ba << u"D0 D4 C4 45 C0"_s;
    QTest::newRow("to a message") << "\0\x0E\x01"_ba << u"D0 D4 C4 C0"_s;
}

void KeyerTraitsTest::tuneMayYield() {
    QFETCH(QByteArray, cause);
    OpenKeyer bench(&Profile::tuneEnd, TuneEnd::ByAnyKeying);
    // A memory of factory settings whose first message is an E.
    bench.send({0x00, 13});
    auto image = bench.keyer.memory().image();
    image[17] = 25;
    image[18] = 24;
    image[24] = 0x82;
    for (const auto byte : image) {
        bench.send({byte});
    }
    bench.send({0x0B, 1});
    bench.waitUntil(1000);
    if (cause.isEmpty()) {
        bench.paddle(true, false);
        bench.paddle(false, false);
    }
    for (const char byte : cause) {
        bench.send({byte});
    }
    QVERIFY(bench.finish());
    bench.send({0x0B, 0});
    QVERIFY(bench.keying().startsWith(u"1000 "_s));
    QVERIFY(bench.keying().endsWith(u" 60"_s));
    QTEST(bench.bytes(), "bytes");
}

void KeyerTraitsTest::tuneMayBeSwallowedInText() {
    OpenKeyer bench(&Profile::tuneInText, TuneInText::Swallowed);
    bench.text("T");
    bench.waitUntil(90);
    bench.send({0x0B, 1});
    QVERIFY(bench.finish());
    bench.send({0x0B, 0});
    QCOMPARE(bench.keying(), u"180"_s);
    QCOMPARE(bench.bytes(), u"C4 54 C0"_s);
    bench.forget();
    bench.send({0x0B, 1});
    bench.waitUntil(500);
    bench.send({0x0B, 0});
    QCOMPARE(bench.keying(), u"500"_s);
}

void KeyerTraitsTest::silenceMayFollowOpen() {
    Profile profile;
    profile.silenceAfterOpen = 440ms;
    KeyerBench bench(profile);
    bench.send({0x00, 2, 0x00, 4, 0x55, 0x07});
    QCOMPARE(bench.bytes(), u"17"_s);
    bench.wait(439);
    QCOMPARE(bench.bytes(), u"17"_s);
    bench.wait(1);
    QCOMPARE(bench.host(), u"0 17, 440 55, 440 8A"_s);
}

void KeyerTraitsTest::textMayBeSwallowedBehindAClear() {
    OpenKeyer bench(&Profile::deafAfterClear, Time{100ms});
    bench.text("E");
    bench.waitUntil(10);
    bench.send({0x0A});
    bench.wait(99);
    bench.text("T");
    bench.send({0x02, 30});
    bench.wait(1);
    bench.text("A");
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes(), u"C4 C0 45 C4 41 C0"_s);
    QCOMPARE(bench.keyer.registers().wpm(), 30);
}

void KeyerTraitsTest::resetLosesTheHost() {
    KeyerBench bench;
    bench.open();
    bench.text("T");
    bench.waitUntil(90);
    bench.keyer.reset(bench.now);
    bench.text("E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"90"_s);
    QCOMPARE(bench.bytes(), u"C4"_s);
    bench.forget();
    bench.send({0x00, 2});
    QCOMPARE(bench.bytes(), u"17"_s);
}

void KeyerTraitsTest::resetIsFollowedByTheBootLoader() {
    Profile profile;
    profile.bootLoaderTime = 1300ms;
    KeyerBench bench(profile);
    bench.open();
    bench.keyer.reset(1s);
    bench.now = 2299ms;
    bench.send({0x00, 2});
    QCOMPARE(bench.bytes(), QString());
    bench.now = 2300ms;
    bench.send({0x00, 2});
    QCOMPARE(bench.bytes(), u"17"_s);
}

static const RegisteredTest<KeyerTraitsTest> registered;
#include "KeyerTraitsTest.moc"
