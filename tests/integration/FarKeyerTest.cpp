#include "tests/integration/SpaceStretch.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// A keyer at the end of a line with delay, in virtual time.
class FarKeyerTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void spacesStayRightWithEnoughAhead_data();
    void spacesStayRightWithEnoughAhead();
    void nothingIsKeyedBehindAStop_data();
    void nothingIsKeyedBehindAStop();
    void aBreakInLeavesNothingToBeKeyed();
    void whatArrivesBehindABreakInIsCleared();
    void aPauseHoldsWhatIsOnItsWay();
    void lostEchoesDelayTheRestAndEndNothing();

  private:
    [[nodiscard]] static QByteArray keyed(const VirtualTimeLink& link, std::size_t from = 0) {
        QByteArray text;
        for (auto i = from; i < link.keyed().size(); ++i) {
            text.append(static_cast<char>(link.keyed()[i].value));
        }
        return text;
    }
};

void FarKeyerTest::spacesStayRightWithEnoughAhead_data() {
    QTest::addColumn<int>("roundTrip");
    QTest::addColumn<int>("ahead");
    QTest::addColumn<int>("wpm");
    QTest::addColumn<bool>("isRight");
    QTest::newRow("one, 100 ms, 20 wpm") << 100 << 1 << 20 << true;
    QTest::newRow("one, 100 ms, 25 wpm") << 100 << 1 << 25 << false;
    QTest::newRow("three, 100 ms, 60 wpm") << 100 << 3 << 60 << true;
    QTest::newRow("two, 400 ms, 40 wpm") << 400 << 2 << 40 << false;
    QTest::newRow("five, 400 ms, 40 wpm") << 400 << 5 << 40 << true;
}

/// The letter spaces; with one ahead a word space may be too long at any speed.
void FarKeyerTest::spacesStayRightWithEnoughAhead() {
    QFETCH(const int, roundTrip);
    QFETCH(const int, ahead);
    QFETCH(const int, wpm);
    QFETCH(const bool, isRight);
    VirtualTimeLink link({});
    const auto stretch = SpaceStretch::measure(
        link,
        {.wpm = wpm, .delay = std::chrono::milliseconds(roundTrip) / 2, .charactersAhead = ahead});
    QCOMPARE(stretch.letters.late == 0, isRight);
    if (ahead > 1) {
        QCOMPARE(stretch.isNone(), isRight);
    }
}

void FarKeyerTest::nothingIsKeyedBehindAStop_data() {
    QTest::addColumn<int>("ahead");
    for (int ahead = 1; ahead <= 8; ++ahead) {
        QTest::addRow("%d ahead", ahead) << ahead;
    }
}

/// Stopped at any moment; the keyer ends the letter that it is in when it hears.
void FarKeyerTest::nothingIsKeyedBehindAStop() {
    QFETCH(const int, ahead);
    constexpr std::chrono::milliseconds duration{3000};
    constexpr std::chrono::milliseconds step{37};
    constexpr std::chrono::milliseconds delay{100};
    constexpr std::chrono::milliseconds longestOutput{83}; // nine bytes
    VirtualTimeLink link({});
    for (std::chrono::milliseconds moment{0}; moment < duration; moment += step) {
        link.startOver({.wpm = 30, .delay = 100ms, .charactersAhead = ahead});
        link.engine().appendMessage(u"CQ TEST DE N0CALL"_s);
        link.handOn();
        link.pass(moment);
        link.engine().stopMessageSending(nullptr);
        link.handOn();
        const auto stopped = link.now();
        static_cast<void>(link.runUntilQuiet());
        constexpr char clearBuffer = 0x0A;
        QCOMPARE(static_cast<char>(link.arrived().back().value), clearBuffer);
        const auto heard = link.arrived().back().at;
        QVERIFY(heard - stopped < delay + longestOutput);
        const auto behind = std::count_if(link.keyed().begin(), link.keyed().end(),
                                          [&](const auto& each) { return each.at > heard; });
        QVERIFY2(behind <= 1, keyed(link));
        QVERIFY(QByteArray("CQ TEST DE N0CALL").startsWith(keyed(link)));
        QVERIFY(!link.engine().mayBeKeying());
    }
}

