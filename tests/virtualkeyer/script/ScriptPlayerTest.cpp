#include "tests/support/RegisteredTest.h"
#include "tests/virtualkeyer/script/ScriptBench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;

namespace {

const QString openAt20 = u"send 00 02 0E 04 02 14\n"_s;

} // namespace

class ScriptPlayerTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aStepIsDoneAtItsVeryTimeHoweverLateThatIsNoticed();
    void stepsWithoutATimeFollowTheOneBefore();
    void aHostsTextIsKeyedAsExpected();
    void eachQuestionAsksForWhatCameSinceTheLast();
    void whatIsNotKeyedDisappoints();
    void anExpectationIsMetAsSoonAsItHolds();
    void anExpectationHasOnlyItsTime();
    void knobAndButtonsReachTheHost();
    void theLinesOfTransmitterAndKeyAreSeen();
    void aPulledKeyerForgetsItsHost();
    void aPulledKeyerKeysNothing();
    void aHeldPaddleKeysWhenThePlugIsBack();
    void theProfileChangesWhileItRuns();
    void anUnknownProfileIsRefused();
    void aStoredMessageIsKeyed();
    void itSaysWhatIsLeftToDo();
};

void ScriptPlayerTest::aStepIsDoneAtItsVeryTimeHoweverLateThatIsNoticed() {
    ScriptPlayer script({}, {});
    QVERIFY(script.add({Time{2500ms}, Time{0}, MovePaddle{true, {}}}, 1));
    QVERIFY(script.add({Time{2530ms}, Time{0}, MovePaddle{false, {}}}, 2));
    ScriptBench bench;
    bench.keyer.advance(2s);
    QCOMPARE(script.nextWish().value().count(), Time{2500ms}.count());
    script.work(bench.keyer, false, 2499ms);
    QVERIFY(bench.edges().empty());
    script.work(bench.keyer, false, 2900ms);
    bench.keyer.advance(2900ms);
    const std::vector<std::int64_t> expected{Time{2500ms}.count(), Time{2560ms}.count()};
    QCOMPARE(bench.edges(), expected);
}

