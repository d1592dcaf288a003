#include "virtualkeyer/window/RegisterWords.h"

#include "tests/support/RegisteredTest.h"

#include <QStringList>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace virtualkeyer;

class RegisterWordsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aFreshKeyersAreTold();
    void everyRegisterShows();
    void aSpeedForAMomentIsToldAlong();
};

void RegisterWordsTest::aFreshKeyersAreTold() {
    QStringList lines;
    for (const auto& [name, value] : RegisterWords::of(Registers(20))) {
        lines += name + u": "_s + value;
    }
    const QStringList expected{u"Speed: 20 WPM, from the knob"_s,
                               u"Knob's range: 10 to 25 WPM"_s,
                               u"Farnsworth: off"_s,
                               u"Weighting: 50 %"_s,
                               u"Dah to dit: 3.00 to 1"_s,
                               u"Key compensation: 0 ms"_s,
                               u"First extension: 0 ms"_s,
                               u"Word space: 7 dits"_s,
                               u"Paddle keying: iambic B"_s,
                               u"Ultimatic priority: the last one closed"_s,
                               u"Paddle swapped: off"_s,
                               u"Paddle memory: after 1 dit lengths"_s,
                               u"Paddle watchdog: on"_s,
                               u"Autospace: off"_s,
                               u"Paddle echo: off"_s,
                               u"Serial echo: off"_s,
                               u"Sidetone: 800 Hz"_s,
                               u"Key outputs: 1"_s,
                               u"PTT: on"_s,
                               u"Lead-in: 0 ms"_s,
                               u"Tail: 0 ms"_s,
                               u"Hang time: word space and 1 dits"_s};
    QCOMPARE(lines, expected);
}

void RegisterWordsTest::everyRegisterShows() {
    Registers registers(20);
    registers.load(Registers::Values{0xAF, 33, 0x84, 61, 4, 5, 13, 32, 7, 8, 15, 0, 41, 0x6E});
    QStringList values;
    for (const auto& [name, value] : RegisterWords::of(registers)) {
        values += value;
    }
    const QStringList expected{u"33 WPM"_s,
                               u"13 to 45 WPM"_s,
                               u"15 WPM"_s,
                               u"61 %"_s,
                               u"2.46 to 1"_s,
                               u"8 ms"_s,
                               u"7 ms"_s,
                               u"6 dits"_s,
                               u"ultimatic"_s,
                               u"dah"_s,
                               u"on"_s,
                               u"off"_s,
                               u"off"_s,
                               u"on"_s,
                               u"off"_s,
                               u"on"_s,
                               u"1000 Hz, for the paddle only"_s,
                               u"1 and 2"_s,
                               u"off"_s,
                               u"40 ms"_s,
                               u"50 ms"_s,
                               u"word space and 4 dits"_s};
    QCOMPARE(values, expected);
}

void RegisterWordsTest::aSpeedForAMomentIsToldAlong() {
    Registers registers(20);
    registers.set(Register::Speed, 22);
    registers.setTemporarySpeed(35);
    QCOMPARE(RegisterWords::of(registers).front().second, u"22 WPM; 35 WPM for now"_s);
}

static const RegisteredTest<RegisterWordsTest> registered;
#include "RegisterWordsTest.moc"
