#include "virtualkeyer/pty/SerialKeyer.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <initializer_list>
#include <vector>

using namespace std::chrono_literals;
using virtualkeyer::Event;
using virtualkeyer::HostByte;
using virtualkeyer::KeyerListener;
using virtualkeyer::KeyLine;
using virtualkeyer::Profile;
using virtualkeyer::Registers;
using virtualkeyer::SerialKeyer;
using virtualkeyer::Time;

namespace {

constexpr std::int64_t bitsOfAByte = 11;

/// The end of `bytes` bytes that follow each other at `baud`, in ns.
constexpr std::int64_t lineTime(std::int64_t bytes, std::int64_t baud = 1200) {
    return (bytes * bitsOfAByte * 1'000'000'000 + baud - 1) / baud;
}

struct Arrival {
    std::uint8_t value;
    std::int64_t at;
    bool operator==(const Arrival&) const = default;
};

void sendTo(SerialKeyer& keyer, std::initializer_list<int> bytes, Time at) {
    for (const int byte : bytes) {
        keyer.send(static_cast<std::uint8_t>(byte), at);
    }
}

/// A keyer whose time passes from one due event to the next.
class Bench {
  public:
    explicit Bench(const std::vector<KeyerListener*>& listeners = {}) : keyer({}, listeners) {}

    void send(std::initializer_list<int> bytes, Time at = Time::zero()) {
        sendTo(keyer, bytes, at);
    }

    std::vector<Arrival> runUntil(Time end) {
        std::vector<Arrival> arrivals;
        for (auto due = keyer.nextEvent(); due && *due <= end; due = keyer.nextEvent()) {
            keyer.advance(*due);
            for (const std::uint8_t byte : keyer.takeArrived()) {
                arrivals.push_back({byte, due->count()});
            }
        }
        return arrivals;
    }

    SerialKeyer keyer;
};

class Recorder : public KeyerListener {
  public:
    void keyerDid(const Event& event, const Registers& registers) override {
        events.push_back(event);
        speeds.push_back(registers.wpm());
    }
    void timePassed(Time now) override {
        lastTime = now;
        if (wish && *wish <= now) {
            wish.reset();
        }
    }
    [[nodiscard]] std::optional<Time> nextWish() const override { return wish; }
    void hostSent(std::uint8_t byte, bool isLost, Time at) override {
        sent.push_back({byte, at.count()});
        lost += isLost ? 1 : 0;
        eventsBeforeLastSent = events.size();
    }
    void keyerRestarted(Time at) override { restarts.push_back(at.count()); }

    std::vector<Event> events;
    std::vector<int> speeds;
    Time lastTime{};
    std::optional<Time> wish;
    std::vector<Arrival> sent;
    int lost = 0;
    std::size_t eventsBeforeLastSent = 0;
    std::vector<std::int64_t> restarts;
};

} // namespace

class SerialKeyerTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void anAnswerTakesTheTimeOfEveryByteThereAndBack();
    void bothDirectionsRunAtTheSameTime();
    void the256BytesOfTheMemoryTakeTheirTime();
    void theFastLineHoldsInBothDirectionsFromTheNextByteOn();
    void theLineTakesSixteenBytesAhead();
    void aLateCallGivesTheSameTimes();
    void listenersHearEventsWithTheRegistersInForce();
    void aListenersWishIsKept();
    void aListenerHearsHowFarTimeHasCome();
    void anIdleKeyerHasNothingDue();
    void aBootLoaderIsToldOfTheOpening();
    void listenersHearTheHostsBytesWhenTheyAreComplete();
    void aByteIsToldBetweenWhatIsBeforeItAndItsAnswer();
    void whatABootLoaderSwallowsIsToldAsLost();
    void aPulledKeyerIsToldToStartAnew();
};

void SerialKeyerTest::anAnswerTakesTheTimeOfEveryByteThereAndBack() {
    Bench bench;
    bench.send({0x00, 0x02});
    const auto arrivals = bench.runUntil(1s);
    QCOMPARE(arrivals, (std::vector<Arrival>{{23, lineTime(2) + lineTime(1)}}));
}

void SerialKeyerTest::bothDirectionsRunAtTheSameTime() {
    Bench bench;
    bench.send({0x00, 0x04, 'A', 0x00, 0x04, 'B', 0x00, 0x04, 'C'});
    const auto arrivals = bench.runUntil(1s);
    const std::vector<Arrival> expected{{'A', lineTime(3) + lineTime(1)},
                                        {'B', lineTime(6) + lineTime(1)},
                                        {'C', lineTime(9) + lineTime(1)}};
    QCOMPARE(arrivals, expected);
}

