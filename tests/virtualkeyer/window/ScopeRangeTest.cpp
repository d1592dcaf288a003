#include "virtualkeyer/window/ScopeRange.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace std::chrono_literals;
using namespace virtualkeyer;

class ScopeRangeTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void itEndsWithThePresent();
    void pausedItStays();
    void itGoesBackAsFarAsThereIsSomething();
    void whatIsShorterThanTheRangeStandsAtItsEnd();
    void zoomingKeepsTheMiddle();
    void zoomingIsBounded();
    void cursorsMoveAndMeasure();
    void aCursorIsBroughtIntoSight();
    void aCursorStaysWhereThereIsSomething();
};

void ScopeRangeTest::itEndsWithThePresent() {
    ScopeRange range;
    range.setBounds(0s, 10s);
    QVERIFY(range.right() == 10s && range.left() == 6s);
    range.setBounds(0s, 11s);
    QVERIFY(range.right() == 11s);
}

void ScopeRangeTest::pausedItStays() {
    ScopeRange range;
    range.setBounds(0s, 10s);
    range.setPaused(true);
    range.setBounds(0s, 20s);
    QVERIFY(range.right() == 10s);
    range.setPaused(false);
    QVERIFY(range.right() == 20s);
}

void ScopeRangeTest::itGoesBackAsFarAsThereIsSomething() {
    ScopeRange range;
    range.setBounds(100s, 200s);
    range.moveTo(150s);
    QVERIFY(range.isPaused() && range.right() == 150s);
    range.moveTo(0s);
    QVERIFY(range.left() == 100s);
    range.moveToNewest();
    QVERIFY(range.right() == 200s && range.isPaused());
    range.moveToOldest();
    QVERIFY(range.left() == 100s);
    range.moveTo(900s);
    QVERIFY(range.right() == 200s);
}

void ScopeRangeTest::whatIsShorterThanTheRangeStandsAtItsEnd() {
    ScopeRange range;
    range.setBounds(0s, 1s);
    range.moveToOldest();
    QVERIFY(range.right() == 1s);
}

void ScopeRangeTest::zoomingKeepsTheMiddle() {
    ScopeRange range;
    range.setBounds(0s, 100s);
    range.zoomIn();
    QVERIFY(range.span() == 2s && range.right() == 100s);
    range.moveTo(50s);
    range.zoomOut();
    QVERIFY(range.span() == 4s && range.right() == 51s && range.left() == 47s);
    range.zoomIn();
    QVERIFY(range.right() == 50s);
}

void ScopeRangeTest::zoomingIsBounded() {
    ScopeRange range;
    range.setBounds(0s, 600s);
    for (int i = 0; i < 20; ++i) {
        range.zoomIn();
    }
    QVERIFY(range.span() == 125ms);
    for (int i = 0; i < 20; ++i) {
        range.zoomOut();
    }
    QVERIFY(range.span() == 128s);
}

void ScopeRangeTest::cursorsMoveAndMeasure() {
    ScopeRange range;
    range.setBounds(0s, 10s);
    QVERIFY(!range.cursor(0) && !range.measured());
    range.moveCursor(0, 10ms);
    QVERIFY(range.cursor(0) == Time{8s} && range.isPaused());
    range.moveCursor(0, -10ms);
    QVERIFY(range.cursor(0) == Time{7990ms});
    QVERIFY(!range.measured());
    range.setCursor(1, 7s);
    QVERIFY(range.measured() == Time{990ms});
}

void ScopeRangeTest::aCursorIsBroughtIntoSight() {
    ScopeRange range;
    range.setBounds(0s, 100s);
    range.setCursor(0, 50s);
    QVERIFY(range.left() < 50s && range.right() > 50s);
    range.setCursor(0, 80s);
    QVERIFY(range.left() < 80s && range.right() > 80s);
}

void ScopeRangeTest::aCursorStaysWhereThereIsSomething() {
    ScopeRange range;
    range.setBounds(20s, 100s);
    range.setCursor(0, 10s);
    QVERIFY(range.cursor(0) == Time{20s});
    range.setCursor(0, 200s);
    QVERIFY(range.cursor(0) == Time{100s});
}

static const RegisteredTest<ScopeRangeTest> registered;
#include "ScopeRangeTest.moc"
