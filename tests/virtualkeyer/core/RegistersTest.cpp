#include "virtualkeyer/core/Registers.h"

#include "tests/support/RegisteredTest.h"

#include <QtTest>

using namespace virtualkeyer;

/// The registers' ranges, and which speed is in force.
class RegistersTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void valuesOutsideTheRangeAreRefused_data();
    void valuesOutsideTheRangeAreRefused();
    void speedInForce();
    void potIsLimitedToItsRange();
    void modeBits();
    void pinBits();
    void sidetone();
    void loadPassesOverWhatIsOutOfRange();
    void restoringTheFactoryValuesKeepsThePot();
};

void RegistersTest::valuesOutsideTheRangeAreRefused_data() {
    QTest::addColumn<int>("which");
    QTest::addColumn<QList<int>>("allowed");
    QTest::addColumn<QList<int>>("refused");
    const auto row = [](const char* name, Register which, const QList<int>& allowed,
                        const QList<int>& refused) {
        QTest::newRow(name) << static_cast<int>(which) << allowed << refused;
    };
    row("mode", Register::Mode, {255, 1}, {});
    row("speed", Register::Speed, {5, 99, 0}, {4, 100, 255});
    row("sidetone", Register::Sidetone, {1, 10, 0x81, 0x8A}, {0, 11, 15, 0x80, 0x8B});
    row("weighting", Register::Weighting, {10, 90}, {0, 9, 91});
    row("lead-in", Register::LeadIn, {25, 1}, {26, 255});
    row("tail", Register::Tail, {25, 1}, {26, 255});
    row("pot minimum", Register::PotMinimum, {5, 99}, {4, 100});
    row("pot range", Register::PotRange, {0, 63}, {64, 255});
    row("first extension", Register::FirstExtension, {250, 1}, {251});
    row("compensation", Register::Compensation, {250, 1}, {251});
    row("Farnsworth", Register::Farnsworth, {10, 99, 0}, {9, 100});
    row("switchpoint", Register::Switchpoint, {10, 90, 0}, {9, 91});
    row("ratio", Register::Ratio, {33, 66}, {32, 67, 0});
    row("pin configuration", Register::PinConfiguration, {255, 0}, {});
}

void RegistersTest::valuesOutsideTheRangeAreRefused() {
    QFETCH(int, which);
    QFETCH(QList<int>, allowed);
    QFETCH(QList<int>, refused);
    const auto target = static_cast<Register>(which);
    Registers registers;
    for (const int value : allowed) {
        registers.set(target, static_cast<std::uint8_t>(value));
        QCOMPARE(int{registers.value(target)}, value);
    }
    for (const int value : refused) {
        registers.set(target, static_cast<std::uint8_t>(value));
        QCOMPARE(int{registers.value(target)}, allowed.last());
    }
}

void RegistersTest::speedInForce() {
    Registers registers(20);
    QCOMPARE(registers.wpm(), 20);
    registers.set(Register::Speed, 30);
    QCOMPARE(registers.wpm(), 30);
    registers.setHighSpeed(10);
    QCOMPARE(registers.wpm(), 200);
    registers.setHighSpeed(0);
    QCOMPARE(registers.wpm(), 200);
    registers.setTemporarySpeed(12);
    QCOMPARE(registers.wpm(), 12);
    registers.setTemporarySpeed(4);
    registers.setTemporarySpeed(100);
    QCOMPARE(registers.wpm(), 12);
    registers.setTemporaryHighSpeed(255);
    QCOMPARE(registers.wpm(), 5100);
    registers.cancelTemporarySpeed();
    QCOMPARE(registers.wpm(), 200);
    registers.setTemporarySpeed(12);
    registers.setHighSpeed(20);
    QCOMPARE(registers.wpm(), 400);
    registers.setTemporarySpeed(12);
    registers.set(Register::Speed, 25);
    QCOMPARE(registers.wpm(), 25);
}

void RegistersTest::potIsLimitedToItsRange() {
    Registers registers(3);
    QCOMPARE(registers.potWpm(), 10);
    QCOMPARE(int{registers.potByte()}, 0x80);
    registers.setPot(12);
    QCOMPARE(int{registers.potByte()}, 0x82);
    registers.setPot(70);
    QCOMPARE(registers.potWpm(), 25);
    QCOMPARE(int{registers.potByte()}, 0x8F);
    registers.set(Register::PotRange, 63);
    registers.setPot(99);
    QCOMPARE(int{registers.potByte()}, 0xBF);
}

