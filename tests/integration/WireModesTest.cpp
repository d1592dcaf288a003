#include "keyer/MessageSettings.h"
#include "tests/integration/Station.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A two-state control.
class Switch : public QObject {
  public:
    explicit Switch(bool isOn) { setProperty("state", isOn ? 1 : 0); }
};

const Switch on(true);
const Switch off(false);

} // namespace

/// Tune, pause, high-speed CW and the beacon, as the key line shows them.
class WireModesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void tuneHoldsTheKeyDown();
    void aPauseEndsTheLetterAndGoesOnWithTheNext();
    void textWaitsWhilePaused();
    void highSpeedIsSwitchedOnAndOff();
    void theBeaconKeepsItsInterval();
    void theBeaconEndsWithThePaddle();

  private:
    std::optional<Station> _station;
};

void WireModesTest::init() {
    _station.emplace();
    QVERIFY(_station->setUp());
}

void WireModesTest::tuneHoldsTheKeyDown() {
    _station->engine().tune(&on);
    _station->pass(1s);
    QVERIFY(_station->isKeyDown());
    _station->pass(1min);
    QVERIFY(_station->isKeyDown());
    QCOMPARE(_station->edges().size(), 1U);
    _station->engine().tune(&off);
    _station->pass(1s);
    QVERIFY(!_station->isKeyDown());
    QCOMPARE(_station->written(), QByteArray("0b 01 0b 00"));
    QCOMPARE(_station->received(), QByteArray("d0 d4 c0"));
    QVERIFY(_station->edges()[1].at - _station->edges()[0].at == 61s);
}

void WireModesTest::aPauseEndsTheLetterAndGoesOnWithTheNext() {
    _station->type(u"PARIS"_s);
    QVERIFY(_station->waitUntil([this] { return _station->edges().size() == 11; }));
    _station->engine().setPauseState(1);
    _station->pass(30s);
    QCOMPARE(_station->keyed(), u"PA"_s);
    QCOMPARE(_station->engine().pauseState(), 1);
    _station->engine().setPauseState(0);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), u"RIS"_s);
    QCOMPARE(_station->written(), QByteArray("50 41 06 01 06 00 52 49 53"));
}

void WireModesTest::textWaitsWhilePaused() {
    _station->engine().setPauseState(1);
    _station->type(u"PARIS"_s);
    _station->pass(30s);
    QCOMPARE(_station->keyed(), QString());
    QCOMPARE(_station->written(), QByteArray("06 01"));
    _station->engine().setPauseState(0);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), u"PARIS"_s);
}

void WireModesTest::highSpeedIsSwitchedOnAndOff() {
    _station->engine().changeHSCWMode(&on);
    _station->type(u"E"_s);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->registers().wpm(), 200);
    _station->engine().changeHSCWMode(&off);
    _station->type(u"EE"_s);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->registers().wpm(), 20);
    QCOMPARE(_station->written(), QByteArray("1d 0a 45 02 00 45"));
    const auto& edges = _station->edges();
    QCOMPARE(edges.size(), 4U);
    QVERIFY(edges[1].at - edges[0].at == 6ms);
    QVERIFY(edges[3].at - edges[2].at == 60ms);
}

void WireModesTest::theBeaconKeepsItsInterval() {
    _station->settings().setObject(10.0, BeaconInterval.key);
    _station->engine().setBeaconState(1);
    _station->engine().appendMessage(u"VVV"_s);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), u"VVV"_s);
    QCOMPARE(_station->written(), QByteArray("56 56 56"));
    for (int round = 0; round < 5; ++round) {
        const auto idle = _station->allReceived().back();
        QCOMPARE(idle.value, std::uint8_t{0xC0});
        const auto before = _station->allWritten().size();
        QVERIFY(_station->waitUntil([&] { return _station->allWritten().size() > before; }));
        QVERIFY(_station->now() == idle.at + 10s);
        QVERIFY(_station->waitForQuiet());
        QCOMPARE(_station->keyed(), u"VVV"_s);
        QCOMPARE(_station->written(), QByteArray("20 56 56 56"));
    }
}

void WireModesTest::theBeaconEndsWithThePaddle() {
    _station->engine().setBeaconState(1);
    _station->engine().appendMessage(u"VVV"_s);
    QVERIFY(_station->waitForQuiet());
    static_cast<void>(_station->keyed());
    static_cast<void>(_station->written());
    _station->setPaddle(true, false);
    _station->pass(10ms);
    _station->setPaddle(false, false);
    _station->pass(1min);
    QCOMPARE(_station->engine().beaconState(), 0);
    QCOMPARE(_station->keyed(), u"E"_s);
    QCOMPARE(_station->written(), QByteArray());
}

static const RegisteredTest<WireModesTest> registered;
#include "WireModesTest.moc"
