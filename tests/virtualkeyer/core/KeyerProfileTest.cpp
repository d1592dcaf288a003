#include "tests/support/RegisteredTest.h"
#include "tests/virtualkeyer/core/KeyerBench.h"

#include <QtTest>

#include <functional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;

namespace {

Profile with(const std::function<void(Profile&)>& change) {
    Profile profile;
    change(profile);
    return profile;
}

/// What a keyer of this profile tells about `text` that comes at once.
QString hostLog(const Profile& profile, std::string_view text) {
    KeyerBench bench(profile);
    bench.open();
    bench.text(text);
    return bench.finish() ? bench.host() : u"does not end"_s;
}

} // namespace

/// Every way in which keyers differ.
class KeyerProfileTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void firmwareIsTheAnswerToOpen();
    void potStandsWhereToldAtPowerUp();
    void bufferMayBeOfAnotherSize();
    void echoMayComeAfterTheLetterSpace();
    void typedTextThenIdlesAroundEveryCharacter();
    void mergedLettersEchoAfterTheirOwnElementsAllTheSame();
    void idleMayBeReportedWithTheEcho();
    void idleMayGoBeforeTheEcho();
    void halfSpaceMayBeEchoed();
    void echoMayBeMissing();
    void unknownCharactersMayBeKeyedAsQuestionMarks();
    void statusMayFollowTheVersion();
    void xoffMayComeEarlyAndRepeatedly();
    void clearMayDropTheKey();
    void bootLoaderSwallowsWhatComesFirst();
    void portOpeningLeavesOthersAlone();
    void firstCommandMayWaitForABeep();
    void memoryLoadMayBeThrownAway();
    void breakInMayBeASingleByte();
    void breakInMayBeReportedLate();
    void lateBreakInIsReportedAtItsEndAtTheLatest();
    void breakInEchoesALetterThatWaitedForItsSpace();
    void resumeMayRepeatTheLetter();
};

void KeyerProfileTest::firmwareIsTheAnswerToOpen() {
    for (const std::uint8_t firmware : std::initializer_list<std::uint8_t>{20, 21, 22, 23}) {
        KeyerBench bench(with([&](Profile& profile) { profile.firmware = firmware; }));
        bench.send({0x00, 2});
        QCOMPARE(bench.bytes(), QString::number(firmware, 16));
    }
}

void KeyerProfileTest::potStandsWhereToldAtPowerUp() {
    KeyerBench bench(with([](Profile& profile) { profile.potWpm = 17; }));
    QCOMPARE(bench.keyer.registers().wpm(), 17);
}

void KeyerProfileTest::bufferMayBeOfAnotherSize() {
    KeyerBench bench(with([](Profile& profile) { profile.bufferSize = 30; }));
    bench.open();
    bench.text(std::string(20, 'E'));
    QCOMPARE(bench.bytes(), QString());
    bench.text(std::string(20, 'E'));
    QCOMPARE(bench.bytes(), u"C1"_s);
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes().count(u"45"_s), 30);
}

void KeyerProfileTest::echoMayComeAfterTheLetterSpace() {
    const auto profile = with([](Profile& p) { p.echoTime = EchoTime::AfterLetterSpace; });
    QCOMPARE(hostLog(profile, "EE "), u"0 C4, 240 45, 480 45, 720 20, 720 C0"_s);
}

