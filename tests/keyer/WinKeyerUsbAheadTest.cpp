#include "keyer/GeneralSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// A keyer far away, to which several characters are on their way at a time.
class WinKeyerUsbAheadTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _bench.reset(); }

    void soManyGoAtOnceAndEachEchoLetsOneGo();
    void allOnTheirWayAreMarked();
    void whatIsTypedGoesWhileThereIsRoom();
    void aMessageWaitsForRoom();
    void commandsAreNotSentAhead_data();
    void commandsAreNotSentAhead();
    void aHalfSpaceIsText();
    void theirCallIsSentAheadAndToldWhenItIsKeyed();
    void aCallStillBeingTypedIsReadWhenItsTurnComes();
    void aStopClearsTheKeyerBehindAll();
    void echoesBehindAStopLetNothingCountAsKeyed();
    void aBreakInDropsWhatReachesTheKeyerBehindIt();
    void aBreakInAtRestWritesNothing();
    void nothingNewGoesWhilePaused();
    void deletingKeepsTheFlightWithinTheText();
    void whatReplacesDeletedTextIsInFlightUntilItsOwnEcho();
    void anIdleReportIsOlderThanWhatIsOnItsWay();
    void echoesThatWereLostEndWithTheKeyersSilence();
    void whatIsTypedMeanwhileIsWaitedForAnew();
    void aPauseIsNoSilence();
    void anEchoWhilePausedIsNoSilenceEither();
    void aStopAtRestIsOverWithTheKeyersSilence();
    void answersToTheGreetingAreNoEchoes();
    void unheardTextIsSentOnceMore();
    void aNewLinkHasNothingOnItsWay();
    void aNewSettingHoldsFromTheNextTextOn();
    void charactersOnTheirWayCountAsSending();

  private:
    [[nodiscard]] WinKeyerUsb& engine() { return _bench->engine(); }
    /// First character in flight, and first that is still to be sent.
    [[nodiscard]] std::pair<qsizetype, qsizetype> flight() {
        return {engine().inFlightIndex(), engine().outputBufferIndex()};
    }

    std::optional<EngineBench> _bench;
};

namespace {
using Flight = std::pair<qsizetype, qsizetype>;
}

void WinKeyerUsbAheadTest::init() {
    _bench.emplace();
    _bench->settings().setObject(3, CharactersAhead.key);
    QVERIFY(_bench->connect());
    _bench->receive({'U'});
    _bench->receive({0x17});
    _bench->receive({0xC0});
}

void WinKeyerUsbAheadTest::soManyGoAtOnceAndEachEchoLetsOneGo() {
    engine().appendMessage(u"CQ DX"_s);
    QCOMPARE(_bench->written(), "43 51 20");
    _bench->receive({'C'});
    QCOMPARE(_bench->written(), "44");
    _bench->receive({'Q'});
    QCOMPARE(_bench->written(), "58");
    _bench->receive({' '});
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbAheadTest::allOnTheirWayAreMarked() {
    engine().appendMessage(u"CQ DX"_s);
    QCOMPARE(flight(), Flight(0, 3));
    _bench->receive({'C'});
    QCOMPARE(flight(), Flight(1, 4));
    _bench->receive({'Q'});
    QCOMPARE(flight(), Flight(2, 5));
    _bench->receive({' '});
    QCOMPARE(flight(), Flight(3, 5));
    _bench->receive({'D'});
    _bench->receive({'X'});
    QCOMPARE(flight(), Flight(5, 5));
    QVERIFY(!engine().isAwaitingEcho());
}

void WinKeyerUsbAheadTest::whatIsTypedGoesWhileThereIsRoom() {
    _bench->type(u"C"_s);
    _bench->type(u"CQ"_s);
    QCOMPARE(_bench->written(), "43 51");
    _bench->type(u"CQ D"_s);
    QCOMPARE(_bench->written(), "20");
    _bench->receive({'C'});
    QCOMPARE(_bench->written(), "44");
}

void WinKeyerUsbAheadTest::aMessageWaitsForRoom() {
    engine().appendMessage(u"CQCQ"_s);
    engine().appendMessage(u"DX"_s);
    engine().appendMessage(u"DX"_s);
    QCOMPARE(_bench->written(), "43 51 43");
}

void WinKeyerUsbAheadTest::commandsAreNotSentAhead_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("high speed") << u"AB%C"_s << QByteArray("1d 0a 43");
    QTest::newRow("its end") << u"AB^C"_s << QByteArray("1e 43");
    QTest::newRow("joined letters") << u"AB{ARC"_s << QByteArray("1b 41 52 43");
    QTest::newRow("two such") << u"AB{AR{SKC"_s << QByteArray("1b 41 52 1b 53 4b 43");
    QTest::newRow("their call") << u"AB~"_s << QByteArray("57 31");
}

