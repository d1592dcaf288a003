#include "virtualkeyer/window/ScopeRange.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace virtualkeyer;
using Milliseconds = std::chrono::milliseconds;
using Seconds = std::chrono::seconds;

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
    range.setBounds(Seconds{0}, Seconds{10});
    QVERIFY(range.right() == Seconds{10} && range.left() == Seconds{6});
    range.setBounds(Seconds{0}, Seconds{11});
    QVERIFY(range.right() == Seconds{11});
}

void ScopeRangeTest::pausedItStays() {
    ScopeRange range;
    range.setBounds(Seconds{0}, Seconds{10});
    range.setPaused(true);
    range.setBounds(Seconds{0}, Seconds{20});
    QVERIFY(range.right() == Seconds{10});
    range.setPaused(false);
    QVERIFY(range.right() == Seconds{20});
}

void ScopeRangeTest::itGoesBackAsFarAsThereIsSomething() {
    ScopeRange range;
    range.setBounds(Seconds{100}, Seconds{200});
    range.moveTo(Seconds{150});
    QVERIFY(range.isPaused() && range.right() == Seconds{150});
    range.moveTo(Seconds{0});
    QVERIFY(range.left() == Seconds{100});
    range.moveToNewest();
    QVERIFY(range.right() == Seconds{200} && range.isPaused());
    range.moveToOldest();
    QVERIFY(range.left() == Seconds{100});
    range.moveTo(Seconds{900});
    QVERIFY(range.right() == Seconds{200});
}

void ScopeRangeTest::whatIsShorterThanTheRangeStandsAtItsEnd() {
    ScopeRange range;
    range.setBounds(Seconds{0}, Seconds{1});
    range.moveToOldest();
    QVERIFY(range.right() == Seconds{1});
}

void ScopeRangeTest::zoomingKeepsTheMiddle() {
    ScopeRange range;
    range.setBounds(Seconds{0}, Seconds{100});
    range.zoomIn();
    QVERIFY(range.span() == Seconds{2} && range.right() == Seconds{100});
    range.moveTo(Seconds{50});
    range.zoomOut();
    QVERIFY(range.span() == Seconds{4} && range.right() == Seconds{51} &&
            range.left() == Seconds{47});
    range.zoomIn();
    QVERIFY(range.right() == Seconds{50});
}

void ScopeRangeTest::zoomingIsBounded() {
    ScopeRange range;
    range.setBounds(Seconds{0}, Seconds{600});
    for (int i = 0; i < 20; ++i) {
        range.zoomIn();
    }
    QVERIFY(range.span() == Milliseconds{125});
    for (int i = 0; i < 20; ++i) {
        range.zoomOut();
    }
    QVERIFY(range.span() == Seconds{128});
}

void ScopeRangeTest::cursorsMoveAndMeasure() {
    ScopeRange range;
    range.setBounds(Seconds{0}, Seconds{10});
    QVERIFY(!range.cursor(0) && !range.measured());
    range.moveCursor(0, Milliseconds{10});
    QVERIFY(range.cursor(0) == Time{Seconds{8}} && range.isPaused());
    range.moveCursor(0, -Milliseconds{10});
    QVERIFY(range.cursor(0) == Time{Milliseconds{7990}});
    QVERIFY(!range.measured());
    range.setCursor(1, Seconds{7});
    QVERIFY(range.measured() == Time{Milliseconds{990}});
}

void ScopeRangeTest::aCursorIsBroughtIntoSight() {
    ScopeRange range;
    range.setBounds(Seconds{0}, Seconds{100});
    range.setCursor(0, Seconds{50});
    QVERIFY(range.left() < Seconds{50} && range.right() > Seconds{50});
    range.setCursor(0, Seconds{80});
    QVERIFY(range.left() < Seconds{80} && range.right() > Seconds{80});
}

void ScopeRangeTest::aCursorStaysWhereThereIsSomething() {
    ScopeRange range;
    range.setBounds(Seconds{20}, Seconds{100});
    range.setCursor(0, Seconds{10});
    QVERIFY(range.cursor(0) == Time{Seconds{20}});
    range.setCursor(0, Seconds{200});
    QVERIFY(range.cursor(0) == Time{Seconds{100}});
}

static const RegisteredTest<ScopeRangeTest> registered;
#include "ScopeRangeTest.moc"