void KeyerProfileTest::typedTextThenIdlesAroundEveryCharacter() {
    KeyerBench bench(with([](Profile& p) { p.echoTime = EchoTime::AfterLetterSpace; }));
    bench.open();
    bench.text("E");
    bench.waitUntil(240);
    bench.text("E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes(), u"C4 45 C0 C4 45 C0"_s);
}

void KeyerProfileTest::mergedLettersEchoAfterTheirOwnElementsAllTheSame() {
    const auto profile = with([](Profile& p) { p.echoTime = EchoTime::AfterLetterSpace; });
    QCOMPARE(hostLog(profile, "\x1B"
                              "EE"),
             u"0 C4, 120 45, 360 45, 360 C0"_s);
}

void KeyerProfileTest::idleMayBeReportedWithTheEcho() {
    const auto profile = with([](Profile& p) { p.idleTime = IdleTime::WithEcho; });
    QCOMPARE(hostLog(profile, "EE"), u"0 C4, 120 45, 360 45, 360 C0"_s);
    KeyerBench bench(profile);
    bench.open();
    bench.text("E");
    bench.waitUntil(130);
    bench.text("E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 120 45, 120 C0, 240 C4, 360 45, 360 C0"_s);
}

void KeyerProfileTest::idleMayGoBeforeTheEcho() {
    auto profile = with([](Profile& p) { p.endOrder = EndOrder::IdleThenEcho; });
    QCOMPARE(hostLog(profile, "E E "), u"0 C4, 120 45, 480 20, 600 45, 960 C0, 960 20"_s);
    profile.idleTime = IdleTime::WithEcho;
    QCOMPARE(hostLog(profile, "EE"), u"0 C4, 120 45, 360 C0, 360 45"_s);
    profile.echoTime = EchoTime::AfterLetterSpace;
    QCOMPARE(hostLog(profile, "EE"), u"0 C4, 240 45, 480 C0, 480 45"_s);
}

void KeyerProfileTest::echoMayBeMissing() {
    KeyerBench bench(with([](Profile& p) { p.echoesText = false; }));
    bench.open();
    bench.send({0x0E, 0x44});
    bench.text("ET ");
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"60 180 180"_s);
    QCOMPARE(bench.bytes(), u"C4 C0"_s);
    bench.forget();
    bench.send({0x00, 4, 0x55});
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes(), u"55 C6 45 20 C4 C0"_s);
}

void KeyerProfileTest::halfSpaceMayBeEchoed() {
    const auto profile = with([](Profile& p) { p.echoesHalfSpace = true; });
    QCOMPARE(hostLog(profile, "E|E"), u"0 C4, 120 45, 270 7C, 390 45, 510 C0"_s);
}

void KeyerProfileTest::unknownCharactersMayBeKeyedAsQuestionMarks() {
    const auto profile =
        with([](Profile& p) { p.unknownCharacter = UnknownCharacter::QuestionMark; });
    QCOMPARE(hostLog(profile, "#"), u"0 C4, 960 3F, 1080 C0"_s);
}

void KeyerProfileTest::statusMayFollowTheVersion() {
    KeyerBench bench(with([](Profile& p) { p.reportsStatusAfterOpen = true; }));
    bench.send({0x00, 2});
    QCOMPARE(bench.bytes(), u"17 C0"_s);
}

void KeyerProfileTest::xoffMayComeEarlyAndRepeatedly() {
    KeyerBench bench(with([](Profile& p) { p.xoffRule = XoffRule::TwentyOneRepeated; }));
    bench.open();
    bench.text("E");
    bench.waitUntil(10);
    bench.text(std::string(20, 'E'));
    QCOMPARE(bench.bytes(), u"C4"_s);
    bench.text("EEE");
    QCOMPARE(bench.bytes(), u"C4 C5 C5 C5"_s);
    bench.forget();
    bench.text(std::string(110, 'E'));
    QCOMPARE(bench.events().size(), 105U);
    bench.forget();
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes().count(u"C4"_s), 1);
}

void KeyerProfileTest::clearMayDropTheKey() {
    KeyerBench bench(with([](Profile& p) { p.clearInLetter = ClearInLetter::DropsKey; }));
    bench.open();
    bench.text("TT");
    bench.waitUntil(50);
    bench.send({0x0A});
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"50"_s);
    QCOMPARE(bench.host(), u"0 C4, 50 C0"_s);
    QCOMPARE(bench.log(u"ptt"_s), u"0 on, 230 off"_s);
}

void KeyerProfileTest::bootLoaderSwallowsWhatComesFirst() {
    KeyerBench bench(with([](Profile& p) { p.bootLoaderTime = 1300ms; }));
    bench.open();
    bench.keyer.portOpened(bench.now);
    bench.send({0x00, 2, 0x00});
    bench.wait(1299);
    bench.send({0x00});
    QCOMPARE(bench.log({}), QString());
    bench.wait(1);
    // The 00 of a moment ago was lost, so this is no open command.
    bench.send({2, 'E'});
    QVERIFY(bench.finish());
    QCOMPARE(bench.log({}), QString());
    bench.send({0x00, 2});
    QCOMPARE(bench.bytes(), u"17"_s);
}

