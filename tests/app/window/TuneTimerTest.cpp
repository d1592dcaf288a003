#include "app/window/TuneTimer.h"

#include "keyer/GeneralSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class TuneTimerTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itCountsWhileTuneIsOn();
    void itBeginsAnewWithEachTune();
    void withoutALimitNoneIsReached();
    void theLimitIsReachedOnce_data();
    void theLimitIsReachedOnce();
    void aTuneThatEndsInTimeReachesNoLimit();
    void aLimitIsThatOfTheTunesBeginning();
    void aStoredTextThatIsNoChoiceIsNoLimit();
    void aBusyMachineMissesNoSecond();

  private:
    void tune(bool isOn) { _bench->engine().setTuneState(isOn ? 1 : 0); }

    std::optional<EngineBench> _bench;
    std::optional<TuneTimer> _timer;
};

void TuneTimerTest::init() {
    _bench.emplace();
    _timer.emplace(_bench->engine(), nullptr);
}

void TuneTimerTest::cleanup() {
    _timer.reset();
    _bench.reset();
}

void TuneTimerTest::itCountsWhileTuneIsOn() {
    const QSignalSpy changes(&*_timer, &TuneTimer::secondsChanged);
    _bench->clock().advance(5s);
    QCOMPARE(changes.size(), 0);
    tune(true);
    QCOMPARE(_timer->seconds(), 0);
    _bench->clock().advance(999ms);
    QCOMPARE(_timer->seconds(), 0);
    _bench->clock().advance(1ms);
    QCOMPARE(_timer->seconds(), 1);
    _bench->clock().advance(61s);
    QCOMPARE(_timer->seconds(), 62);
    tune(false);
    QCOMPARE(_timer->seconds(), 0);
    QVERIFY(_bench->clock().pendingTimers().isEmpty());
}

void TuneTimerTest::itBeginsAnewWithEachTune() {
    tune(true);
    _bench->clock().advance(2500ms);
    tune(false);
    tune(true);
    _bench->clock().advance(600ms);
    QCOMPARE(_timer->seconds(), 0);
    _bench->clock().advance(400ms);
    QCOMPARE(_timer->seconds(), 1);
}

void TuneTimerTest::withoutALimitNoneIsReached() {
    const QSignalSpy limits(&*_timer, &TuneTimer::limitReached);
    tune(true);
    QVERIFY(!_timer->secondsLeft());
    _bench->clock().advance(1h);
    QCOMPARE(limits.size(), 0);
}

void TuneTimerTest::theLimitIsReachedOnce_data() {
    QTest::addColumn<QString>("choice");
    QTest::addColumn<int>("seconds");
    QTest::newRow("ten seconds") << u"10 s"_s << 10;
    QTest::newRow("half a minute") << u"30 s"_s << 30;
    QTest::newRow("a minute") << u"60 s"_s << 60;
    QTest::newRow("two minutes") << u"120 s"_s << 120;
}

void TuneTimerTest::theLimitIsReachedOnce() {
    QFETCH(QString, choice);
    QFETCH(int, seconds);
    _bench->settings().setObject(choice, TuneLimit.key);
    QSignalSpy limits(&*_timer, &TuneTimer::limitReached);
    QObject::connect(&*_timer, &TuneTimer::limitReached, &*_timer, [this] { tune(false); });
    tune(true);
    QCOMPARE(_timer->secondsLeft(), std::optional(seconds));
    _bench->clock().advance(std::chrono::seconds(seconds) - 1ms);
    QCOMPARE(_timer->secondsLeft(), std::optional(1));
    QCOMPARE(limits.size(), 0);
    _bench->clock().advance(1ms);
    QCOMPARE(limits.size(), 1);
    QCOMPARE(limits.first().first().toInt(), seconds);
    _bench->clock().advance(1h);
    QCOMPARE(limits.size(), 1);
}

void TuneTimerTest::aTuneThatEndsInTimeReachesNoLimit() {
    _bench->settings().setObject(u"10 s"_s, TuneLimit.key);
    const QSignalSpy limits(&*_timer, &TuneTimer::limitReached);
    for (int i = 0; i < 3; ++i) {
        tune(true);
        _bench->clock().advance(9s);
        tune(false);
    }
    _bench->clock().advance(1min);
    QCOMPARE(limits.size(), 0);
}

void TuneTimerTest::aLimitIsThatOfTheTunesBeginning() {
    _bench->settings().setObject(u"30 s"_s, TuneLimit.key);
    tune(true);
    _bench->settings().setObject(u"10 s"_s, TuneLimit.key);
    QCOMPARE(_timer->secondsLeft(), std::optional(30));
}

void TuneTimerTest::aStoredTextThatIsNoChoiceIsNoLimit() {
    _bench->settings().setObject(u"soon"_s, TuneLimit.key);
    tune(true);
    QVERIFY(!_timer->secondsLeft());
}

void TuneTimerTest::aBusyMachineMissesNoSecond() {
    tune(true);
    _bench->clock().sleep(7500ms);
    _bench->clock().advance(0s);
    QCOMPARE(_timer->seconds(), 7);
    _bench->clock().advance(500ms);
    QCOMPARE(_timer->seconds(), 8);
}

static const RegisteredTest<TuneTimerTest> registered;
#include "TuneTimerTest.moc"
