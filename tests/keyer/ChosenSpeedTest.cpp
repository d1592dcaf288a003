#include "keyer/ChosenSpeed.h"

#include "keyer/Action.h"
#include "keyer/WinKeyerUsb.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

class ChosenSpeedTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void nothingIsWrittenBeforeASpeedIsChosen();
    void itBeginsAtTheKnob();
    void itStaysWithinWhatTheKeyerTakes();
    void withoutAReadingOfTheKnobNothingChanges();
    void theKnobIsComeBackTo();
    void aTurnOfTheKnobLeavesTheChosenSpeed();
    void itHoldsAtOnceWithinAText();
    void itIsSentAgainBehindWhatEndsIt();
    void highSpeedGoesOn();
    void whatIsChosenAtHighSpeedIsSentBehindIt();
    void whatIsChosenAtHighSpeedIsSentAfterAStop();
    void everyGreetingBeginsWithTheKnob();
    void withoutAKeyerNothingIsChosen();

  private:
    [[nodiscard]] WinKeyerUsb& engine() { return _bench->engine(); }
    void switchHSCW(bool isOn);

    std::optional<EngineBench> _bench;
    std::optional<ChosenSpeed> _speed;
};

void ChosenSpeedTest::init() {
    _bench.emplace();
    _speed.emplace(engine());
    QVERIFY(_bench->connect());
    _bench->receive({0x8C}); // 25 wpm
}

void ChosenSpeedTest::cleanup() {
    _speed.reset();
    _bench.reset();
}

/// As the operator's switch does.
void ChosenSpeedTest::switchHSCW(bool isOn) {
    QObject button;
    button.setProperty("state", isOn ? 1 : 0);
    engine().setHscwState(isOn ? 1 : 0);
    engine().changeHSCWMode(&button);
}

void ChosenSpeedTest::nothingIsWrittenBeforeASpeedIsChosen() {
    engine().loadDefaults();
    switchHSCW(true);
    switchHSCW(false);
    _speed->backToKnob();
    QCoreApplication::processEvents();
    const auto written = _bench->written();
    QVERIFY2(written.startsWith("0f ") && written.endsWith(" 1d 0a 02 00"), written.constData());
    QCOMPARE(written.size(), 16 * 3 + 11);
    QVERIFY(!_speed->wpm());
}

void ChosenSpeedTest::itBeginsAtTheKnob() {
    const QSignalSpy changes(&*_speed, &ChosenSpeed::changed);
    _speed->change(2);
    _speed->change(2);
    _speed->change(-1);
    QCOMPARE(_bench->written(), "02 1b 02 1d 02 1c");
    QCOMPARE(_speed->wpm(), 28);
    QCOMPARE(changes.size(), 3);
}

void ChosenSpeedTest::itStaysWithinWhatTheKeyerTakes() {
    _speed->choose(98);
    _speed->change(2);
    QCOMPARE(_speed->wpm(), 99);
    _speed->choose(-1000);
    QCOMPARE(_speed->wpm(), 5);
    _speed->change(-1);
    QCOMPARE(_speed->wpm(), 5);
    QCOMPARE(_bench->written(), "02 62 02 63 02 05 02 05");
}

void ChosenSpeedTest::withoutAReadingOfTheKnobNothingChanges() {
    QVERIFY(engine().disconnect(nullptr));
    QVERIFY(_bench->connect());
    _speed->change(2);
    QVERIFY(!_speed->wpm());
    QCOMPARE(_bench->written(), "");
    _speed->choose(20); // which needs none
    QCOMPARE(_bench->written(), "02 14");
}

void ChosenSpeedTest::theKnobIsComeBackTo() {
    _speed->change(2);
    _speed->backToKnob();
    _speed->backToKnob();
    QCOMPARE(_bench->written(), "02 1b 02 00");
    QVERIFY(!_speed->wpm());
    QCOMPARE(_speed->inForce(), 25);
}

void ChosenSpeedTest::aTurnOfTheKnobLeavesTheChosenSpeed() {
    _speed->change(2);
    _bench->receive({0x94});
    QCOMPARE(_speed->wpm(), 27);
    QCOMPARE(_bench->written(), "02 1b");
    _speed->backToKnob();
    QCOMPARE(_speed->inForce(), 33);
}

void ChosenSpeedTest::itHoldsAtOnceWithinAText() {
    _bench->type(u"ABC"_s);
    _bench->receive({'A'});
    _speed->change(-2);
    _bench->receive({'B'});
    QCOMPARE(_bench->written(), "41 42 02 17 43");
}

void ChosenSpeedTest::itIsSentAgainBehindWhatEndsIt() {
    _speed->change(5);
    static_cast<void>(_bench->written());
    engine().loadDefaults();
    QVERIFY(_bench->written().endsWith(" 06 00 02 1e"));
    switchHSCW(true);
    switchHSCW(false);
    QCOMPARE(_bench->written(), "1d 0a 02 00 02 1e");
    _bench->type(u"%A^B"_s);
    _bench->receive({'A'});
    QCOMPARE(_bench->written(), "1d 0a 41 1e 02 1e 42");
}

void ChosenSpeedTest::highSpeedGoesOn() {
    switchHSCW(true);
    _speed->change(2);
    _speed->change(2);
    QCoreApplication::processEvents();
    QCOMPARE(_bench->written(), "1d 0a");
    QCOMPARE(_speed->wpm(), 29);
}

void ChosenSpeedTest::whatIsChosenAtHighSpeedIsSentBehindIt() {
    switchHSCW(true);
    _speed->change(2);
    switchHSCW(false);
    QCoreApplication::processEvents();
    QCOMPARE(_bench->written(), "1d 0a 02 00 02 1b");
    switchHSCW(true);
    _speed->backToKnob();
    switchHSCW(false);
    QCoreApplication::processEvents();
    QVERIFY(_bench->written().endsWith("02 00"));
}

void ChosenSpeedTest::whatIsChosenAtHighSpeedIsSentAfterAStop() {
    switchHSCW(true);
    _speed->change(2);
    engine().stopMessageSending(nullptr);
    engine().setHscwState(0);
    QCoreApplication::processEvents();
    QCOMPARE(_bench->written(), "1d 0a 0a 02 1b");
}

void ChosenSpeedTest::everyGreetingBeginsWithTheKnob() {
    _speed->change(2);
    static_cast<void>(_bench->written());
    engine().greetAgain();
    QVERIFY(!_speed->wpm());
    QVERIFY(_bench->written().endsWith("06 00 07"));
    _speed->choose(30);
    QVERIFY(engine().disconnect(nullptr));
    QVERIFY(!_speed->wpm());
    QVERIFY(_bench->connect());
    QVERIFY(!_speed->wpm());
    QCOMPARE(_bench->written(), "");
}

void ChosenSpeedTest::withoutAKeyerNothingIsChosen() {
    QVERIFY(engine().disconnect(nullptr));
    static_cast<void>(_bench->written());
    _speed->choose(30);
    QVERIFY(!_speed->wpm());
    QCOMPARE(_bench->written(), "");
}

static const RegisteredTest<ChosenSpeedTest> registered;
#include "ChosenSpeedTest.moc"
