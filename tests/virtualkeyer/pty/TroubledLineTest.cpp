#include "virtualkeyer/pty/TroubledLine.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <algorithm>
#include <bit>
#include <vector>

using namespace std::chrono_literals;
using virtualkeyer::PacedByte;
using virtualkeyer::Time;
using virtualkeyer::TroubledLine;
using virtualkeyer::Troubles;

namespace {

constexpr auto toKeyer = TroubledLine::Direction::ToKeyer;
constexpr auto toHost = TroubledLine::Direction::ToHost;

/// What becomes of these bytes, 10 ms apart.
std::vector<PacedByte> through(const Troubles& troubles, const std::vector<std::uint8_t>& bytes,
                               TroubledLine::Direction direction = toKeyer,
                               std::uint32_t seed = 1) {
    TroubledLine line(direction, seed);
    Time at{0};
    for (const std::uint8_t byte : bytes) {
        at += 10ms;
        line.put({byte, at}, troubles);
    }
    std::vector<PacedByte> arrived;
    while (const auto byte = line.take(1h)) {
        arrived.push_back(*byte);
    }
    return arrived;
}

std::vector<std::uint8_t> valuesOf(const std::vector<PacedByte>& bytes) {
    std::vector<std::uint8_t> values;
    for (const PacedByte& byte : bytes) {
        values.push_back(byte.value);
    }
    return values;
}

/// A thousand bytes, none like the one before it.
std::vector<std::uint8_t> many() {
    std::vector<std::uint8_t> bytes(1000);
    std::ranges::generate(bytes,
                          [next = 0U]() mutable { return static_cast<std::uint8_t>(next++); });
    return bytes;
}

} // namespace

class TroubledLineTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void withoutTroubleEveryByteArrivesWhenItIsComplete();
    void aByteIsNotThereBeforeItArrives();
    void aShareIsLost();
    void aShareIsDoubled();
    void aShareHasOneWrongBit();
    void allIsAShareToo();
    void bytesAreLateByChanceAndInOrder();
    void delayIsTheSameForEveryByte();
    void joinedBytesArriveTogetherAtTheHostAlone();
    void echoesAreLostAndNothingElse();
    void theSeedRepeatsTheRun();
    void aDelayThatEndsLeavesTheOrder();
    void whatIsUnderWayCanBeLost();
};

void TroubledLineTest::withoutTroubleEveryByteArrivesWhenItIsComplete() {
    QCOMPARE(through({}, {0x00, 0xFF}),
             (std::vector<PacedByte>{{0x00, Time{10ms}}, {0xFF, Time{20ms}}}));
}

void TroubledLineTest::aByteIsNotThereBeforeItArrives() {
    TroubledLine line(toKeyer, 1);
    line.put({'E', Time{10ms}}, {.delay = 50ms});
    QVERIFY(line.nextArrival() == Time{60ms});
    QVERIFY(!line.take(Time{60ms} - 1ns));
    QVERIFY(line.take(60ms) == (PacedByte{'E', Time{60ms}}));
    QVERIFY(!line.nextArrival());
}

void TroubledLineTest::aShareIsLost() {
    const auto arrived = valuesOf(through({.lost = 0.1}, many()));
    QVERIFY2(arrived.size() > 850 && arrived.size() < 950,
             qPrintable(QString::number(arrived.size())));
}

void TroubledLineTest::aShareIsDoubled() {
    auto arrived = valuesOf(through({.doubled = 0.1}, many()));
    QVERIFY2(arrived.size() > 1050 && arrived.size() < 1150,
             qPrintable(QString::number(arrived.size())));
    arrived.erase(std::unique(arrived.begin(), arrived.end()), arrived.end());
    QCOMPARE(arrived, many());
}