void FarKeyerTest::aBreakInLeavesNothingToBeKeyed() {
    constexpr std::chrono::milliseconds duration{3000};
    constexpr std::chrono::milliseconds step{37};
    VirtualTimeLink link({});
    for (std::chrono::milliseconds moment{0}; moment < duration; moment += step) {
        link.startOver({.wpm = 30, .delay = 100ms, .charactersAhead = 8});
        link.engine().appendMessage(u"CQ TEST DE N0CALL"_s);
        link.handOn();
        link.pass(moment);
        link.setPaddle(true, false);
        link.pass(20ms);
        link.setPaddle(false, false);
        static_cast<void>(link.runUntilQuiet());
        QVERIFY(link.engine().keyboardBuffer().isEmpty());
        QVERIFY(!link.engine().mayBeKeying());
        // Of what was written when the paddle was touched the keyer throws away what arrives while
        // it is used; that lasts longer than the line does.
        QVERIFY2(QByteArray("CQ TEST DE N0CALL").startsWith(keyed(link)), keyed(link));
    }
}

/// The paddle is at rest again before the engine has heard of it.
void FarKeyerTest::whatArrivesBehindABreakInIsCleared() {
    constexpr std::chrono::milliseconds end{1200};
    constexpr std::chrono::milliseconds step{7};
    constexpr std::chrono::milliseconds delay{200};
    VirtualTimeLink link({});
    int strays = 0;
    for (std::chrono::milliseconds moment{600}; moment < end; moment += step) {
        link.startOver({.wpm = 99, .delay = 200ms, .charactersAhead = 8});
        link.engine().appendMessage(u"CQ TEST DE N0CALL CQ TEST DE N0CALL"_s);
        link.handOn();
        link.pass(moment);
        link.setPaddle(true, false);
        link.pass(5ms);
        link.setPaddle(false, false);
        static_cast<void>(link.runUntilQuiet());
        constexpr char clearBuffer = 0x0A;
        QCOMPARE(static_cast<char>(link.arrived().back().value), clearBuffer);
        const auto heard = link.arrived().back().at;
        for (const auto& each : link.keyed()) {
            QVERIFY(each.begun <= heard);
            strays += each.begun > heard - delay ? 1 : 0;
        }
    }
    QVERIFY(strays > 0); // or nothing was tried
}

void FarKeyerTest::aPauseHoldsWhatIsOnItsWay() {
    VirtualTimeLink link({.wpm = 30, .delay = 100ms, .charactersAhead = 4});
    link.engine().appendMessage(u"CQ TEST DE N0CALL"_s);
    link.handOn();
    link.pass(1s);
    link.engine().setPauseState(1);
    link.handOn();
    link.pass(1s);
    const auto before = link.keyed().size();
    const auto place = link.engine().inFlightIndex();
    link.pass(1h);
    QCOMPARE(link.keyed().size(), before);
    QCOMPARE(link.engine().inFlightIndex(), place);
    QVERIFY(link.engine().outputBufferIndex() > place);
    link.engine().setPauseState(0);
    link.handOn();
    static_cast<void>(link.runUntilQuiet());
    QCOMPARE(keyed(link), "CQ TEST DE N0CALL");
}

void FarKeyerTest::lostEchoesDelayTheRestAndEndNothing() {
    VirtualTimeLink link({});
    for (const int lost : {1, 2, 3, 17}) {
        link.startOver({.wpm = 30, .delay = 50ms, .charactersAhead = 3});
        link.engine().appendMessage(u"CQ TEST DE N0CALL"_s);
        link.handOn();
        link.pass(900ms);
        link.loseEchoes(lost);
        static_cast<void>(link.runUntilQuiet());
        QCOMPARE(keyed(link), "CQ TEST DE N0CALL");
        QCOMPARE(link.engine().inFlightIndex(), 17);
        QVERIFY(!link.engine().isAwaitingEcho());
        QVERIFY(!link.engine().mayBeKeying());
    }
}

static const RegisteredTest<FarKeyerTest> registered;
#include "FarKeyerTest.moc"
