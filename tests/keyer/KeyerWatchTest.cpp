#include "keyer/KeyerWatch.h"

#include "keyer/WinKeyerUsb.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QByteArray greeting = "13 13 13 13 00 04 55 00 02 00 0b "
                            "0f 15 00 8a 32 00 0a 0d 20 00 00 0a 32 32 06 00 07";
const QByteArray keyUpAndClear = " 0b 00 0a";

} // namespace

class KeyerWatchTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void aKeyerThatAnswersIsGreetedOnce();
    void aSilentKeyerIsGreetedTwiceMoreAndThenReported();
    void anAnswerToTheSecondGreetingIsEnough();
    void textThatWentUnheardGoesAgain();
    void askingAgainBeginsAnew();
    void askingAgainForgetsTheText();
    void aKeyerThatIsHeardAfterAllSettlesIt();
    void aLinkThatEndsSettlesIt();
    void aLinkThatEndsIsNotGreeted();
    void withoutAKeyerNothingIsWaitedFor();
    void aCharacterWithoutAnEchoIsReported();
    void aTuneGoesOnThroughASilence();
    void aPauseIsNoSilence();
    void aFullBufferMayFallSilent();
    void everyCharacterHasItsTime();
    void afterASleepTheKeyerIsGreetedUntilItAnswers();
    void aPortThatDoesNotOpenAfterASleepIsReported();

  private:
    [[nodiscard]] WinKeyerUsb& engine() { return _bench->engine(); }
    void pass(Clock::Duration duration) { _bench->clock().advance(duration); }

    std::optional<EngineBench> _bench;
    std::optional<KeyerWatch> _watch;
    std::optional<QSignalSpy> _neverAnswered;
    std::optional<QSignalSpy> _fellSilent;
    std::optional<QSignalSpy> _settled;
};

void KeyerWatchTest::init() {
    _bench.emplace();
    _watch.emplace(_bench->engine(), nullptr);
    _neverAnswered.emplace(&*_watch, &KeyerWatch::neverAnswered);
    _fellSilent.emplace(&*_watch, &KeyerWatch::fellSilent);
    _settled.emplace(&*_watch, &KeyerWatch::settled);
    QVERIFY(_bench->connect());
}

void KeyerWatchTest::cleanup() {
    _watch.reset();
    _bench.reset();
}

void KeyerWatchTest::aKeyerThatAnswersIsGreetedOnce() {
    pass(1999ms);
    _bench->receive({0x55});
    pass(1h);
    QCOMPARE(_bench->written(), "");
    QCOMPARE(_neverAnswered->size(), 0);
}

void KeyerWatchTest::aSilentKeyerIsGreetedTwiceMoreAndThenReported() {
    pass(1999ms);
    QCOMPARE(_bench->written(), "");
    pass(1ms);
    QCOMPARE(_bench->written(), greeting);
    pass(4999ms);
    QCOMPARE(_bench->written(), "");
    pass(1ms);
    QCOMPARE(_bench->written(), greeting);
    QCOMPARE(_neverAnswered->size(), 0);
    pass(2s);
    QCOMPARE(_neverAnswered->size(), 1);
    pass(1h);
    QCOMPARE(_bench->written(), "");
    QCOMPARE(_neverAnswered->size(), 1);
    QVERIFY(engine().isPortOpen());
}

void KeyerWatchTest::anAnswerToTheSecondGreetingIsEnough() {
    pass(2s);
    QCOMPARE(_bench->written(), greeting);
    _bench->receive({0x55});
    _bench->receive({0x17});
    pass(1h);
    QCOMPARE(_bench->written(), "");
    QCOMPARE(_neverAnswered->size(), 0);
    QCOMPARE(engine().activity(), KeyerActivity::Idle);
}

void KeyerWatchTest::textThatWentUnheardGoesAgain() {
    _bench->type(u"CQ"_s);
    QCOMPARE(_bench->written(), "43");
    pass(2s);
    QCOMPARE(_bench->written(), greeting);
    _bench->receive({0x55});
    QCOMPARE(_bench->written(), "43");
    _bench->receive({'C'});
    QCOMPARE(_bench->written(), "51");
}

void KeyerWatchTest::askingAgainBeginsAnew() {
    pass(9s);
    static_cast<void>(_bench->written());
    _watch->askAgain();
    QCOMPARE(_bench->written(), greeting + keyUpAndClear);
    pass(9s);
    QCOMPARE(_bench->written(), greeting + ' ' + greeting);
    QCOMPARE(_neverAnswered->size(), 2);
}

void KeyerWatchTest::askingAgainForgetsTheText() {
    _bench->receive({0xC8});
    _bench->type(u"CQ"_s);
    pass(10s);
    QCOMPARE(_fellSilent->size(), 1);
    static_cast<void>(_bench->written());
    _watch->askAgain();
    for (const int byte : {0x55, 0x17, 0xC8}) {
        _bench->receive({byte});
    }
    QCOMPARE(_bench->written(), greeting + keyUpAndClear);
    QCOMPARE(engine().keyboardBuffer(), u""_s);
}

