#include "keyer/ChosenSpeed.h"
#include "keyer/GeneralSettings.h"
#include "keyer/KeyerSettings.h"
#include "keyer/MessageSettings.h"
#include "tests/integration/WatchedStation.h"
#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/NamedProfiles.h"

#include <QTest>

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

/// A station whose keyer has these traits.
class TraitStation : public WatchedStation {
  public:
    explicit TraitStation(const char* traits)
        : WatchedStation(virtualkeyer::profileNamed(traits).value()) {}
};

} // namespace

/// What the application makes of boards that are no keyer of the second version in everything. A
/// row of the table in docs/keyers.md each.
class WireTraitsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aBootLoaderIsGreetedAgain();
    void aSilenceBehindTheGreetingIsNoFault();
    void aMemoryThatIsThrownAwayIsNotNoticed();
    void aSpeedThatStaysEndsWithAChosenOneOrAStop();
    void aKnobThatIsNotObeyedShowsAllTheSame();
    void aLateBreakInLeavesNothingToBeKeyed_data();
    void aLateBreakInLeavesNothingToBeKeyed();
    void anEchoBeforeTheBreakInLeavesNothingToBeKeyed();
    void keptTextIsTwoLettersAtMost();
    void keptTextIsClearedWhereSomeAreAhead();
    void aBareXoffHoldsTheTextBack();
    void aButtonAtReleaseSendsItsMessageOnce();
    void aButtonThatBreaksInDropsTheText();
    void aTuneThatYieldsIsOver_data();
    void aTuneThatYieldsIsOver();
    void aTuneThatIsSwallowedLeavesTheTextAlone();
    void aLetterBehindAStopMayBeSwallowed();
};

void WireTraitsTest::aBootLoaderIsGreetedAgain() {
    TraitStation station("boot-loader");
    QVERIFY(station.connect());
    station.type(u"PARIS"_s);
    station.pass(10s);
    QCOMPARE(station.engine().speedString(), u"20 WPM"_s);
    QCOMPARE(station.keyed(), u"PARIS"_s);
    QVERIFY(!station.hasComplained());
    QVERIFY(!station.isKeyDown());
}

void WireTraitsTest::aSilenceBehindTheGreetingIsNoFault() {
    TraitStation station("slow-greeting");
    QVERIFY(station.connect());
    station.type(u"PARIS"_s);
    station.pass(10s);
    QCOMPARE(station.engine().speedString(), u"20 WPM"_s);
    QCOMPARE(station.keyed(), u"PARIS"_s);
    QVERIFY(!station.hasComplained());
    QCOMPARE(station.written().count("00 02"), 1);
}

void WireTraitsTest::aMemoryThatIsThrownAwayIsNotNoticed() {
    TraitStation station("no-memory-load");
    QVERIFY(station.setUp());
    station.settings().setObject(u"PARIS"_s, WKStandaloneMessages[0]);
    QVERIFY(station.engine().writeEeprom(nullptr));
    QVERIFY(station.waitForQuiet());
    station.engine().sendStandaloneMessage(1);
    station.pass(10s);
    QCOMPARE(station.keyed(), QString());
    station.type(u"PARIS"_s);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.keyed(), u"PARIS"_s);
    QVERIFY(!station.hasComplained());
}

void WireTraitsTest::aSpeedThatStaysEndsWithAChosenOneOrAStop() {
    TraitStation station("speed-stays");
    ChosenSpeed speed(station.engine(), nullptr);
    QVERIFY(station.setUp());
    station.engine().changeHSCWMode(&on);
    station.type(u"E"_s);
    QVERIFY(station.waitForQuiet());
    station.engine().changeHSCWMode(&off);
    station.type(u"EE"_s);
    QVERIFY(station.waitForQuiet());
    // The keyer is told to go back to the knob, and goes on as fast.
    QCOMPARE(station.written(), QByteArray("1d 0a 45 02 00 45"));
    QCOMPARE(station.registers().wpm(), 200);
    station.engine().stopMessageSending(nullptr);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.registers().wpm(), 20);

    speed.choose(25);
    QVERIFY(station.waitForQuiet());
    speed.backToKnob();
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.registers().wpm(), 25);
    speed.choose(20);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.registers().wpm(), 20);
}

void WireTraitsTest::aKnobThatIsNotObeyedShowsAllTheSame() {
    TraitStation station("idle-knob");
    ChosenSpeed speed(station.engine(), nullptr);
    QVERIFY(station.setUp());
    station.setPot(24);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.engine().speedString(), u"24 WPM"_s);
    QCOMPARE(station.registers().wpm(), 20);
    speed.choose(24);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.registers().wpm(), 24);
}