void WinKeyerUsbAheadTest::commandsAreNotSentAhead() {
    QFETCH(const QString, text);
    QFETCH(const QByteArray, command);
    engine().setHisCallsign(u"W1"_s);
    engine().setHscwState(1);
    engine().appendMessage(text);
    QCOMPARE(_bench->written(), "41 42");
    _bench->receive({'A'});
    QCOMPARE(_bench->written(), "");
    QCOMPARE(engine().hscwState(), 1);
    QVERIFY(engine().isSending());
    _bench->receive({'B'});
    QCOMPARE(_bench->written(), command);
}

void WinKeyerUsbAheadTest::aHalfSpaceIsText() {
    engine().appendMessage(u"A|B||CD"_s);
    QCOMPARE(_bench->written(), "41 7c 42 7c 7c 43");
    _bench->receive({'A'});
    QCOMPARE(flight(), Flight(1, 7));
    _bench->receive({'|'}); // which some keyers echo
    QCOMPARE(flight(), Flight(1, 7));
    _bench->receive({'B'});
    QCOMPARE(flight(), Flight(3, 7));
}

void WinKeyerUsbAheadTest::theirCallIsSentAheadAndToldWhenItIsKeyed() {
    QList<std::pair<qsizetype, qsizetype>> told;
    QObject::connect(&engine(), &WinKeyerUsb::callsignSent, &engine(), [&](qsizetype position) {
        told.append({position, engine().inFlightIndex()});
    });
    engine().setHisCallsign(u"W1"_s);
    engine().appendMessage(u"~ K"_s);
    QCOMPARE(_bench->written(), "57 31 20");
    QCOMPARE(flight(), Flight(0, 2));
    _bench->receive({'W'});
    QCOMPARE(_bench->written(), "4b");
    QCOMPARE(flight(), Flight(0, 3));
    QVERIFY(told.isEmpty());
    _bench->receive({'1'});
    QCOMPARE(flight(), Flight(1, 3));
    QCOMPARE(told, (QList<std::pair<qsizetype, qsizetype>>{{0, 1}}));
}

void WinKeyerUsbAheadTest::aCallStillBeingTypedIsReadWhenItsTurnComes() {
    engine().appendMessage(u"E ~"_s);
    engine().setHisCallsign(u"W1A"_s);
    _bench->receive({'E'});
    engine().setHisCallsign(u"W1AW"_s);
    static_cast<void>(_bench->written());
    _bench->receive({' '});
    QCOMPARE(_bench->written(), "57 31 41");
}

void WinKeyerUsbAheadTest::aStopClearsTheKeyerBehindAll() {
    engine().appendMessage(u"CQ DX"_s);
    engine().stopMessageSending(nullptr);
    QCOMPARE(_bench->written(), "43 51 20 0a");
    for (const int late : {0x43, 0xC0, 0x51}) {
        _bench->receive({late});
    }
    _bench->clock().advance(1h);
    QCOMPARE(_bench->written(), "");
    QVERIFY(!engine().mayBeKeying());
    QCOMPARE(flight(), Flight(0, 0));
}

void WinKeyerUsbAheadTest::echoesBehindAStopLetNothingCountAsKeyed() {
    engine().appendMessage(u"CQ DX"_s);
    engine().stopMessageSending(nullptr);
    _bench->type(u"CQ"_s);
    _bench->receive({'C'});
    QCOMPARE(flight(), Flight(0, 2));
    _bench->receive({0xC0});
    _bench->receive({'Q'});
    QCOMPARE(flight(), Flight(0, 2));
    _bench->receive({'C'});
    QCOMPARE(flight(), Flight(1, 2));
}

