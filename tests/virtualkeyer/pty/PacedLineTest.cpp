#include "virtualkeyer/pty/PacedLine.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <array>
#include <vector>

using namespace std::chrono_literals;
using virtualkeyer::PacedLine;
using virtualkeyer::Time;

namespace {

/// Takes everything, in steps of the line's own completion times.
std::vector<std::int64_t> completionsOf(PacedLine& line) {
    std::vector<std::int64_t> times;
    while (const auto due = line.nextCompletion()) {
        const auto byte = line.take(*due);
        if (!byte) {
            return {};
        }
        times.push_back(byte->completeAt.count());
    }
    return times;
}

} // namespace

class PacedLineTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aLoneByteTakesElevenBits();
    void aByteIsNotTakenEarlyByANanosecond();
    void aBurstOf256BytesTakes2Point35Seconds();
    void roundingDoesNotAddUpOverARun();
    void aByteAfterAGapStartsWhenItIsHandedOver();
    void aByteHandedOverDuringAnotherFollowsItWithoutAGap();
    void aByteHandedOverAsTheLastOneEndsFollowsWithoutAGap();
    void bytesKeepTheirOrder();
    void aNewRateHoldsFromTheNextByteOn();
    void aNewRateHoldsForABurstThatStartsAtThatMoment();
    void aRateSetWhileTheLineIsIdleHoldsForTheNextBurst();
    void theWayBackToTheSlowRateWorksToo();
    void anIdleLineHasNothingDue();
};

void PacedLineTest::aLoneByteTakesElevenBits() {
    PacedLine line(1200);
    line.put(0x55, 5ms);
    QCOMPARE(line.nextCompletion().value().count(), 5'000'000 + 9'166'667);
    PacedLine fast(9600);
    fast.put(0x55, 0ns);
    QCOMPARE(fast.nextCompletion().value().count(), 1'145'834);
}

void PacedLineTest::aByteIsNotTakenEarlyByANanosecond() {
    PacedLine line(1200);
    line.put(0x55, 0ns);
    QVERIFY(!line.take(9'166'666ns));
    QCOMPARE(line.waiting(), 1U);
    QCOMPARE(int{line.take(9'166'667ns).value().value}, 0x55);
    QCOMPARE(line.waiting(), 0U);
}

void PacedLineTest::aBurstOf256BytesTakes2Point35Seconds() {
    PacedLine line(1200);
    for (int i = 0; i < 256; ++i) {
        line.put(static_cast<std::uint8_t>(i), 1s);
    }
    const auto times = completionsOf(line);
    QCOMPARE(times.size(), 256U);
    QCOMPARE(times.back(), 1'000'000'000 + 2'346'666'667);
}

void PacedLineTest::roundingDoesNotAddUpOverARun() {
    PacedLine line(1200);
    for (int i = 0; i < 6; ++i) {
        line.put(0, 0ns);
    }
    const std::vector<std::int64_t> expected{9'166'667,  18'333'334, 27'500'000,
                                             36'666'667, 45'833'334, 55'000'000};
    QCOMPARE(completionsOf(line), expected);
}

void PacedLineTest::aByteAfterAGapStartsWhenItIsHandedOver() {
    PacedLine line(1200);
    line.put(1, 0ns);
    QVERIFY(line.take(1s));
    line.put(2, 20ms);
    QCOMPARE(line.nextCompletion().value().count(), 29'166'667);
}

void PacedLineTest::aByteHandedOverDuringAnotherFollowsItWithoutAGap() {
    PacedLine line(1200);
    line.put(1, 0ns);
    line.put(2, 9ms);
    const std::vector<std::int64_t> expected{9'166'667, 18'333'334};
    QCOMPARE(completionsOf(line), expected);
}

void PacedLineTest::aByteHandedOverAsTheLastOneEndsFollowsWithoutAGap() {
    PacedLine line(1200);
    line.put(1, 0ns);
    QVERIFY(line.take(9'166'667ns));
    line.put(2, 9'166'667ns);
    QCOMPARE(line.nextCompletion().value().count(), 18'333'334);
}

void PacedLineTest::bytesKeepTheirOrder() {
    PacedLine line(1200);
    for (const std::uint8_t byte : std::array<std::uint8_t, 3>{3, 1, 2}) {
        line.put(byte, 0ns);
    }
    std::vector<int> values;
    while (const auto byte = line.take(1s)) {
        values.push_back(byte->value);
    }
    QCOMPARE(values, (std::vector<int>{3, 1, 2}));
}

void PacedLineTest::aNewRateHoldsFromTheNextByteOn() {
    PacedLine line(1200);
    line.put(1, 0ns);
    line.put(2, 0ns);
    line.put(3, 0ns);
    line.setBaud(9600, 1ms);
    const std::vector<std::int64_t> expected{9'166'667, 9'166'667 + 1'145'834,
                                             9'166'667 + 2'291'667};
    QCOMPARE(completionsOf(line), expected);
}

void PacedLineTest::aNewRateHoldsForABurstThatStartsAtThatMoment() {
    PacedLine line(1200);
    line.put(1, 0ns);
    line.put(2, 0ns);
    const auto first = line.take(1s);
    line.setBaud(9600, first.value().completeAt);
    QCOMPARE(line.nextCompletion().value().count(), 9'166'667 + 1'145'834);
}

void PacedLineTest::aRateSetWhileTheLineIsIdleHoldsForTheNextBurst() {
    PacedLine line(1200);
    line.put(1, 0ns);
    QVERIFY(line.take(1s));
    line.setBaud(9600, 2s);
    line.put(2, 3s);
    QCOMPARE(line.nextCompletion().value().count(), 3'001'145'834);
}

void PacedLineTest::theWayBackToTheSlowRateWorksToo() {
    PacedLine line(9600);
    line.put(1, 0ns);
    QVERIFY(line.take(1s));
    line.setBaud(1200, 1s);
    line.put(2, 1s);
    QCOMPARE(line.nextCompletion().value().count(), 1'009'166'667);
}

void PacedLineTest::anIdleLineHasNothingDue() {
    PacedLine line(1200);
    QVERIFY(!line.nextCompletion());
    QVERIFY(!line.take(1h));
    line.put(1, 2h);
    QVERIFY(line.take(3h));
    QVERIFY(!line.nextCompletion());
}

static const RegisteredTest<PacedLineTest> registered;
#include "PacedLineTest.moc"