void WireTraitsTest::aLateBreakInLeavesNothingToBeKeyed_data() {
    QTest::addColumn<std::chrono::milliseconds>("delay");
    for (const auto delay : {20ms, 90ms, 160ms}) {
        QTest::addRow("%d ms", static_cast<int>(delay.count())) << delay;
    }
}

/// At every moment of a word, so that the break-in comes before, with and behind each echo.
void WireTraitsTest::aLateBreakInLeavesNothingToBeKeyed() {
    QFETCH(const std::chrono::milliseconds, delay);
    virtualkeyer::Profile profile;
    profile.breakInDelay = delay;
    for (std::chrono::milliseconds moment{50}; moment < std::chrono::milliseconds{1500};
         moment += std::chrono::milliseconds{210}) {
        Station station(profile);
        QVERIFY(station.setUp());
        station.type(u"PARIS PARIS"_s);
        station.pass(moment);
        const auto before = station.edges().size();
        const bool wasDown = station.isKeyDown();
        station.setPaddle(true, false);
        station.pass(20ms);
        station.setPaddle(false, false);
        QVERIFY(station.waitForQuiet());
        // The element under way, and the paddle's.
        QCOMPARE(station.edges().size(), before + (wasDown ? 3 : 2));
        QVERIFY(!station.isKeyDown());
        QCOMPARE(station.engine().keyboardBuffer(), QString());
        QVERIFY(!station.engine().mayBeKeying());
    }
}

void WireTraitsTest::anEchoBeforeTheBreakInLeavesNothingToBeKeyed() {
    TraitStation station("echo-before-break-in,late-break-in");
    QVERIFY(station.setUp());
    station.type(u"PARIS"_s);
    QVERIFY(station.waitForEdges(3)); // within the P
    station.tap();
    QVERIFY(station.waitForQuiet());
    // The echo had the next letter sent, which the keyer threw away.
    QCOMPARE(station.edges().size(), 6U);
    QVERIFY(station.written().startsWith("50 41"));
    QCOMPARE(station.engine().keyboardBuffer(), QString());
    QVERIFY(!station.engine().mayBeKeying());
    QVERIFY(!station.isKeyDown());
}

/// The letters that what the keyer told before it told of the break-in had sent: an echo and that
/// it was idle. The text behind them is dropped.
void WireTraitsTest::keptTextIsTwoLettersAtMost() {
    std::size_t most = 0;
    for (std::chrono::milliseconds moment{50}; moment < std::chrono::milliseconds{700};
         moment += std::chrono::milliseconds{65}) {
        TraitStation station("kept-text,late-break-in");
        QVERIFY(station.setUp());
        station.type(u"EEEEEEEEEE"_s);
        station.pass(moment);
        const auto before = station.edges().size();
        const bool wasDown = station.isKeyDown();
        station.tap();
        station.pass(1min);
        const auto rest = station.edges().size() - before - (wasDown ? 3 : 2);
        most = std::max(most, rest);
        QVERIFY2(rest <= 4, QByteArray::number(qulonglong(rest)));
        QVERIFY(!station.isKeyDown());
        QCOMPARE(station.engine().keyboardBuffer(), QString());
        QVERIFY(!station.engine().mayBeKeying());
    }
    QCOMPARE(most, 4U); // or nothing was tried
}

/// With some ahead the engine clears the keyer behind a break-in.
void WireTraitsTest::keptTextIsClearedWhereSomeAreAhead() {
    for (std::chrono::milliseconds moment{50}; moment < std::chrono::milliseconds{700};
         moment += std::chrono::milliseconds{65}) {
        TraitStation station("kept-text,late-break-in");
        station.settings().setObject(2, CharactersAhead.key);
        QVERIFY(station.setUp());
        station.type(u"EEEEEEEEEE"_s);
        station.pass(moment);
        const auto before = station.edges().size();
        const bool wasDown = station.isKeyDown();
        station.tap();
        station.pass(1min);
        QCOMPARE(station.edges().size(), before + (wasDown ? 3 : 2));
        QVERIFY(!station.isKeyDown());
    }
}

void WireTraitsTest::aBareXoffHoldsTheTextBack() {
    TraitStation station("bare-xoff");
    QVERIFY(station.setUp());
    station.type(u"E"_s + QString(150, u'|') + u"T"_s);
    station.pass(3s);
    QVERIFY(station.received().contains("c1"));
    QCOMPARE(station.engine().pauseState(), 1);
    // The keyer waits for the operator, who is told.
    station.pass(1min);
    QCOMPARE(station.engine().pauseState(), 1);
    QVERIFY(station.isComplaining());
    station.engine().setPauseState(0);
    station.pass(1min);
    QCOMPARE(station.keyed(), u"E T"_s);
    QVERIFY(!station.isKeyDown());
    QVERIFY(!station.isComplaining());
}

