#include "virtualkeyer/core/Timing.h"
#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/core/Registers.h"

#include <QtTest>

using namespace virtualkeyer;

/// Every formula of the element and space lengths.
class TimingTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void ditLengths();
    void lengthsFollowTheRegisters_data();
    void lengthsFollowTheRegisters();
};

void TimingTest::ditLengths() {
    QCOMPARE(ditLength(20).count(), 60'000'000);
    QCOMPARE(ditLength(5).count(), 240'000'000);
    QCOMPARE(ditLength(99).count(), 12'121'212);
    QCOMPARE(ditLength(5100).count(), 235'294);
}

void TimingTest::lengthsFollowTheRegisters_data() {
    QTest::addColumn<int>("which");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("length");
    QTest::addColumn<double>("milliseconds");
    const auto row = [](const char* name, Register which, int value, const char* length,
                        double milliseconds) {
        QTest::newRow(name) << static_cast<int>(which) << value << QString::fromLatin1(length)
                            << milliseconds;
    };
    const auto none = Register::Mode;
    row("a dit is 1200/WPM ms", none, 0, "dit", 60);
    row("a dah is three dits", none, 0, "dah", 180);
    row("the gap is one dit", none, 0, "gap", 60);
    row("the letter space is two dits more", none, 0, "restOfLetter", 120);
    row("the word space is four dits more", none, 0, "restOfWord", 240);
    row("the word space is seven dits", none, 0, "wordSpace", 420);
    row("a contest's is three dits more", Register::Mode, 1, "restOfWord", 180);
    row("a contest's word space is six dits", Register::Mode, 1, "wordSpace", 360);
    row("weighting 75 adds half a dit to dits", Register::Weighting, 75, "dit", 90);
    row("weighting 75 adds half a dit to dahs", Register::Weighting, 75, "dah", 210);
    row("weighting 75 takes it from the gaps", Register::Weighting, 75, "gap", 30);
    row("weighting 10 takes from dits", Register::Weighting, 10, "dit", 12);
    row("weighting 10 adds to gaps", Register::Weighting, 10, "gap", 108);
    row("weighting leaves the letter space's end", Register::Weighting, 90, "restOfLetter", 120);
    row("ratio 66 makes dahs longer", Register::Ratio, 66, "dah", 237.6);
    row("ratio 33 makes dahs shorter", Register::Ratio, 33, "dah", 118.8);
    row("ratio leaves dits", Register::Ratio, 66, "dit", 60);
    row("compensation lengthens dits", Register::Compensation, 7, "dit", 67);
    row("compensation lengthens dahs", Register::Compensation, 7, "dah", 187);
    row("compensation shortens gaps", Register::Compensation, 7, "gap", 53);
    row("gaps are never below nothing", Register::Compensation, 250, "gap", 0);
    row("Farnsworth sets the letters' dit", Register::Farnsworth, 30, "dit", 40);
    row("Farnsworth sets the letters' gap", Register::Farnsworth, 30, "gap", 40);
    row("Farnsworth fills the letter space", Register::Farnsworth, 30, "restOfLetter", 140);
    row("Farnsworth leaves the word space", Register::Farnsworth, 30, "restOfWord", 240);
    row("Farnsworth at the speed is out of force", Register::Farnsworth, 20, "dit", 60);
    row("Farnsworth below the speed is out of force", Register::Farnsworth, 15, "dit", 60);
    row("first extension in ms", Register::FirstExtension, 33, "firstExtension", 33);
    row("lead-in in steps of 10 ms", Register::LeadIn, 25, "leadIn", 250);
    row("tail is three dits at least", none, 0, "tail", 180);
    row("tail in steps of 10 ms", Register::Tail, 7, "tail", 250);
    row("hang is eight dits", none, 0, "hang", 480);
    row("hang is nine dits", Register::PinConfiguration, 0x17, "hang", 540);
    row("hang is eleven dits", Register::PinConfiguration, 0x27, "hang", 660);
    row("hang is fifteen dits", Register::PinConfiguration, 0x37, "hang", 900);
    row("the paddle is looked at after one dit", none, 0, "lookAgain", 60);
    row("the switchpoint moves that", Register::Switchpoint, 90, "lookAgain", 108);
    row("no look without paddle memory", Register::Switchpoint, 0, "lookAgain", 0);
}

void TimingTest::lengthsFollowTheRegisters() {
    QFETCH(int, which);
    QFETCH(int, value);
    QFETCH(QString, length);
    QFETCH(double, milliseconds);
    Registers registers(20);
    registers.set(static_cast<Register>(which), static_cast<std::uint8_t>(value));
    const Timing timing = timingOf(registers);
    const QHash<QString, Time> lengths{
        {QStringLiteral("dit"), timing.dit},
        {QStringLiteral("dah"), timing.dah},
        {QStringLiteral("gap"), timing.gap},
        {QStringLiteral("restOfLetter"), timing.restOfLetter},
        {QStringLiteral("restOfWord"), timing.restOfWord},
        {QStringLiteral("wordSpace"), timing.wordSpace},
        {QStringLiteral("firstExtension"), timing.firstExtension},
        {QStringLiteral("leadIn"), timing.leadIn},
        {QStringLiteral("tail"), timing.tail},
        {QStringLiteral("hang"), timing.hang},
        {QStringLiteral("lookAgain"), timing.lookAgain},
    };
    QVERIFY(lengths.contains(length));
    QCOMPARE(lengths.value(length).count(), static_cast<qint64>(milliseconds * 1e6));
}

static const RegisteredTest<TimingTest> registered;
#include "TimingTest.moc"
