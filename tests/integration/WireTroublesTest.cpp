#include "tests/integration/WatchedStation.h"
#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/pty/NamedTroubles.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::uint32_t runs = 5;

/// A two-state control.
class Switch : public QObject {
  public:
    explicit Switch(bool isOn) { setProperty("state", isOn ? 1 : 0); }
};

const Switch on(true);
const Switch off(false);

virtualkeyer::Troubles troubles(const char* names) {
    return virtualkeyer::troublesNamed(names).value();
}

/// Whether `part` is what is left of `whole` when some of it is taken out.
bool isLeftOf(const QString& part, const QString& whole) {
    qsizetype at = 0;
    for (const auto each : whole) {
        at += at < part.size() && part.at(at) == each ? 1 : 0;
    }
    return at == part.size();
}

/// Without the letters that stand twice in a row.
QString withoutTwins(const QString& text) {
    QString single;
    for (const auto each : text) {
        if (!single.endsWith(each)) {
            single += each;
        }
    }
    return single;
}

const QString contest = u"CQ TEST DE N0CALL N0CALL TEST"_s;

} // namespace

/// What the application makes of a line that does not do what it should. A row of the table in
/// docs/keyers.md each.
class WireTroublesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void lostBytesLeaveTheRestAsItWasMeant();
    void aLostLetterIsToldOf();
    void aLostKeyUpTakesASecondStop();
    void doubledBytesKeyNothingElse();
    void noiseEndsWithTheKeyUpAndIsToldOf();
    void aKeyThatNoiseHasPutDownGoesUpByItself();
    void aKeyForATimeThatNoiseMadeOfALetterGoesUp();
    void lateBytesKeyTheSame_data();
    void lateBytesKeyTheSame();
    void joinedBytesKeyTheSame();
    void withoutEchoesTheTextIsKeyed();
    void aResetIsToldOfAndAskingAgainMendsIt();
    void aResetEndsATune();
    void aResetAtTheOpeningIsNotNoticed();
};

/// Nothing else than was typed, in its order, and a second attempt is as good as the first.
void WireTroublesTest::lostBytesLeaveTheRestAsItWasMeant() {
    int whole = 0;
    for (std::uint32_t seed = 1; seed <= runs; ++seed) {
        WatchedStation station(virtualkeyer::Profile{}, virtualkeyer::Troubles{}, seed);
        QVERIFY(station.setUp());
        station.setTroubles(troubles("lost:0.05"));
        station.type(contest);
        station.pass(1min);
        const auto keyed = station.keyed();
        QVERIFY2(isLeftOf(keyed.simplified().remove(u' '), QString(contest).remove(u' ')),
                 qPrintable(keyed));
        QVERIFY(!station.isKeyDown());
        // Whatever is still waited for has been told of.
        QVERIFY(!station.engine().isAwaitingEcho() || station.hasComplained());
        whole += keyed == contest ? 1 : 0;

        station.setTroubles({});
        station.askAgain();
        QVERIFY(station.waitForQuiet());
        static_cast<void>(station.keyed());
        station.type(u"K"_s);
        QVERIFY(station.waitForQuiet());
        QCOMPARE(station.keyed(), u"K"_s);
    }
    QVERIFY(whole < int{runs}); // or nothing was tried
}

void WireTroublesTest::aLostLetterIsToldOf() {
    WatchedStation station;
    QVERIFY(station.setUp());
    station.setTroubles(troubles("lost:1"));
    station.type(u"PARIS"_s);
    station.pass(100ms);
    station.setTroubles({});
    station.pass(9s);
    QVERIFY(!station.hasComplained());
    station.pass(2s);
    QVERIFY(station.hasComplained());
    QCOMPARE(station.keyed(), QString());
}

