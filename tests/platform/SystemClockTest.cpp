#include "platform/SystemClock.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class SystemClockTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void sleepsNoShorterThanAsked();
    void aTimerFiresOnceAndNotTooEarly();
    void aTimerDoesNotFireInsideTheCallThatSetsIt_data();
    void aTimerDoesNotFireInsideTheCallThatSetsIt();
    void aTimerFiresThoughNobodyKeepsIt();
    void anInvalidatedTimerNeverFires();
    void aTimerWhoseTargetHasGoneNeverFires();
    void timersFireInOrder();
    void aTimerMaySetTheNextOne();

  private:
    SystemClock _clock;
};

void SystemClockTest::sleepsNoShorterThanAsked() {
    const auto start = _clock.now();
    _clock.sleep(20ms);
    QVERIFY(_clock.now() - start >= 20ms);
}

void SystemClockTest::aTimerFiresOnceAndNotTooEarly() {
    QObject target;
    const auto start = _clock.now();
    Clock::Duration took{0};
    int fired = 0;
    const auto timer = _clock.scheduleTimer(20500us, &target, [&] {
        took = _clock.now() - start;
        ++fired;
    });
    QVERIFY(timer->isValid());
    QTRY_COMPARE(fired, 1);
    QVERIFY(took >= 20ms);
    QVERIFY(!timer->isValid());
    timer->fire();
    QCOMPARE(fired, 1);
}

void SystemClockTest::aTimerDoesNotFireInsideTheCallThatSetsIt_data() {
    QTest::addColumn<qint64>("nanoseconds");
    QTest::newRow("no interval") << qint64{0};
    QTest::newRow("a negative interval") << qint64{-1'000'000'000};
}

void SystemClockTest::aTimerDoesNotFireInsideTheCallThatSetsIt() {
    QFETCH(qint64, nanoseconds);
    QObject target;
    bool hasFired = false;
    const auto timer =
        _clock.scheduleTimer(Clock::Duration(nanoseconds), &target, [&] { hasFired = true; });
    QVERIFY(!hasFired);
    QTRY_VERIFY(hasFired);
}

void SystemClockTest::aTimerFiresThoughNobodyKeepsIt() {
    QObject target;
    bool hasFired = false;
    static_cast<void>(_clock.scheduleTimer(1ms, &target, [&] { hasFired = true; }));
    QTRY_VERIFY(hasFired);
}

void SystemClockTest::anInvalidatedTimerNeverFires() {
    QObject target;
    QStringList fired;
    const auto stopped = _clock.scheduleTimer(1ms, &target, [&] { fired.append(u"stopped"_s); });
    static_cast<void>(_clock.scheduleTimer(5ms, &target, [&] { fired.append(u"later"_s); }));
    stopped->invalidate();
    QVERIFY(!stopped->isValid());
    QTRY_COMPARE(fired, QStringList{u"later"_s});
}

void SystemClockTest::aTimerWhoseTargetHasGoneNeverFires() {
    QObject target;
    auto gone = std::make_unique<QObject>();
    QStringList fired;
    static_cast<void>(_clock.scheduleTimer(1ms, gone.get(), [&] { fired.append(u"gone"_s); }));
    static_cast<void>(_clock.scheduleTimer(5ms, &target, [&] { fired.append(u"later"_s); }));
    gone.reset();
    QTRY_COMPARE(fired, QStringList{u"later"_s});
}

void SystemClockTest::timersFireInOrder() {
    QObject target;
    QStringList fired;
    static_cast<void>(_clock.scheduleTimer(30ms, &target, [&] { fired.append(u"late"_s); }));
    static_cast<void>(_clock.scheduleTimer(1ms, &target, [&] { fired.append(u"early"_s); }));
    QTRY_COMPARE(fired, QStringList({u"early"_s, u"late"_s}));
}

void SystemClockTest::aTimerMaySetTheNextOne() {
    QObject target;
    int fired = 0;
    static_cast<void>(_clock.scheduleTimer(1ms, &target, [&] {
        ++fired;
        static_cast<void>(_clock.scheduleTimer(1ms, &target, [&] { ++fired; }));
    }));
    QTRY_COMPARE(fired, 2);
}

static const RegisteredTest<SystemClockTest> registered;
#include "SystemClockTest.moc"
