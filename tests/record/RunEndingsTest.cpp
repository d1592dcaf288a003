#include "tests/record/RunFollowerFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Ending = RecordedRun::Ending;

constexpr int breakIn = 0xC6;

} // namespace

class RunEndingsTest : public QObject, private RunFollowerFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void stopTellsWhere();
    void stopWithinACallSignTellsWhere();
    void stopWithinACallSignFarAwayTellsWhere();
    void textThatIsAllDeletedWasNotStopped();
    void stopDropsMessagesThatHadNotBegun();
    void aStopBehindTheEndIsNone();
    void aBreakInTellsWhere();
    void aStopBehindASpaceTellsWhere();
    void aLostLinkTellsWhere();
    void aPortThatGoesTellsWhere();
    void whatALostLinkLeftIsAnotherRun();
    void aKeyerThatIsGreetedAgainKeysItOnce();
    void aPauseEndsNothing();
    void deletedTextWasSentAllTheSame();
    void aLoggersTextThatIsAbortedWasStopped();
    void aCrashLosesTheRunInProgressAlone();
};

void RunEndingsTest::stopTellsWhere() {
    engine().setHisCallsign(u"W1AW"_s);
    setMessage(1, u"cq test ~"_s);
    press(1);
    echo(3);
    engine().stopMessageSending(nullptr);
    QCOMPARE(_runs.size(), 1);
    QCOMPARE(_runs[0].ending, Ending::Stopped);
    // The letter under way is finished by the keyer.
    QCOMPARE(_runs[0].text, u"CQ T"_s);
    QCOMPARE(_runs[0].rest, u"EST W1AW"_s);
}

void RunEndingsTest::stopWithinACallSignTellsWhere() {
    engine().setHisCallsign(u"W1AW"_s);
    setMessage(5, u"r ~ 5nn"_s);
    press(5);
    echo(3);
    engine().stopMessageSending(nullptr);
    QCOMPARE(_runs.at(0).text, u"R W1"_s);
    QCOMPARE(_runs.at(0).rest, u"AW 5NN"_s);
}

void RunEndingsTest::stopWithinACallSignFarAwayTellsWhere() {
    _bench->settings().setObject(4, CharactersAhead.key);
    engine().setHisCallsign(u"W1AW"_s);
    setMessage(5, u"~ k"_s);
    press(5);
    _bench->receive({'W'});
    engine().stopMessageSending(nullptr);
    QCOMPARE(_runs.at(0).text, u"W1"_s);
    QCOMPARE(_runs.at(0).rest, u"AW K"_s);
}

void RunEndingsTest::textThatIsAllDeletedWasNotStopped() {
    _bench->type(u"TEST"_s);
    echo(1);
    _bench->type({});
    echo(1);
    rest();
    QCOMPARE(_runs.size(), 1);
    QCOMPARE(_runs.at(0).text, u"TE"_s);
    QCOMPARE(_runs.at(0).ending, Ending::Sent);
}

void RunEndingsTest::stopDropsMessagesThatHadNotBegun() {
    press(1);
    press(2);
    echo(1);
    engine().stopMessageSending(nullptr);
    QCOMPARE(_runs.size(), 1);
    press(8);
    echoAll();
    QCOMPARE(_runs.size(), 2);
    QCOMPARE(_runs[1].text, u"AGN"_s);
    QCOMPARE(_runs[1].ending, Ending::Sent);
}

void RunEndingsTest::aStopBehindTheEndIsNone() {
    _bench->type(u"TU"_s);
    echoAll();
    engine().stopMessageSending(nullptr);
    QCOMPARE(texts(), QStringList{u"TU"_s});
    QCOMPARE(_runs[0].ending, Ending::Sent);
    rest();
    QCOMPARE(_runs.size(), 1);
}

void RunEndingsTest::aBreakInTellsWhere() {
    press(1);
    echo(2);
    _bench->receive({breakIn});
    QCOMPARE(_runs.size(), 1);
    QCOMPARE(_runs[0].ending, Ending::BrokenIn);
    QCOMPARE(_runs[0].text, u"CQ "_s);
    _bench->receive({' '});
    _bench->receive({idle});
    _bench->type(u"K"_s);
    echoAll();
    rest();
    QCOMPARE(_runs.size(), 2);
    QCOMPARE(_runs[1].text, u"K"_s);
}