void WireTroublesTest::aLostKeyUpTakesASecondStop() {
    WatchedStation station;
    QVERIFY(station.setUp());
    station.engine().tune(&on);
    station.pass(1s);
    QVERIFY(station.isKeyDown());
    station.setTroubles(troubles("lost:1"));
    station.engine().tune(&off);
    station.pass(1s);
    station.setTroubles({});
    QVERIFY(station.isKeyDown());
    station.engine().stopMessageSending(nullptr);
    QVERIFY(station.waitForQuiet());
    QVERIFY(!station.isKeyDown());
}

void WireTroublesTest::doubledBytesKeyNothingElse() {
    int twins = 0;
    for (std::uint32_t seed = 1; seed <= runs; ++seed) {
        WatchedStation station(virtualkeyer::Profile{}, virtualkeyer::Troubles{}, seed);
        QVERIFY(station.setUp());
        station.setTroubles(troubles("doubled:0.2"));
        station.type(contest);
        QVERIFY(station.waitForQuiet());
        const auto keyed = station.keyed().remove(u' ');
        // The keyer keys what it gets twice, twice.
        QCOMPARE(withoutTwins(keyed), withoutTwins(QString(contest).remove(u' ')));
        QVERIFY(keyed.size() >= QString(contest).remove(u' ').size());
        twins += keyed.size() > QString(contest).remove(u' ').size() ? 1 : 0;
        QCOMPARE(station.engine().outputBufferIndex(), contest.size());
        QVERIFY(!station.engine().mayBeKeying());
        QVERIFY(!station.isKeyDown());
        QVERIFY(!station.hasComplained());
    }
    QVERIFY(twins > 0);
}

/// A wrong byte may be any command, and may have the keyer take no more of them for a while.
void WireTroublesTest::noiseEndsWithTheKeyUpAndIsToldOf() {
    for (std::uint32_t seed = 1; seed <= 2 * runs; ++seed) {
        WatchedStation station(virtualkeyer::Profile{}, virtualkeyer::Troubles{}, seed);
        QVERIFY(station.setUp());
        station.setTroubles(troubles("noise:0.1"));
        station.type(contest);
        station.pass(1min);
        station.setTroubles({});
        QVERIFY(station.hasComplained() || !station.engine().isAwaitingEcho());
        station.askAgain();
        station.pass(10s);
        QVERIFY(!station.isKeyDown());
        static_cast<void>(station.keyed());
        // A status that was spoilt may have paused it, which shows.
        station.engine().setPauseState(0);
        station.type(u"K"_s);
        station.pass(20s);
        QVERIFY(station.keyed() == u"K"_s || station.isComplaining());
        QVERIFY(!station.isKeyDown());
    }
}

/// "K" is a bit away from the command that holds the key.
void WireTroublesTest::aKeyThatNoiseHasPutDownGoesUpByItself() {
    WatchedStation station;
    QVERIFY(station.setUp());
    station.type(u"E"_s);
    QVERIFY(station.waitForQuiet());
    station.setTroubles(troubles("lost:1"));
    station.type(u"EKA"_s);
    station.pass(100ms);
    station.setTroubles({});
    station.engine().putToWinKeyer("\x0B\x41");
    station.pass(5s);
    QVERIFY(station.isKeyDown());
    station.pass(6s);
    QVERIFY(!station.isKeyDown());
    QVERIFY(station.hasComplained());
}

/// What ends the command that was cut short makes it hold the key for as long as that says.
void WireTroublesTest::aKeyForATimeThatNoiseMadeOfALetterGoesUp() {
    WatchedStation station;
    QVERIFY(station.setUp());
    station.type(u"E"_s);
    QVERIFY(station.waitForQuiet());
    station.setTroubles(troubles("lost:1"));
    station.type(u"EY"_s);
    station.pass(100ms);
    station.setTroubles({});
    station.engine().putToWinKeyer("\x19");
    station.pass(12s);
    QVERIFY(!station.isKeyDown());
    station.pass(20s);
    QVERIFY(!station.isKeyDown());
    QVERIFY(station.hasComplained());
}

