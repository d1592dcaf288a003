#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/pty/SerialKeyer.h"

#include <QTest>

#include <initializer_list>
#include <string>
#include <vector>

using namespace std::chrono_literals;
using virtualkeyer::Event;
using virtualkeyer::KeyerListener;
using virtualkeyer::KeyLine;
using virtualkeyer::Profile;
using virtualkeyer::Registers;
using virtualkeyer::SerialKeyer;
using virtualkeyer::Time;
using virtualkeyer::Troubles;

namespace {

/// The time that a byte takes on the line, rounded up.
constexpr Time byteTime{9'166'667};

class KeyWatcher : public KeyerListener {
  public:
    void keyerDid(const Event& event, const Registers&) override {
        if (const auto* line = std::get_if<KeyLine>(&event.what)) {
            isDown = line->isDown;
        }
    }
    bool isDown = false;
};

void send(SerialKeyer& keyer, std::initializer_list<int> bytes, Time at) {
    for (const int byte : bytes) {
        keyer.send(static_cast<std::uint8_t>(byte), at);
    }
}

std::string arrivedBy(SerialKeyer& keyer, Time at) {
    keyer.advance(at);
    const auto bytes = keyer.takeArrived();
    return {bytes.begin(), bytes.end()};
}

} // namespace

/// What is wrong with the line between a host and the keyer.
class SerialKeyerTroublesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void bothDirectionsAreDelayed();
    void bytesAreLostInBothDirections();
    void troublesBeginAndEnd();
    void theTimesAreTheSameHoweverLateTheCall();
    void anUnreadLineHasNoRoom();
    void aResetAtTheOpeningLosesNothingThatIsSentBehindIt();
    void aResetInMidSessionLosesTheHost();
    void aResetCountsFromWhenItWasAskedForToo();
    void aHangUpLosesWhatIsOnTheLineAndLeavesTheKeyerAlone();
    void aPullIsAHangUpAlsoWhenTheAdapterIsInAgain();
    void nothingIsDueOnAnIdleLine();
};

void SerialKeyerTroublesTest::bothDirectionsAreDelayed() {
    SerialKeyer keyer({}, {}, {.delay = 100ms});
    send(keyer, {0x00, 0x04, 'U'}, 0s);
    const Time there = 3 * byteTime + 200ms + byteTime;
    QCOMPARE(arrivedBy(keyer, there - 10us), std::string());
    QVERIFY(keyer.nextEvent().value() <= there);
    QCOMPARE(arrivedBy(keyer, there), std::string("U"));
}

void SerialKeyerTroublesTest::bytesAreLostInBothDirections() {
    SerialKeyer keyer({}, {}, {.lost = 1});
    send(keyer, {0x00, 0x04, 'U'}, 0s);
    QCOMPARE(arrivedBy(keyer, 1s), std::string());
    keyer.setTroubles({}, 1s);
    send(keyer, {0x00, 0x04, 'U'}, 1s);
    keyer.advance(1s + 3 * byteTime);
    // The answer is on its way.
    keyer.setTroubles({.lost = 1}, 1s + 3 * byteTime);
    QCOMPARE(arrivedBy(keyer, 2s), std::string());
}

void SerialKeyerTroublesTest::troublesBeginAndEnd() {
    SerialKeyer keyer({}, {});
    keyer.setTroubles({.losesEchoes = true}, 1s);
    send(keyer, {0x00, 0x04, 'U'}, 1s);
    QCOMPARE(arrivedBy(keyer, 2s), std::string());
    keyer.setTroubles({}, 2s);
    send(keyer, {0x00, 0x04, 'V'}, 2s);
    QCOMPARE(arrivedBy(keyer, 3s), std::string("V"));
}

void SerialKeyerTroublesTest::theTimesAreTheSameHoweverLateTheCall() {
    const Troubles troubles{.doubled = 0.3, .noise = 0.05, .late = 200ms};
    std::string arrived[2];
    for (const bool isLate : {false, true}) {
        SerialKeyer keyer({}, {}, troubles, 5);
        for (int i = 0; i < 100; ++i) {
            send(keyer, {0x00, 0x04, 'A' + i % 26}, 0s);
        }
        for (auto due = keyer.nextEvent(); due && !isLate; due = keyer.nextEvent()) {
            arrived[0] += arrivedBy(keyer, *due);
        }
        if (isLate) {
            arrived[1] = arrivedBy(keyer, 1h);
        }
    }
    QVERIFY(arrived[0].size() > 50);
    QCOMPARE(arrived[1], arrived[0]);
}

