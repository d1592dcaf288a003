#include "keyer/GeneralSettings.h"
#include "keyer/KeyerSettings.h"
#include "tests/integration/Station.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What is under way when the link ends.
enum class Keying { Tune, Text, Beacon, StandaloneMessage };

void addKeyings() {
    QTest::addColumn<Keying>("keying");
    QTest::newRow("tune") << Keying::Tune;
    QTest::newRow("text") << Keying::Text;
    QTest::newRow("a beacon") << Keying::Beacon;
    QTest::newRow("a message of the keyer's own") << Keying::StandaloneMessage;
}

} // namespace

/// However the link ends: the key goes up, and nothing goes on by itself afterwards.
class WireEndingsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void sleepStopsWhateverIsKeyed_data() { addKeyings(); }
    void sleepStopsWhateverIsKeyed();
    void aPortTakenAwayOverAWorkingLineStopsWhateverIsKeyed_data() { addKeyings(); }
    void aPortTakenAwayOverAWorkingLineStopsWhateverIsKeyed();
    void anIdleKeyerIsGreetedAfterASleep();
    void aSecondSleepIsLikeTheFirst();

  private:
    void begin(Keying keying);
    void sleep();
    void wake();

    std::optional<Station> _station;
};

void WireEndingsTest::init() {
    _station.emplace();
    QVERIFY(_station->setUp());
    _station->settings().setObject(u"PARIS PARIS"_s, WKStandaloneMessages[0]);
    QVERIFY(_station->engine().writeEeprom(nullptr));
    QVERIFY(_station->waitForQuiet());
    static_cast<void>(_station->written());
}

/// Half a minute of something, and stops in the midst of it, with the key down.
void WireEndingsTest::begin(Keying keying) {
    auto& engine = _station->engine();
    QObject tune;
    tune.setProperty("state", 1);
    switch (keying) {
    case Keying::Tune:
        engine.tune(&tune);
        break;
    case Keying::Text:
        _station->type(u"PARIS PARIS PARIS"_s);
        break;
    case Keying::Beacon:
        engine.setBeaconState(1);
        engine.appendMessage(u"PARIS"_s);
        break;
    case Keying::StandaloneMessage:
        engine.sendStandaloneMessage(1);
        break;
    }
    QVERIFY(_station->waitUntil([this] { return _station->isKeyDown(); }));
    _station->pass(10ms);
    static_cast<void>(_station->written());
}

void WireEndingsTest::sleep() {
    _station->platform().notifications().post(NSWorkspaceWillSleepNotification, nullptr);
}

void WireEndingsTest::wake() {
    _station->platform().notifications().post(NSWorkspaceDidWakeNotification, nullptr);
    QTRY_VERIFY(_station->engine().activity() != KeyerActivity::NotConnected);
}

void WireEndingsTest::sleepStopsWhateverIsKeyed() {
    QFETCH(Keying, keying);
    begin(keying);
    sleep();
    QVERIFY(!_station->port().isOpen());
    QCOMPARE(_station->written(), QByteArray("0b 00 0a 00 03"));
    QCOMPARE(_station->engine().keyboardBuffer(), u""_s);
    QCOMPARE(_station->engine().beaconState(), 0);
    _station->pass(100ms);
    QVERIFY(!_station->isKeyDown());
    const auto edges = _station->edges().size();
    _station->pass(1h);
    QCOMPARE(_station->edges().size(), edges);

    wake();
    QVERIFY(_station->waitForQuiet());
    _station->pass(1min);
    QCOMPARE(_station->edges().size(), edges);
    static_cast<void>(_station->keyed());
    _station->type(u"K"_s);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), u"K"_s);
}

void WireEndingsTest::aPortTakenAwayOverAWorkingLineStopsWhateverIsKeyed() {
    QFETCH(Keying, keying);
    begin(keying);
    _station->unplug();
    QCOMPARE(_station->written(), QByteArray("0b 00 0a 00 03"));
    QVERIFY(!_station->engine().isConnected());
    QCOMPARE(_station->engine().keyboardBuffer(), u""_s);
    QCOMPARE(_station->engine().beaconState(), 0);
    _station->pass(100ms);
    QVERIFY(!_station->isKeyDown());
    const auto edges = _station->edges().size();
    _station->pass(1min);
    QCOMPARE(_station->edges().size(), edges);
}

void WireEndingsTest::anIdleKeyerIsGreetedAfterASleep() {
    sleep();
    QCOMPARE(_station->written(), QByteArray("0b 00 0a 00 03"));
    QCOMPARE(_station->engine().activity(), KeyerActivity::NotConnected);
    _station->pass(1h);
    static_cast<void>(_station->received());
    wake();
    QCOMPARE(_station->written(), QByteArray("13 13 13 13 00 04 55 00 02 00 0b "
                                             "0f 15 00 8a 32 00 0a 0d 20 00 00 0a 32 32 06 00 07"));
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->received(), QByteArray("55 17 c8 87"));
    QCOMPARE(_station->engine().activity(), KeyerActivity::Idle);
}

void WireEndingsTest::aSecondSleepIsLikeTheFirst() {
    sleep();
    wake();
    QVERIFY(_station->waitForQuiet());
    begin(Keying::Tune);
    sleep();
    _station->pass(100ms);
    QVERIFY(!_station->isKeyDown());
    wake();
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->engine().activity(), KeyerActivity::Idle);
}

static const RegisteredTest<WireEndingsTest> registered;
#include "WireEndingsTest.moc"