void TroubledLineTest::aShareHasOneWrongBit() {
    const auto sent = many();
    const auto arrived = valuesOf(through({.noise = 0.1}, sent));
    QCOMPARE(arrived.size(), sent.size());
    int wrong = 0;
    unsigned bits = 0;
    for (std::size_t i = 0; i < sent.size(); ++i) {
        const auto difference = static_cast<std::uint8_t>(sent[i] ^ arrived[i]);
        QVERIFY(std::popcount(difference) <= 1);
        wrong += difference != 0 ? 1 : 0;
        bits |= difference;
    }
    QVERIFY2(wrong > 50 && wrong < 150, qPrintable(QString::number(wrong)));
    QCOMPARE(bits, 0xFFU);
}

void TroubledLineTest::allIsAShareToo() {
    QCOMPARE(through({.lost = 1}, many()).size(), 0U);
    QCOMPARE(through({.doubled = 1}, many()).size(), 2000U);
}

void TroubledLineTest::bytesAreLateByChanceAndInOrder() {
    const auto sent = many();
    const auto arrived = through({.late = 300ms}, sent);
    QCOMPARE(valuesOf(arrived), sent);
    Time longest{0};
    for (std::size_t i = 0; i < arrived.size(); ++i) {
        const Time late = arrived[i].completeAt - (i + 1) * std::chrono::milliseconds{10};
        QVERIFY(late >= Time{0} && late < Time{300ms});
        QVERIFY(i == 0 || arrived[i].completeAt >= arrived[i - 1].completeAt);
        longest = std::max(longest, late);
    }
    QVERIFY(longest > Time{250ms});
}

void TroubledLineTest::delayIsTheSameForEveryByte() {
    QCOMPARE(through({.delay = 100ms}, {1, 2}),
             (std::vector<PacedByte>{{1, Time{110ms}}, {2, Time{120ms}}}));
}

void TroubledLineTest::joinedBytesArriveTogetherAtTheHostAlone() {
    const std::vector<PacedByte> joined{
        {'E', Time{16ms}}, {0xC0, Time{32ms}}, {0x8A, Time{32ms}}, {'T', Time{48ms}}};
    QCOMPARE(through({.joined = 16ms}, {'E', 0xC0, 0x8A, 'T'}, toHost), joined);
    QVERIFY(through({.joined = 16ms}, {'E'}, toKeyer).front().completeAt == Time{10ms});
}

void TroubledLineTest::echoesAreLostAndNothingElse() {
    const Troubles troubles{.losesEchoes = true};
    const std::vector<std::uint8_t> bytes{0x17, 0x20, 'E', 0x7F, 0x80, 0xC4};
    QCOMPARE(valuesOf(through(troubles, bytes, toHost)),
             (std::vector<std::uint8_t>{0x17, 0x80, 0xC4}));
    QCOMPARE(valuesOf(through(troubles, bytes, toKeyer)), bytes);
}

void TroubledLineTest::theSeedRepeatsTheRun() {
    const Troubles troubles{.lost = 0.2, .doubled = 0.2, .noise = 0.2, .late = 50ms};
    const auto first = through(troubles, many(), toHost, 7);
    QCOMPARE(through(troubles, many(), toHost, 7), first);
    QVERIFY(through(troubles, many(), toHost, 8) != first);
}

void TroubledLineTest::aDelayThatEndsLeavesTheOrder() {
    TroubledLine line(toKeyer, 1);
    line.put({1, Time{10ms}}, {.delay = 1s});
    line.put({2, Time{20ms}}, {});
    QVERIFY(line.take(2s) == (PacedByte{1, Time{1010ms}}));
    QVERIFY(line.take(2s) == (PacedByte{2, Time{1010ms}}));
}

void TroubledLineTest::whatIsUnderWayCanBeLost() {
    TroubledLine line(toKeyer, 1);
    line.put({1, Time{10ms}}, {});
    line.clear();
    QVERIFY(!line.nextArrival());
}

static const RegisteredTest<TroubledLineTest> registered;
#include "TroubledLineTest.moc"