void SerialKeyerTroublesTest::anUnreadLineHasNoRoom() {
    SerialKeyer keyer({}, {}, {.isNotRead = true});
    QVERIFY(!keyer.hasRoom());
    keyer.setTroubles({}, 1s);
    QVERIFY(keyer.hasRoom());
}

void SerialKeyerTroublesTest::aResetAtTheOpeningLosesNothingThatIsSentBehindIt() {
    SerialKeyer keyer({}, {}, {.reset = Time{0}});
    keyer.portOpened(1s);
    send(keyer, {0x00, 0x02}, 1s);
    QCOMPARE(arrivedBy(keyer, 2s), std::string("\x17"));
}

void SerialKeyerTroublesTest::aResetInMidSessionLosesTheHost() {
    KeyWatcher key;
    SerialKeyer keyer({}, {&key}, {.reset = Time{2s}});
    keyer.portOpened(1s);
    send(keyer, {0x00, 0x02, 0x0B, 0x01}, 1s);
    QCOMPARE(arrivedBy(keyer, 2999ms), std::string("\x17\xD8\xDC"));
    QVERIFY(key.isDown);
    QCOMPARE(arrivedBy(keyer, 3s), std::string());
    QVERIFY(!key.isDown);
    send(keyer, {0x0B, 0x01, 0x00, 0x04, 'U'}, 3s);
    QCOMPARE(arrivedBy(keyer, 4s), std::string("U"));
    QVERIFY(!key.isDown);
}

void SerialKeyerTroublesTest::aResetCountsFromWhenItWasAskedForToo() {
    SerialKeyer keyer({}, {});
    send(keyer, {0x00, 0x02}, 0s);
    keyer.setTroubles({.reset = Time{1s}}, 1s);
    QVERIFY(keyer.nextEvent().value() == Time{2s});
    QCOMPARE(arrivedBy(keyer, 2s), std::string("\x17"));
    QVERIFY(!keyer.nextEvent());
    keyer.setTroubles({.reset = Time{1s}}, 5s);
    keyer.setTroubles({}, 5500ms);
    QVERIFY(!keyer.nextEvent());
}

void SerialKeyerTroublesTest::aHangUpLosesWhatIsOnTheLineAndLeavesTheKeyerAlone() {
    KeyWatcher key;
    SerialKeyer keyer({}, {&key});
    send(keyer, {0x00, 0x02, 0x0B, 0x01}, 0s);
    QCOMPARE(arrivedBy(keyer, 1s), std::string("\x17\xD8\xDC"));
    send(keyer, {0x00, 0x04, 'U', 0x0B, 0x00}, 1s);
    QVERIFY(!keyer.takeHangUp());
    keyer.setTroubles({.hangUp = 3 * byteTime + 1ms}, 1s);
    QCOMPARE(arrivedBy(keyer, 2s), std::string());
    QVERIFY(keyer.takeHangUp());
    QVERIFY(!keyer.takeHangUp());
    QVERIFY(key.isDown);
    send(keyer, {0x0B, 0x00}, 2s);
    QCOMPARE(arrivedBy(keyer, 3s), std::string("\xC0"));
    QVERIFY(!key.isDown);
}

void SerialKeyerTroublesTest::aPullIsAHangUpAlsoWhenTheAdapterIsInAgain() {
    SerialKeyer keyer({}, {});
    keyer.pull(1s);
    keyer.plugIn(1s);
    QVERIFY(keyer.isPluggedIn());
    QVERIFY(keyer.takeHangUp());
    QVERIFY(!keyer.takeHangUp());
}

void SerialKeyerTroublesTest::nothingIsDueOnAnIdleLine() {
    const SerialKeyer keyer({}, {}, {.lost = 0.1, .late = 1s, .joined = 16ms, .reset = Time{1s}});
    QVERIFY(!keyer.nextEvent());
}

static const RegisteredTest<SerialKeyerTroublesTest> registered;
#include "SerialKeyerTroublesTest.moc"