void SerialKeyerTest::the256BytesOfTheMemoryTakeTheirTime() {
    Bench bench;
    bench.send({0x00, 0x0C});
    const auto arrivals = bench.runUntil(5s);
    QCOMPARE(arrivals.size(), 256U);
    QCOMPARE(int{arrivals.front().value}, 0xA5);
    QCOMPARE(arrivals.back().at, lineTime(2) + 2'346'666'667);
}

void SerialKeyerTest::theFastLineHoldsInBothDirectionsFromTheNextByteOn() {
    Bench bench;
    bench.send({0x00, 0x11, 0x00, 0x04, 'U'});
    const auto arrivals = bench.runUntil(1s);
    const std::int64_t received = lineTime(2) + lineTime(3, 9600);
    QCOMPARE(arrivals, (std::vector<Arrival>{{'U', received + lineTime(1, 9600)}}));
}

void SerialKeyerTest::theLineTakesSixteenBytesAhead() {
    Bench bench;
    for (int i = 0; i < 16; ++i) {
        QVERIFY(bench.keyer.hasRoom());
        bench.send({0x13});
    }
    QVERIFY(!bench.keyer.hasRoom());
    bench.keyer.advance(Time{lineTime(1) - 1});
    QVERIFY(!bench.keyer.hasRoom());
    bench.keyer.advance(Time{lineTime(1)});
    QVERIFY(bench.keyer.hasRoom());
}

void SerialKeyerTest::aLateCallGivesTheSameTimes() {
    Recorder punctual;
    Recorder late;
    for (Recorder* recorder : {&punctual, &late}) {
        Bench bench({recorder});
        bench.send({0x00, 0x02, 0x02, 40, 'C', 'Q', ' ', 'K'});
        if (recorder == &punctual) {
            static_cast<void>(bench.runUntil(10s));
        }
        bench.keyer.advance(10s);
    }
    QVERIFY(!punctual.events.empty());
    QCOMPARE(late.events, punctual.events);
}

void SerialKeyerTest::listenersHearEventsWithTheRegistersInForce() {
    Recorder first;
    Recorder second;
    Bench bench({&first, &second});
    bench.send({0x00, 0x02, 0x02, 40, 0x00, 0x04, 'U'});
    static_cast<void>(bench.runUntil(1s));
    const std::vector<Event> expected{{Time{lineTime(2)}, HostByte{23}},
                                      {Time{lineTime(7)}, HostByte{'U'}}};
    QCOMPARE(first.events, expected);
    QCOMPARE(second.events, expected);
    QCOMPARE(first.speeds, (std::vector<int>{Profile{}.potWpm, 40}));
}

void SerialKeyerTest::aListenersWishIsKept() {
    Recorder listener;
    Bench bench({&listener});
    listener.wish = 3s;
    QCOMPARE(bench.keyer.nextEvent().value().count(), Time{3s}.count());
    bench.send({0x13}, 1s);
    QCOMPARE(bench.keyer.nextEvent().value().count(), 1'000'000'000 + lineTime(1));
}

void SerialKeyerTest::aListenerHearsHowFarTimeHasCome() {
    Recorder listener;
    Bench bench({&listener});
    bench.keyer.advance(2s);
    QCOMPARE(listener.lastTime.count(), Time{2s}.count());
}

void SerialKeyerTest::anIdleKeyerHasNothingDue() {
    Bench bench;
    QVERIFY(!bench.keyer.nextEvent());
    bench.send({0x00, 0x02, 'E'});
    static_cast<void>(bench.runUntil(10s));
    QVERIFY(!bench.keyer.nextEvent());
}

void SerialKeyerTest::aBootLoaderIsToldOfTheOpening() {
    Profile profile;
    profile.bootLoaderTime = 1300ms;
    SerialKeyer keyer(profile, {});
    keyer.portOpened(1s);
    sendTo(keyer, {0x00, 0x04, 'A'}, 1s);
    keyer.advance(3s);
    QCOMPARE(keyer.takeArrived(), std::vector<std::uint8_t>());
    sendTo(keyer, {0x00, 0x04, 'B'}, 3s);
    keyer.advance(4s);
    QCOMPARE(keyer.takeArrived(), std::vector<std::uint8_t>{'B'});
}

void SerialKeyerTest::listenersHearTheHostsBytesWhenTheyAreComplete() {
    Recorder listener;
    Bench bench({&listener});
    bench.send({0x00, 0x02, 'E'});
    bench.keyer.advance(1s);
    QCOMPARE(listener.sent,
             (std::vector<Arrival>{{0x00, lineTime(1)}, {0x02, lineTime(2)}, {'E', lineTime(3)}}));
    QCOMPARE(listener.lost, 0);
}

/// However late the loop was.
void SerialKeyerTest::aByteIsToldBetweenWhatIsBeforeItAndItsAnswer() {
    Recorder listener;
    Bench bench({&listener});
    bench.send({0x00, 0x02, 0x0E, 0x04, 'E'});
    bench.keyer.advance(100ms);
    bench.send({0x00, 0x04, 'U'}, 2s);
    bench.keyer.advance(3s);
    QCOMPARE(listener.events.size(), listener.eventsBeforeLastSent + 1);
    QCOMPARE(listener.events.back().what, decltype(Event::what)(HostByte{'U'}));
}

void SerialKeyerTest::whatABootLoaderSwallowsIsToldAsLost() {
    Profile profile;
    profile.bootLoaderTime = 1300ms;
    Recorder listener;
    SerialKeyer keyer(profile, {&listener});
    keyer.portOpened(1s);
    QCOMPARE(listener.restarts, std::vector<std::int64_t>{1'000'000'000});
    sendTo(keyer, {0x00, 0x02}, 1s);
    keyer.advance(3s);
    QCOMPARE(listener.lost, 2);
    sendTo(keyer, {0x00, 0x02}, 3s);
    keyer.advance(4s);
    QCOMPARE(listener.lost, 2);
}

void SerialKeyerTest::aPulledKeyerIsToldToStartAnew() {
    Recorder listener;
    Bench bench({&listener});
    bench.keyer.portOpened(1s);
    QCOMPARE(listener.restarts.size(), 0U);
    bench.keyer.pull(2s);
    QCOMPARE(listener.restarts, std::vector<std::int64_t>{2'000'000'000});
}

static const RegisteredTest<SerialKeyerTest> registered;
#include "SerialKeyerTest.moc"