/// From a space on two letters are with the keyer, of which it is at the first.
void RunEndingsTest::aStopBehindASpaceTellsWhere() {
    _bench->type(u"E TIK"_s);
    _bench->receive({0xC4});
    _bench->receive({'E'});
    _bench->receive({' '});
    _bench->receive({idle});
    _bench->receive({0xC4});
    QVERIFY(_bench->written().endsWith("45 20 54 49"));
    engine().stopMessageSending(nullptr);
    QCOMPARE(_runs.size(), 1);
    QCOMPARE(_runs[0].text, u"E T"_s);
    QCOMPARE(_runs[0].rest, u"IK"_s);
}

void RunEndingsTest::aLostLinkTellsWhere() {
    _bench->type(u"CQ"_s);
    echo(1);
    engine().serialPortWillBeClosed(_bench->port());
    QCOMPARE(_runs.size(), 1);
    QCOMPARE(_runs[0].ending, Ending::LinkLost);
    QCOMPARE(_runs[0].text, u"CQ"_s);
}

void RunEndingsTest::aPortThatGoesTellsWhere() {
    _bench->type(u"CQ CQ"_s);
    echo(1);
    engine().serialPortWasRemovedFromSystem(_bench->port());
    QCOMPARE(_runs.size(), 1);
    QCOMPARE(_runs[0].ending, Ending::LinkLost);
    QCOMPARE(_runs[0].text, u"CQ"_s);
    QCOMPARE(_runs[0].rest, u" CQ"_s);
}

void RunEndingsTest::whatALostLinkLeftIsAnotherRun() {
    _bench->type(u"CQ CQ"_s);
    echo(1);
    engine().serialPortWasRemovedFromSystem(_bench->port());
    QVERIFY(_bench->connect());
    _bench->receive({idle});
    echoAll();
    rest();
    QCOMPARE(_runs.size(), 2);
    QCOMPARE(_runs[1].text, u"CQ"_s);
    QCOMPARE(_runs[1].ending, Ending::Sent);
}

void RunEndingsTest::aKeyerThatIsGreetedAgainKeysItOnce() {
    _bench->type(u"CQ"_s);
    engine().greetAgain();
    _bench->receive({idle});
    echoAll();
    rest();
    QCOMPARE(texts(), QStringList{u"CQ"_s});
}

void RunEndingsTest::aPauseEndsNothing() {
    _bench->type(u"AB"_s);
    engine().setPauseState(1);
    echo(1);
    rest();
    QCOMPARE(_runs.size(), 0);
    engine().setPauseState(0);
    echoAll();
    rest();
    QCOMPARE(texts(), QStringList{u"AB"_s});
}

void RunEndingsTest::deletedTextWasSentAllTheSame() {
    _bench->type(u"AB"_s);
    echoAll();
    _bench->type(u"A"_s);
    _bench->type(u""_s);
    _bench->type(u"C"_s);
    echoAll();
    rest();
    QCOMPARE(texts().join(u""_s), u"ABC"_s);
}

void RunEndingsTest::aLoggersTextThatIsAbortedWasStopped() {
    LoggerQueue queue(engine(), *_speed);
    const LoggerAddress from{QHostAddress(QHostAddress::LocalHost), 4001};
    queue.take(LoggerRequest::read("cq test"), from);
    echo(2);
    // What the operator has typed behind it is sent yet.
    _bench->type(engine().keyboardBuffer() + u" K"_s);
    queue.take(LoggerRequest::read("\x1b"
                                   "4"),
               from);
    echoAll();
    rest();
    QCOMPARE(_runs.size(), 2);
    QCOMPARE(_runs[0].ending, Ending::Stopped);
    QCOMPARE(_runs[0].whole(), u"CQ TEST"_s);
    QCOMPARE(_runs[1].text, u"K"_s);
    QCOMPARE(_runs[1].ending, Ending::Sent);
}

void RunEndingsTest::aCrashLosesTheRunInProgressAlone() {
    setMessage(1, u"cq"_s);
    press(1);
    press(2);
    echo(3);
    const auto known = _runs;
    _follower.reset(); // what it has not told by now nobody hears
    QCOMPARE(known.size(), 1);
    QCOMPARE(known[0].source, (TextSource{TextSource::Kind::Message, 1}));
}

static const RegisteredTest<RunEndingsTest> registered;
#include "RunEndingsTest.moc"