void WinKeyerUsbAheadTest::aBreakInDropsWhatReachesTheKeyerBehindIt() {
    engine().appendMessage(u"CQ DX"_s);
    static_cast<void>(_bench->written());
    _bench->receive({0xC6});
    QCOMPARE(_bench->written(), "0a");
    QVERIFY(engine().keyboardBuffer().isEmpty());
    _bench->receive({'C'});
    _bench->receive({0xC4});
    _bench->receive({0xC0});
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbAheadTest::aBreakInAtRestWritesNothing() {
    _bench->receive({0xC6});
    _bench->receive({0xC4});
    _bench->receive({0xC0});
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbAheadTest::nothingNewGoesWhilePaused() {
    engine().appendMessage(u"CQ DX"_s);
    engine().setPauseState(1);
    QCOMPARE(_bench->written(), "43 51 20 06 01");
    _bench->receive({'C'});
    QCOMPARE(_bench->written(), "");
    QCOMPARE(flight(), Flight(1, 3));
    engine().setPauseState(0);
    QCOMPARE(_bench->written(), "06 00 44");
}

void WinKeyerUsbAheadTest::deletingKeepsTheFlightWithinTheText() {
    _bench->type(u"CQ DX"_s);
    _bench->type(u"C"_s);
    QCOMPARE(flight(), Flight(0, 1));
    _bench->type({});
    QCOMPARE(flight(), Flight(0, 0));
    _bench->type(u"K"_s);
    QCOMPARE(_bench->written(), "43 51 20");
    _bench->receive({'C'});
    QCOMPARE(_bench->written(), "4b");
    QCOMPARE(flight(), Flight(0, 1));
    for (const char echo : {'Q', ' ', 'K'}) {
        _bench->receive({echo});
    }
    QCOMPARE(flight(), Flight(1, 1));
}

void WinKeyerUsbAheadTest::whatReplacesDeletedTextIsInFlightUntilItsOwnEcho() {
    _bench->type(u"CQ DX"_s);
    _bench->type(u"C"_s);
    _bench->type(u"CA"_s);
    _bench->receive({'C'});
    QCOMPARE(_bench->written(), "43 51 20 41");
    for (const char echo : {'Q', ' '}) {
        _bench->receive({echo});
        QCOMPARE(flight(), Flight(1, 2));
    }
    _bench->receive({'A'});
    QCOMPARE(flight(), Flight(2, 2));
}

void WinKeyerUsbAheadTest::anIdleReportIsOlderThanWhatIsOnItsWay() {
    engine().appendMessage(u"CQ DX"_s);
    static_cast<void>(_bench->written());
    _bench->receive({0xC0});
    QCOMPARE(_bench->written(), "");
    QVERIFY(engine().isAwaitingEcho());
    QVERIFY(engine().mayBeKeying());
    _bench->clock().advance(1900ms);
    _bench->receive({0xC4});
    _bench->clock().advance(1h);
    QCOMPARE(flight(), Flight(0, 3));
}

void WinKeyerUsbAheadTest::echoesThatWereLostEndWithTheKeyersSilence() {
    const QSignalSpy counted(&engine(), &WinKeyerUsb::countedAsKeyed);
    engine().appendMessage(u"CQ DX"_s);
    static_cast<void>(_bench->written());
    _bench->receive({0xC4});
    _bench->receive({0xC0});
    _bench->clock().advance(1999ms);
    QCOMPARE(_bench->written(), "");
    _bench->clock().advance(1ms);
    QCOMPARE(_bench->written(), "44 58");
    QCOMPARE(counted.count(), 1);
    QCOMPARE(flight(), Flight(3, 5));
    _bench->receive({0xC4});
    _bench->receive({0xC0});
    _bench->clock().advance(2s);
    QVERIFY(!engine().isAwaitingEcho());
    QVERIFY(!engine().mayBeKeying());
    QCOMPARE(flight(), Flight(5, 5));
}

void WinKeyerUsbAheadTest::whatIsTypedMeanwhileIsWaitedForAnew() {
    _bench->type(u"C"_s);
    _bench->receive({0xC0});
    _bench->clock().advance(1900ms);
    _bench->type(u"CQ"_s);
    _bench->clock().advance(1900ms);
    QCOMPARE(flight(), Flight(0, 2));
    _bench->clock().advance(100ms);
    QCOMPARE(flight(), Flight(2, 2));
}

void WinKeyerUsbAheadTest::aPauseIsNoSilence() {
    _bench->receive({0xC0});
    engine().appendMessage(u"CQ DX"_s);
    _bench->receive({0xC0});
    engine().setPauseState(1);
    _bench->clock().advance(1h);
    QCOMPARE(flight(), Flight(0, 3));
    engine().setPauseState(0);
    _bench->clock().advance(2s);
    QCOMPARE(flight(), Flight(3, 5));
}

/// The letter that a stop found under way is echoed behind the report that it has been done.
void WinKeyerUsbAheadTest::anEchoWhilePausedIsNoSilenceEither() {
    engine().appendMessage(u"5NN"_s);
    engine().stopMessageSending(nullptr);
    engine().appendMessage(u"K"_s);
    _bench->receive({0xC4});
    _bench->receive({0xC0});
    engine().setPauseState(1);
    _bench->receive({'5'});
    _bench->clock().advance(1h);
    QCOMPARE(flight(), Flight(0, 1));
    QVERIFY(engine().mayBeKeying());
}

/// A keyer that was not yet keying answers a Clear Buffer with nothing.
void WinKeyerUsbAheadTest::aStopAtRestIsOverWithTheKeyersSilence() {
    engine().appendMessage(u"CQ"_s);
    engine().stopMessageSending(nullptr);
    QVERIFY(engine().mayBeKeying());
    _bench->clock().advance(2s);
    QVERIFY(!engine().mayBeKeying());
}

void WinKeyerUsbAheadTest::answersToTheGreetingAreNoEchoes() {
    engine().greetAgain();
    _bench->type(u"CQ DX"_s);
    static_cast<void>(_bench->written());
    _bench->receive({'U'});
    _bench->receive({0x17});
    _bench->receive({0x8C});
    QCOMPARE(_bench->written(), "");
    QCOMPARE(flight(), Flight(0, 3));
}

void WinKeyerUsbAheadTest::unheardTextIsSentOnceMore() {
    engine().setHisCallsign(u"W1"_s);
    engine().appendMessage(u"~DX"_s);
    static_cast<void>(_bench->written());
    engine().greetAgain();
    static_cast<void>(_bench->written());
    QCOMPARE(flight(), Flight(0, 0));
    _bench->receive({'U'});
    QCOMPARE(_bench->written(), "57 31 44");
}

void WinKeyerUsbAheadTest::aNewLinkHasNothingOnItsWay() {
    engine().appendMessage(u"CQ DX"_s);
    engine().serialPortWasRemovedFromSystem(_bench->port());
    QVERIFY(_bench->connect());
    _bench->receive({'U'});
    QCOMPARE(_bench->written(), "44 58");
}

void WinKeyerUsbAheadTest::aNewSettingHoldsFromTheNextTextOn() {
    engine().appendMessage(u"CQ DX"_s);
    _bench->settings().setObject(1, CharactersAhead.key);
    static_cast<void>(_bench->written());
    for (const char echo : {'C', 'Q', ' ', 'D', 'X'}) {
        _bench->receive({echo});
    }
    QCOMPARE(_bench->written(), "44 58");
    engine().appendMessage(u"E"_s);
    QCOMPARE(_bench->written(), "20");
    _bench->receive({' '});
    QCOMPARE(_bench->written(), "45");
}

void WinKeyerUsbAheadTest::charactersOnTheirWayCountAsSending() {
    _bench->type(u"E"_s);
    QVERIFY(engine().isSending());
    _bench->receive({'E'});
    QVERIFY(!engine().isSending());
}

static const RegisteredTest<WinKeyerUsbAheadTest> registered;
#include "WinKeyerUsbAheadTest.moc"
