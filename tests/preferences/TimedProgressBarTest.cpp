#include "preferences/TimedProgressBar.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;

class TimedProgressBarTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void itFillsAsTimePasses();
    void itEndsAtItsTime();
    void itIsNoLongerThanAVeryShortTime();
    void stoppedItSaysNothing();
    void startedAgainItBeginsAnew();
    void itMayBeDestroyedWhileRunning();
};

void TimedProgressBarTest::itFillsAsTimePasses() {
    const TestPlatform platform;
    TimedProgressBar bar;
    QVERIFY(!bar.isRunning());
    bar.start(2s);
    QVERIFY(bar.isRunning());
    QCOMPARE(bar.value(), bar.minimum());
    platform.clock().advance(500ms);
    QCOMPARE(bar.value(), bar.maximum() / 4);
    platform.clock().advance(1s);
    QCOMPARE(bar.value(), bar.maximum() * 3 / 4);
}

void TimedProgressBarTest::itEndsAtItsTime() {
    const TestPlatform platform;
    TimedProgressBar bar;
    const QSignalSpy finished(&bar, &TimedProgressBar::finished);
    bar.start(1234ms);
    platform.clock().advance(1233ms);
    QVERIFY(bar.isRunning());
    QCOMPARE(finished.size(), 0);
    platform.clock().advance(1ms);
    QVERIFY(!bar.isRunning());
    QCOMPARE(finished.size(), 1);
    QCOMPARE(bar.value(), bar.maximum());
    QVERIFY(platform.clock().pendingTimers().isEmpty());
}

void TimedProgressBarTest::itIsNoLongerThanAVeryShortTime() {
    const TestPlatform platform;
    TimedProgressBar bar;
    const QSignalSpy finished(&bar, &TimedProgressBar::finished);
    bar.start(1ms);
    platform.clock().advance(1ms);
    QCOMPARE(finished.size(), 1);
}

void TimedProgressBarTest::stoppedItSaysNothing() {
    const TestPlatform platform;
    TimedProgressBar bar;
    const QSignalSpy finished(&bar, &TimedProgressBar::finished);
    bar.start(1s);
    platform.clock().advance(500ms);
    bar.stop();
    QVERIFY(!bar.isRunning());
    platform.clock().advance(1s);
    QCOMPARE(finished.size(), 0);
    QVERIFY(platform.clock().pendingTimers().isEmpty());
}

void TimedProgressBarTest::startedAgainItBeginsAnew() {
    const TestPlatform platform;
    TimedProgressBar bar;
    const QSignalSpy finished(&bar, &TimedProgressBar::finished);
    bar.start(1s);
    platform.clock().advance(900ms);
    bar.start(1s);
    QCOMPARE(bar.value(), bar.minimum());
    platform.clock().advance(999ms);
    QCOMPARE(finished.size(), 0);
    platform.clock().advance(1ms);
    QCOMPARE(finished.size(), 1);
}

void TimedProgressBarTest::itMayBeDestroyedWhileRunning() {
    const TestPlatform platform;
    {
        TimedProgressBar bar;
        bar.start(1s);
    }
    platform.clock().advance(1s);
    QVERIFY(platform.clock().pendingTimers().isEmpty());
}

static const RegisteredTest<TimedProgressBarTest> registered;
#include "TimedProgressBarTest.moc"