void ScriptPlayerTest::stepsWithoutATimeFollowTheOneBefore() {
    ScriptBench bench;
    bench.run(u"at 1 paddle dah down\n"
              "after 0.02 paddle dah up\n"
              "paddle dit down\n"
              "after 0.3 paddle dit up\n"
              "at 1 # has passed\n"
              "expect key up\n"
              "after 1"_s);
    QVERIFY2(bench.disappointments.isEmpty(), qPrintable(bench.disappointments.join(u'\n')));
    const std::vector<std::int64_t> expected{1'000'000'000, 1'180'000'000, 1'240'000'000,
                                             1'300'000'000};
    QCOMPARE(bench.edges(), expected);
}

void ScriptPlayerTest::aHostsTextIsKeyedAsExpected() {
    ScriptBench bench;
    bench.run(openAt20 + u"after 0.2 expect reply 17\n"
                         "send \"CQ DE\"\n"
                         "within 10 expect keyed \"CQ DE\"\n"
                         "within 1 expect reply C4 43 51 20 44 45 C0"_s);
    QCOMPARE(bench.disappointments, QStringList());
}

void ScriptPlayerTest::eachQuestionAsksForWhatCameSinceTheLast() {
    ScriptBench bench;
    bench.run(openAt20 + u"send \"E\"\n"
                         "after 2 expect keyed \"E\"\n"
                         "expect keyed \"\"\n"
                         "send \"T\"\n"
                         "after 2 expect keyed \"T\""_s);
    QCOMPARE(bench.disappointments, QStringList());
}

void ScriptPlayerTest::whatIsNotKeyedDisappoints() {
    ScriptBench bench;
    bench.run(openAt20 + u"\n"
                         "send \"CX\"\n"
                         "after 5 expect keyed \"CQ\"\n"
                         "expect reply 17 C4\n"
                         "expect key down\n"
                         "expect ptt on"_s);
    QCOMPARE(bench.disappointments,
             (QStringList{u"4: keyed \"CQ\", not keyed \"CX\""_s,
                          u"5: reply 17 C4, not reply 17 C4 43 58 C0"_s,
                          u"6: key down, not key up"_s, u"7: ptt on, not ptt off"_s}));
}

void ScriptPlayerTest::anExpectationIsMetAsSoonAsItHolds() {
    ScriptBench bench;
    bench.run(u"at 1 paddle dit down\n"
              "within 5 expect key up\n"
              "paddle dit up\n"
              "at 1.005\n"
              "within 60 expect keyed \"E\"\n"
              "paddle dah down\n"
              "after 0.01 paddle dah up\n"
              "after 1"_s);
    QCOMPARE(bench.disappointments, QStringList());
    // The letter is read two dits after its end.
    QCOMPARE(bench.edges().size(), std::size_t{4});
    QVERIFY(bench.edges()[2] >= 1'180'000'000);
    QVERIFY(bench.edges()[2] < 1'200'000'000);
}

void ScriptPlayerTest::anExpectationHasOnlyItsTime() {
    ScriptBench bench;
    bench.run(u"at 1 paddle dah down\n"
              "within 0.179 expect key up\n"
              "within 0.01 expect key up\n"
              "paddle dah up"_s);
    // At first the key is up: it goes down at the moment of the touch.
    QCOMPARE(bench.disappointments, (QStringList{u"2: key up, not key down"_s}));
}

void ScriptPlayerTest::knobAndButtonsReachTheHost() {
    ScriptBench bench;
    bench.run(openAt20 + u"send 00 0B\n"
                         "after 1 expect reply 17 C8\n"
                         "knob 21\n"
                         "button 3\n"
                         "button 4 down\n"
                         "button 1 down\n"
                         "button 4 up\n"
                         "expect reply 8B CC C8 D8 D9 C9"_s);
    QCOMPARE(bench.disappointments, QStringList());
}

void ScriptPlayerTest::theLinesOfTransmitterAndKeyAreSeen() {
    ScriptBench bench;
    bench.run(openAt20 + u"send 04 0A 0A 0B 01\n"
                         "after 0.13 expect ptt on\n"
                         "expect key up\n"
                         "within 0.1 expect key down\n"
                         "send 0B 00\n"
                         "within 0.1 expect key up\n"
                         "expect ptt on\n"
                         "within 1 expect ptt off"_s);
    QCOMPARE(bench.disappointments, QStringList());
}

void ScriptPlayerTest::aPulledKeyerForgetsItsHost() {
    ScriptBench bench;
    bench.run(openAt20 + u"after 0.1 expect reply 17\n"
                         "send \"EEEEEE\"\n"
                         "after 0.3 pull\n"
                         "expect key up\n"
                         "after 0.5 plug\n"
                         "send \"TTT\"\n"
                         "after 3 expect keyed \"EE\"\n"
                         "send 00 02 \"T\"\n"
                         "after 3 expect keyed \"T\""_s);
    QCOMPARE(bench.disappointments, QStringList());
}

void ScriptPlayerTest::aPulledKeyerKeysNothing() {
    ScriptBench bench;
    bench.run(openAt20 + u"after 0.1 pull\n"
                         "paddle dit down\n"
                         "send 00 02 \"T\"\n"
                         "message 1\n"
                         "after 1 paddle dit up\n"
                         "after 1 plug\n"
                         "after 1 expect keyed \"\""_s);
    QCOMPARE(bench.disappointments, QStringList());
    QVERIFY(bench.edges().empty());
}

void ScriptPlayerTest::aHeldPaddleKeysWhenThePlugIsBack() {
    ScriptBench bench;
    bench.run(u"at 1 pull\n"
              "paddle dah down\n"
              "at 2 plug\n"
              "after 0.1 paddle dah up\n"
              "after 1 expect keyed \"T\""_s);
    QCOMPARE(bench.disappointments, QStringList());
    QCOMPARE(bench.edges().front(), Time{2s}.count());
}

void ScriptPlayerTest::theProfileChangesWhileItRuns() {
    ScriptBench bench;
    bench.run(openAt20 + u"after 0.1 expect reply 17\n"
                         "send \"E\"\n"
                         "after 1 expect reply C4 45 C0\n"
                         "profile mute\n"
                         "send \"E\"\n"
                         "after 1 expect reply C4 C0\n"
                         "profile any\n"
                         "send \"E\"\n"
                         "after 1 expect reply C4 45 C0"_s);
    QCOMPARE(bench.disappointments, QStringList());
}

void ScriptPlayerTest::anUnknownProfileIsRefused() {
    ScriptPlayer script([](std::string_view) { return std::nullopt; }, {});
    QVERIFY(!script.add({{}, Time{0}, ChangeProfile{u"none"_s}}, 1));
    QCOMPARE(script.nextLine(), std::nullopt);
}

void ScriptPlayerTest::aStoredMessageIsKeyed() {
    Memory::Image image = Memory().image();
    image[17] = 26;
    image[18] = 24;
    image[19] = 0x10; // none
    image[24] = 0x15; // C
    image[25] = 0x9B; // Q, the last
    ScriptBench bench;
    bench.keyer.send(0x00, Time{0});
    bench.keyer.send(13, Time{0});
    for (const std::uint8_t byte : image) {
        bench.keyer.send(byte, Time{0});
    }
    bench.run(u"at 4 message 1\n"
              "message 2\n"
              "after 4 expect keyed \"CQ\""_s);
    QCOMPARE(bench.disappointments, QStringList());
}

void ScriptPlayerTest::itSaysWhatIsLeftToDo() {
    ScriptBench bench;
    ScriptPlayer script({}, {});
    QVERIFY(script.add({Time{1s}, Time{0}, TurnKnob{20}}, 4));
    QVERIFY(!script.hasEnded());
    QCOMPARE(script.nextLine().value(), 4);
    script.work(bench.keyer, false, 1s);
    QCOMPARE(script.nextLine(), std::nullopt);
    QVERIFY(!script.hasEnded());
    script.close();
    QVERIFY(script.hasEnded());
}

static const RegisteredTest<ScriptPlayerTest> registered;
#include "ScriptPlayerTest.moc"