void WireTroublesTest::lateBytesKeyTheSame_data() {
    QTest::addColumn<QByteArray>("names");
    for (const char* const names :
         {"late:0.3", "late:1", "delay:0.1", "delay:0.5", "late:0.2,delay:0.2,joined"}) {
        QTest::newRow(names) << QByteArray(names);
    }
}

void WireTroublesTest::lateBytesKeyTheSame() {
    QFETCH(const QByteArray, names);
    WatchedStation station;
    QVERIFY(station.setUp());
    station.setTroubles(troubles(names.constData()));
    station.type(contest);
    QVERIFY(station.waitForQuiet());
    // Where it waits for more the keyer leaves more than a letter space.
    QCOMPARE(station.keyed().remove(u' '), QString(contest).remove(u' '));
    QCOMPARE(station.engine().outputBufferIndex(), contest.size());
    QVERIFY(!station.engine().mayBeKeying());
    QVERIFY(!station.isKeyDown());
    QVERIFY(!station.hasComplained());
}

void WireTroublesTest::joinedBytesKeyTheSame() {
    for (const char* const names : {"joined", "joined:0.1", "joined:0.5"}) {
        WatchedStation station;
        QVERIFY(station.setUp());
        station.setTroubles(troubles(names));
        station.type(contest);
        QVERIFY(station.waitForQuiet());
        QCOMPARE(station.keyed().remove(u' '), QString(contest).remove(u' '));
        QVERIFY(!station.hasComplained());
        // A break-in that comes with an echo in one read.
        station.type(u"PARIS PARIS"_s);
        station.pass(1s);
        station.tap();
        QVERIFY(station.waitForQuiet());
        QCOMPARE(station.engine().keyboardBuffer(), QString());
        QVERIFY(!station.isKeyDown());
        static_cast<void>(station.keyed());
        station.pass(1min);
        QCOMPARE(station.keyed(), QString());
    }
}

void WireTroublesTest::withoutEchoesTheTextIsKeyed() {
    WatchedStation station;
    QVERIFY(station.setUp());
    station.setTroubles(troubles("no-echo"));
    station.type(contest);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.keyed(), contest);
    QVERIFY(!station.hasComplained());
    QVERIFY(!station.engine().mayBeKeying());
}

void WireTroublesTest::aResetIsToldOfAndAskingAgainMendsIt() {
    WatchedStation station;
    QVERIFY(station.setUp());
    station.type(u"PARIS PARIS"_s);
    QVERIFY(station.waitForEdges(9)); // within the A
    station.setTroubles(troubles("reset"));
    station.pass(1min);
    QCOMPARE(station.edges().size(), 10U);
    QVERIFY(!station.isKeyDown());
    QVERIFY(station.hasComplained());
    station.askAgain();
    QVERIFY(station.waitForQuiet());
    // The text from before is not sent from somewhere in its midst.
    QCOMPARE(station.edges().size(), 10U);
    static_cast<void>(station.keyed());
    station.type(u"K"_s);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.keyed(), u"K"_s);
}

void WireTroublesTest::aResetEndsATune() {
    WatchedStation station;
    QVERIFY(station.setUp());
    station.engine().tune(&on);
    station.pass(1s);
    QVERIFY(station.isKeyDown());
    station.setTroubles(troubles("reset"));
    station.pass(1s);
    QVERIFY(!station.isKeyDown());
    station.engine().tune(&off);
    station.pass(1min);
    QCOMPARE(station.edges().size(), 2U);
}

void WireTroublesTest::aResetAtTheOpeningIsNotNoticed() {
    WatchedStation station(virtualkeyer::Profile{}, troubles("reset"));
    QVERIFY(station.setUp());
    station.type(u"PARIS"_s);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.keyed(), u"PARIS"_s);
    QVERIFY(!station.hasComplained());
}

static const RegisteredTest<WireTroublesTest> registered;
#include "WireTroublesTest.moc"