void KeyerProfileTest::portOpeningLeavesOthersAlone() {
    KeyerBench bench;
    bench.open();
    bench.keyer.portOpened(bench.now);
    bench.text("E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes(), u"C4 45 C0"_s);
}

void KeyerProfileTest::firstCommandMayWaitForABeep() {
    KeyerBench bench(with([](Profile& p) { p.firstCommandBeep = 500ms; }));
    bench.send({0x00});
    bench.wait(10);
    bench.send({2});
    bench.wait(489);
    QCOMPARE(bench.bytes(), QString());
    bench.wait(1);
    QCOMPARE(bench.host(), u"500 17"_s);
    QCOMPARE(bench.log(u"tone"_s), u"0 800, 500 off"_s);
    bench.send({0x00, 4, 0x55});
    QCOMPARE(bench.bytes(), u"17 55"_s);
    bench.send({0x00, 1, 0x00, 4, 0x55});
    QCOMPARE(bench.bytes(), u"17 55"_s);
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"500 17, 500 55, 1000 55"_s);
}

void KeyerProfileTest::memoryLoadMayBeThrownAway() {
    KeyerBench bench(with([](Profile& p) { p.memoryLoad = MemoryLoad::ThrownAway; }));
    bench.send({0x00, 13});
    for (int i = 0; i < 256; ++i) {
        bench.send({0x55});
    }
    bench.send({0x00, 12});
    QVERIFY(bench.bytes().startsWith(u"A5 00 00 05"_s));
    QCOMPARE(bench.events().size(), 256U);
}

void KeyerProfileTest::breakInMayBeASingleByte() {
    KeyerBench bench(with([](Profile& p) { p.breakInReport = BreakInReport::Single; }));
    bench.open();
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C2, 0 C6, 540 C0"_s);
    bench.forget();
    bench.text("T");
    bench.waitUntil(50);
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 240 C2, 240 C6, 240 54, 780 C0"_s);
}

void KeyerProfileTest::breakInMayBeReportedLate() {
    KeyerBench bench(with([](Profile& p) { p.breakInDelay = 160ms; }));
    bench.open();
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"160 C6, 540 C4, 540 C0"_s);
    bench.forget();
    bench.text("TE");
    bench.waitUntil(50);
    bench.paddle(true, false);
    bench.paddle(false, false);
    bench.waitUntil(350);
    bench.text("E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 240 C0, 240 54, 400 C6, 780 C4, 780 C0"_s);
    QCOMPARE(bench.keying(), u"180 60 60"_s);
}

void KeyerProfileTest::lateBreakInIsReportedAtItsEndAtTheLatest() {
    KeyerBench bench(with([](Profile& p) { p.breakInDelay = 160ms; }));
    bench.open();
    bench.send({0x02, 99});
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes(), u"C6 C4 C0"_s);
    QVERIFY(!bench.keyer.nextEvent());
    bench.forget();
    bench.text("E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes(), u"C4 45 C0"_s);
}

void KeyerProfileTest::breakInEchoesALetterThatWaitedForItsSpace() {
    KeyerBench bench(with([](Profile& p) { p.echoTime = EchoTime::AfterLetterSpace; }));
    bench.open();
    bench.text("EE");
    bench.waitUntil(150);
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 150 C6, 150 45, 690 C4, 690 C0"_s);
}

void KeyerProfileTest::resumeMayRepeatTheLetter() {
    KeyerBench bench(
        with([](Profile& p) { p.resumeAfterPause = ResumeAfterPause::RepeatsLetter; }));
    bench.open();
    bench.text("ET");
    bench.waitUntil(30);
    bench.send({0x06, 1});
    bench.waitUntil(1000);
    bench.send({0x06, 0});
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 120 45, 1120 45, 1480 54, 1600 C0"_s);
}

static const RegisteredTest<KeyerProfileTest> registered;
#include "KeyerProfileTest.moc"