void WireTraitsTest::aButtonAtReleaseSendsItsMessageOnce() {
    TraitStation station("buttons-at-release");
    QVERIFY(station.setUp());
    station.settings().setObject(u"CQ"_s, messageSettings[0].textKey);
    station.settings().setObject(u"TU"_s, messageSettings[1].textKey);
    station.setPushButtons(1);
    station.pass(1s);
    QCOMPARE(station.written(), QByteArray());
    station.setPushButtons(0);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.keyed(), u"CQ"_s);
    // Of two that were held together the later one counts, as on any keyer.
    station.setPushButtons(1);
    station.setPushButtons(3);
    station.setPushButtons(0);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.keyed(), u"TU"_s);
}

void WireTraitsTest::aButtonThatBreaksInDropsTheText() {
    TraitStation station("button-breaks-in");
    QVERIFY(station.setUp());
    station.settings().setObject(u"CQ"_s, messageSettings[0].textKey);
    station.type(u"PARIS PARIS"_s);
    QVERIFY(station.waitForEdges(9)); // within the A
    station.setPushButtons(1);
    station.pass(100ms);
    station.setPushButtons(0);
    station.pass(1min);
    QCOMPARE(station.keyed(), u"PA"_s);
    QCOMPARE(station.engine().keyboardBuffer(), QString());
    QVERIFY(!station.engine().mayBeKeying());
    QVERIFY(!station.isKeyDown());
    station.setPushButtons(1);
    station.setPushButtons(0);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.keyed(), u"CQ"_s);
}

void WireTraitsTest::aTuneThatYieldsIsOver_data() {
    QTest::addColumn<QByteArray>("to");
    QTest::newRow("the paddle") << "paddle"_ba;
    QTest::newRow("a letter") << "letter"_ba;
    QTest::newRow("a message") << "message"_ba;
}

void WireTraitsTest::aTuneThatYieldsIsOver() {
    QFETCH(const QByteArray, to);
    TraitStation station("tune-yields");
    QVERIFY(station.setUp());
    station.settings().setObject(u"E"_s, WKStandaloneMessages[0]);
    QVERIFY(station.engine().writeEeprom(nullptr));
    QVERIFY(station.waitForQuiet());
    station.engine().tune(&on);
    station.pass(1s);
    QVERIFY(station.isKeyDown());
    if (to == "paddle") {
        station.tap();
    } else if (to == "letter") {
        station.type(u"E"_s);
    } else {
        station.engine().sendStandaloneMessage(1);
    }
    QVERIFY(station.waitForQuiet());
    // The tune, and one dit.
    QCOMPARE(station.edges().size(), 4U);
    QVERIFY(!station.isKeyDown());
    QVERIFY(!station.engine().mayBeKeying());
    station.engine().tune(&off);
    station.pass(1min);
    QCOMPARE(station.edges().size(), 4U);
}

void WireTraitsTest::aTuneThatIsSwallowedLeavesTheTextAlone() {
    TraitStation station("no-tune-in-text");
    QVERIFY(station.setUp());
    station.type(u"PARIS"_s);
    QVERIFY(station.waitForEdges(3));
    station.engine().tune(&on);
    QVERIFY(station.waitForQuiet());
    station.engine().tune(&off);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.keyed(), u"PARIS"_s);
    QVERIFY(!station.isKeyDown());
    QVERIFY(!station.engine().mayBeKeying());
}

/// Who types on within a tenth of a second; what comes later is keyed whole.
void WireTraitsTest::aLetterBehindAStopMayBeSwallowed() {
    for (const std::chrono::milliseconds pause : {0ms, 150ms}) {
        TraitStation station("deaf-after-clear");
        QVERIFY(station.setUp());
        station.type(u"PARIS"_s);
        QVERIFY(station.waitForEdges(9)); // within the A
        station.engine().stopMessageSending(nullptr);
        station.pass(pause);
        station.type(u"TEST"_s);
        station.pass(1min);
        QCOMPARE(station.keyed(), pause.count() == 0 ? u"PAST"_s : u"PATEST"_s);
        QVERIFY(!station.isKeyDown());
        QVERIFY(!station.engine().mayBeKeying());
    }
}

static const RegisteredTest<WireTraitsTest> registered;
#include "WireTraitsTest.moc"
