#include "tests/support/RegisteredTest.h"
#include "tests/virtualkeyer/core/KeyerBench.h"

#include <QtTest>

#include <random>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;

namespace {

Profile randomProfile(std::mt19937& random) {
    const auto choice = [&] { return random() % 2; };
    Profile profile;
    profile.echoTime = static_cast<EchoTime>(choice());
    profile.idleTime = static_cast<IdleTime>(choice());
    profile.endOrder = static_cast<EndOrder>(choice());
    profile.echoesText = choice() != 0;
    profile.echoesHalfSpace = choice() != 0;
    profile.unknownCharacter = static_cast<UnknownCharacter>(choice());
    profile.reportsStatusAfterOpen = choice() != 0;
    profile.xoffRule = static_cast<XoffRule>(choice());
    profile.clearInLetter = static_cast<ClearInLetter>(choice());
    profile.memoryLoad = static_cast<MemoryLoad>(choice());
    profile.breakInReport = static_cast<BreakInReport>(choice());
    profile.breakInDelay = std::chrono::milliseconds(choice() * 160);
    profile.resumeAfterPause = static_cast<ResumeAfterPause>(choice());
    if (choice() != 0) {
        profile.tuneLimit = 10s;
    }
    return profile;
}

/// A byte as hosts send them: commands are likelier than in mere noise.
std::uint8_t randomByte(std::mt19937& random) {
    const auto kind = random() % 4;
    return static_cast<std::uint8_t>(kind == 0 ? random() % 256 : random() % (kind == 1 ? 32 : 96));
}

} // namespace

/// The keyer at rest, and under bytes and touches that make no sense.
class KeyerRobustnessTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void anIdleKeyerAwaitsNothing_data();
    void anIdleKeyerAwaitsNothing();
    void timePassesInAnyPortion();
    void inputsThatComeLateCountFromNow();
    void randomInputNeverHangs_data();
    void randomInputNeverHangs();
};

void KeyerRobustnessTest::anIdleKeyerAwaitsNothing_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("after power-up") << ""_ba;
    QTest::newRow("after opening") << "\0\x02"_ba;
    QTest::newRow("after a text") << "\0\x02TEST "_ba;
    QTest::newRow("after buffered commands alone") << "\0\x02\x18\x01\x18\0\x1C\x10\x1E\x1F"_ba;
    QTest::newRow("after characters without Morse") << "\0\x02##"_ba;
    QTest::newRow("after nulls") << "\0\x02\x16\x03\x20"_ba;
    QTest::newRow("after a tune") << "\0\x02\x0B\x01\x0B\0"_ba;
    QTest::newRow("after closing") << "\0\x02TEST\0\x03"_ba;
}

void KeyerRobustnessTest::anIdleKeyerAwaitsNothing() {
    QFETCH(QByteArray, bytes);
    KeyerBench bench;
    bench.text(bytes.toStdString());
    QVERIFY(bench.finish());
    QVERIFY(!bench.keyer.nextEvent());
    bench.forget();
    bench.wait(3'600'000);
    QCOMPARE(bench.log({}), QString());
    QVERIFY(!bench.keyer.nextEvent());
}

void KeyerRobustnessTest::timePassesInAnyPortion() {
    const auto script = [](int portions) {
        KeyerBench bench;
        bench.open();
        bench.text("PARIS \x1A\x01"
                   "E");
        for (int portion = 0; portion < portions; ++portion) {
            bench.wait(6000.0 / portions);
        }
        return bench.log({});
    };
    QCOMPARE(script(12000), script(1));
    QCOMPARE(script(8), script(1));
}

void KeyerRobustnessTest::inputsThatComeLateCountFromNow() {
    Keyer keyer;
    keyer.advance(1s);
    keyer.receive(0x00, 10ms);
    keyer.receive(0x02, 10ms);
    const auto events = keyer.takeEvents();
    QCOMPARE(events.size(), 1U);
    QVERIFY(events[0] == (Event{1s, HostByte{23}}));
}

void KeyerRobustnessTest::randomInputNeverHangs_data() {
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 60; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void KeyerRobustnessTest::randomInputNeverHangs() {
    QFETCH(unsigned, seed);
    std::mt19937 random(seed);
    Keyer keyer(randomProfile(random));
    Time now{0};
    keyer.receive(0, now);
    keyer.receive(2, now);
    std::vector<Event> events;
    const auto collect = [&] {
        const auto taken = keyer.takeEvents();
        events.insert(events.end(), taken.begin(), taken.end());
    };
    for (int input = 0; input < 5000; ++input) {
        now += std::chrono::microseconds{random() % 100'000};
        for (int i = 0; i < 100'000; ++i) {
            const auto next = keyer.nextEvent();
            if (!next || *next > now) {
                break;
            }
            keyer.advance(*next);
            // Everything due has happened, so whatever is next lies ahead.
            QVERIFY(!keyer.nextEvent() || *keyer.nextEvent() > *next);
        }
        switch (random() % 16) {
        case 0:
            keyer.setPaddle(random() % 2 != 0, random() % 2 != 0, now);
            break;
        case 1:
            keyer.setPot(static_cast<int>(random() % 100), now);
            break;
        case 2:
            keyer.setPushButtons(static_cast<std::uint8_t>(random()), now);
            break;
        case 3:
            // Noise closes the keyer now and then.
            keyer.receive(0, now);
            keyer.receive(2, now);
            break;
        default:
            keyer.receive(randomByte(random), now);
        }
        collect();
    }
    keyer.setPaddle(false, false, now);
    // Ends a memory load or any other command that is under way, then everything else.
    for (int i = 0; i < 260; ++i) {
        keyer.receive(0x13, now);
    }
    for (const int byte : {0, 3}) {
        keyer.receive(static_cast<std::uint8_t>(byte), now);
    }
    collect();
    for (int i = 0; i < 1000 && keyer.nextEvent(); ++i) {
        keyer.advance(*keyer.nextEvent());
    }
    QVERIFY(!keyer.nextEvent());
    collect();

    std::array<bool, 2> isDown{};
    bool isTransmitting = false;
    int tone = 0;
    Time last{0};
    for (const Event& event : events) {
        QVERIFY(event.at >= last);
        last = event.at;
        if (const auto* line = std::get_if<KeyLine>(&event.what)) {
            bool& state = isDown.at(static_cast<std::size_t>(line->output - 1));
            QVERIFY(state != line->isDown);
            state = line->isDown;
        } else if (const auto* ptt = std::get_if<PttLine>(&event.what)) {
            QVERIFY(isTransmitting != ptt->isOn);
            isTransmitting = ptt->isOn;
        } else if (const auto* sound = std::get_if<Tone>(&event.what)) {
            QVERIFY(tone != sound->frequency);
            tone = sound->frequency;
        }
    }
    QVERIFY(!isDown[0] && !isDown[1] && !isTransmitting && tone == 0);
    QVERIFY(events.size() > 100);
}

static const RegisteredTest<KeyerRobustnessTest> registered;
#include "KeyerRobustnessTest.moc"
