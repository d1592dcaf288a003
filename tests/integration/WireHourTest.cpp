#include "keyer/MessageSettings.h"
#include "tests/integration/Station.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

constexpr std::chrono::hours hour{1};

/// An hour on the air, in a moment of the test's.
class WireHourTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void theBeaconNeitherDriftsNorLeavesATimer();
    void pausesLoseAndRepeatNothing();
    void flowControlLosesNothing();

  private:
    std::optional<Station> _station;
};

void WireHourTest::init() {
    _station.emplace();
    QVERIFY(_station->setUp());
}

void WireHourTest::theBeaconNeitherDriftsNorLeavesATimer() {
    _station->settings().setObject(10.0, BeaconInterval.key);
    _station->engine().setBeaconState(1);
    _station->engine().appendMessage(u"VVV"_s);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), u"VVV"_s);

    const auto end = _station->now() + hour;
    std::optional<Station::Time> period;
    int rounds = 0;
    while (_station->now() < end) {
        const auto idle = _station->allReceived().back();
        QCOMPARE(idle.value, std::uint8_t{0xC0});
        QCOMPARE(_station->pendingTimers(), 1);
        const auto written = _station->allWritten().size();
        QVERIFY(_station->waitUntil([&] { return _station->allWritten().size() > written; }));
        QCOMPARE((_station->now() - idle.at).count(), Station::Time(10s).count());
        QVERIFY(_station->waitForQuiet());
        QCOMPARE(_station->keyed(), u"VVV"_s);
        // From the second round on, each takes as long as the one before, to the nanosecond.
        const auto took = _station->allReceived().back().at - idle.at;
        if (rounds++ > 0) {
            QCOMPARE(took.count(), period.value_or(took).count());
            period = took;
        }
    }
    QVERIFY(rounds > 200);

    _station->engine().stopMessageSending(nullptr);
    _station->pass(hour);
    QCOMPARE(_station->pendingTimers(), 0);
    QCOMPARE(_station->keyed(), QString());
}

void WireHourTest::pausesLoseAndRepeatNothing() {
    const auto text = u"PARIS "_s.repeated(900);
    _station->type(text);
    const auto end = _station->now() + hour;
    // Pauses fall on every part of a letter: their rhythm has no common measure with the dits.
    while (_station->now() < end) {
        _station->pass(17s + 7ms);
        _station->engine().setPauseState(1);
        _station->pass(5s + 3ms);
        _station->engine().setPauseState(0);
    }
    QVERIFY(_station->waitForQuiet());
    // A pause inside a word is read as a space.
    auto keyed = _station->keyed();
    QCOMPARE(keyed.remove(u' '), u"PARIS"_s.repeated(900));
    QCOMPARE(_station->pendingTimers(), 0);
}

void WireHourTest::flowControlLosesNothing() {
    // Half spaces are not echoed, so that a long run of them fills the keyer's buffer.
    const auto run = QString(130, u'|');
    QString text;
    for (int i = 0; i < 20; ++i) {
        text += u"PARIS"_s + run;
    }
    _station->type(text);
    const auto end = _station->now() + hour;
    int pauses = 0;
    while (_station->now() < end) {
        _station->pass(10s);
        if (_station->engine().pauseState() != 0) {
            // The keyer holds what it has while it is paused; the operator lets it go on.
            ++pauses;
            _station->engine().setPauseState(0);
        }
    }
    QVERIFY(pauses > 0);
    auto keyed = _station->keyed();
    QCOMPARE(keyed.remove(u' '), u"PARIS"_s.repeated(20));
    QCOMPARE(_station->pendingTimers(), 0);
}

static const RegisteredTest<WireHourTest> registered;
#include "WireHourTest.moc"