void KeyerWatchTest::aKeyerThatIsHeardAfterAllSettlesIt() {
    pass(9s);
    _bench->receive({0x85});
    QCOMPARE(_settled->size(), 1);
    _bench->receive({0x86});
    QCOMPARE(_settled->size(), 1);
}

void KeyerWatchTest::aLinkThatEndsSettlesIt() {
    pass(9s);
    QVERIFY(engine().disconnect(nullptr));
    QCOMPARE(_settled->size(), 1);
}

void KeyerWatchTest::aLinkThatEndsIsNotGreeted() {
    QVERIFY(engine().disconnect(nullptr));
    static_cast<void>(_bench->written());
    pass(1h);
    QCOMPARE(_bench->written(), "");
    QCOMPARE(_neverAnswered->size(), 0);
}

void KeyerWatchTest::withoutAKeyerNothingIsWaitedFor() {
    _bench->receive({0xC8});
    QVERIFY(engine().disconnect(nullptr));
    _bench->type(u"CQ"_s);
    pass(1h);
    QCOMPARE(_fellSilent->size(), 0);
    QCOMPARE(_neverAnswered->size(), 0);
}

void KeyerWatchTest::aCharacterWithoutAnEchoIsReported() {
    _bench->receive({0xC8});
    pass(1h);
    _bench->type(u"CQ"_s);
    pass(9999ms);
    QCOMPARE(_fellSilent->size(), 0);
    pass(1ms);
    QCOMPARE(_fellSilent->size(), 1);
    pass(1h);
    QCOMPARE(_fellSilent->size(), 1);
    // A wrong byte may have put the key down, or have cut a command short.
    QCOMPARE(_bench->written(), "43 13 13 13 13 0b 00 0a");
    _bench->receive({'C'});
    QCOMPARE(_settled->size(), 1);
}

void KeyerWatchTest::aTuneGoesOnThroughASilence() {
    _bench->receive({0xC8});
    _bench->type(u"CQ"_s);
    engine().setTuneState(1);
    pass(1h);
    QCOMPARE(_fellSilent->size(), 1);
    QCOMPARE(_bench->written(), "43");
}

void KeyerWatchTest::aPauseIsNoSilence() {
    _bench->receive({0xC8});
    _bench->type(u"CQ"_s);
    engine().setPauseState(1);
    pass(1h);
    QCOMPARE(_fellSilent->size(), 0);
    _bench->receive({'C'});
    engine().setPauseState(0);
    _bench->receive({'Q'});
    _bench->receive({0xC0});
    pass(1h);
    QCOMPARE(_fellSilent->size(), 0);
}

/// As of a keyer that has started anew since.
void KeyerWatchTest::aFullBufferMayFallSilent() {
    _bench->receive({0xC8});
    _bench->type(u"CQ"_s);
    _bench->receive({0xC1});
    QVERIFY(engine().pauseState() != 0);
    pass(9s);
    QCOMPARE(_fellSilent->size(), 0);
    pass(2s);
    QCOMPARE(_fellSilent->size(), 1);
}

void KeyerWatchTest::everyCharacterHasItsTime() {
    _bench->receive({0xC8});
    _bench->type(u"C"_s);
    _bench->receive({'C'});
    pass(9s);
    _bench->type(u"CQ"_s);
    pass(9s);
    QCOMPARE(_fellSilent->size(), 0);
    _bench->receive({'Q'});
    pass(1h);
    QCOMPARE(_fellSilent->size(), 0);
}

void KeyerWatchTest::afterASleepTheKeyerIsGreetedUntilItAnswers() {
    _bench->receive({0xC8});
    auto& notifications = _bench->platform().notifications();
    notifications.post(NSWorkspaceWillSleepNotification, nullptr);
    pass(1h);
    notifications.post(NSWorkspaceDidWakeNotification, nullptr);
    QTRY_COMPARE(engine().activity(), KeyerActivity::Silent);
    static_cast<void>(_bench->written());
    pass(2s);
    QCOMPARE(_bench->written(), greeting);
    pass(7s);
    QCOMPARE(_neverAnswered->size(), 1);
}

void KeyerWatchTest::aPortThatDoesNotOpenAfterASleepIsReported() {
    _bench->receive({0xC8});
    const QSignalSpy wanted(&*_watch, &KeyerWatch::connectionWanted);
    auto& notifications = _bench->platform().notifications();
    notifications.post(NSWorkspaceWillSleepNotification, nullptr);
    _bench->line().hangUp();
    notifications.post(NSWorkspaceDidWakeNotification, nullptr);
    QTRY_COMPARE(_neverAnswered->size(), 1);
    _watch->askAgain();
    QCOMPARE(wanted.size(), 1);
}

static const RegisteredTest<KeyerWatchTest> registered;
#include "KeyerWatchTest.moc"