void RegistersTest::modeBits() {
    Registers registers;
    QVERIFY(registers.watchdog());
    QVERIFY(!registers.paddleEcho() && !registers.swapsPaddle() && !registers.serialEcho() &&
            !registers.autospace() && !registers.contestSpacing());
    const auto mode = [&](std::uint8_t value) { registers.set(Register::Mode, value); };
    mode(0x80);
    QVERIFY(!registers.watchdog());
    mode(0x40);
    QVERIFY(registers.paddleEcho());
    mode(0x08);
    QVERIFY(registers.swapsPaddle());
    mode(0x04);
    QVERIFY(registers.serialEcho());
    mode(0x02);
    QVERIFY(registers.autospace());
    mode(0x01);
    QVERIFY(registers.contestSpacing());
    mode(0xCF);
    QCOMPARE(registers.paddleMode(), PaddleMode::IambicB);
    mode(0x10);
    QCOMPARE(registers.paddleMode(), PaddleMode::IambicA);
    mode(0x20);
    QCOMPARE(registers.paddleMode(), PaddleMode::Ultimatic);
    mode(0x30);
    QCOMPARE(registers.paddleMode(), PaddleMode::Bug);
}

void RegistersTest::pinBits() {
    Registers registers;
    const auto pins = [&](std::uint8_t value) { registers.set(Register::PinConfiguration, value); };
    pins(0x01);
    QVERIFY(registers.pttOn() && !registers.sidetoneOn());
    pins(0x02);
    QVERIFY(!registers.pttOn() && registers.sidetoneOn());
    pins(0x04);
    QVERIFY(registers.keysOutput(1) && !registers.keysOutput(2));
    pins(0x08);
    QVERIFY(!registers.keysOutput(1) && registers.keysOutput(2));
    pins(0xF3);
    registers.selectOutput(2);
    QCOMPARE(int{registers.value(Register::PinConfiguration)}, 0xFB);
    registers.selectOutput(1);
    QCOMPARE(int{registers.value(Register::PinConfiguration)}, 0xF7);
    const std::array hangs{std::pair{0x00, 1}, std::pair{0x10, 2}, std::pair{0x20, 4},
                           std::pair{0x30, 8}};
    for (const auto& [bits, dits] : hangs) {
        pins(static_cast<std::uint8_t>(bits));
        QCOMPARE(registers.hangDits(), dits);
    }
    pins(0x3F);
    QCOMPARE(registers.ultimaticPriority(), UltimaticPriority::Last);
    pins(0x40);
    QCOMPARE(registers.ultimaticPriority(), UltimaticPriority::Dah);
    pins(0x80);
    QCOMPARE(registers.ultimaticPriority(), UltimaticPriority::Dit);
}

void RegistersTest::sidetone() {
    Registers registers;
    const std::array pitches{4000, 2000, 1333, 1000, 800, 666, 571, 500, 444, 400};
    for (std::size_t n = 1; n <= pitches.size(); ++n) {
        registers.set(Register::Sidetone, static_cast<std::uint8_t>(n));
        QCOMPARE(registers.sidetoneHz(), pitches[n - 1]);
        QVERIFY(!registers.sidetoneForPaddleOnly());
    }
    registers.set(Register::Sidetone, 0x85);
    QCOMPARE(registers.sidetoneHz(), 800);
    QVERIFY(registers.sidetoneForPaddleOnly());
}

void RegistersTest::loadPassesOverWhatIsOutOfRange() {
    Registers registers;
    const Registers::Values values{1, 100, 2, 9, 3, 26, 20, 20, 251, 7, 5, 95, 40, 8};
    registers.load(values);
    const std::array<std::uint8_t, Registers::blockSize> expected{1, 0, 2, 50, 3,  0, 20, 20,
                                                                  0, 7, 0, 50, 40, 8, 0};
    QCOMPARE(registers.block(), expected);
}

void RegistersTest::restoringTheFactoryValuesKeepsThePot() {
    Registers registers(20);
    registers.setPot(13);
    registers.set(Register::Speed, 40);
    registers.setHighSpeed(3);
    registers.restoreFactory();
    QCOMPARE(registers.wpm(), 13);
    QCOMPARE(registers.block(), Registers().block());
}

static const RegisteredTest<RegistersTest> registered;
#include "RegistersTest.moc"
