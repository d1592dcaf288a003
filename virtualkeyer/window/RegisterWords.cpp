#include "virtualkeyer/window/RegisterWords.h"

namespace virtualkeyer {

namespace {

constexpr int stepMs = 10;
constexpr int neutral = 50;

int value(const Registers& registers, Register which) {
    return registers.value(which);
}

QString onOff(bool isOn) {
    return isOn ? RegisterWords::tr("on") : RegisterWords::tr("off");
}

QString milliseconds(int number) {
    return RegisterWords::tr("%1 ms").arg(number);
}

QString percent(int number) {
    return RegisterWords::tr("%1 %").arg(number);
}

QString wpm(int number) {
    return RegisterWords::tr("%1 WPM").arg(number);
}

QString speed(const Registers& registers) {
    const int set = value(registers, Register::Speed);
    const QString usual =
        set != 0 ? wpm(set) : RegisterWords::tr("%1 WPM, from the knob").arg(registers.potWpm());
    const int now = registers.wpm();
    return now == (set != 0 ? set : registers.potWpm())
               ? usual
               : RegisterWords::tr("%1; %2 WPM for now").arg(usual).arg(now);
}

QString paddleMode(const Registers& registers) {
    switch (registers.paddleMode()) {
    case PaddleMode::IambicA:
        return RegisterWords::tr("iambic A");
    case PaddleMode::Ultimatic:
        return RegisterWords::tr("ultimatic");
    case PaddleMode::Bug:
        return RegisterWords::tr("bug");
    default:
        return RegisterWords::tr("iambic B");
    }
}

QString priority(const Registers& registers) {
    switch (registers.ultimaticPriority()) {
    case UltimaticPriority::Dah:
        return RegisterWords::tr("dah");
    case UltimaticPriority::Dit:
        return RegisterWords::tr("dit");
    default:
        return RegisterWords::tr("the last one closed");
    }
}

QString sidetone(const Registers& registers) {
    if (!registers.sidetoneOn()) {
        return onOff(false);
    }
    return (registers.sidetoneForPaddleOnly() ? RegisterWords::tr("%1 Hz, for the paddle only")
                                              : RegisterWords::tr("%1 Hz"))
        .arg(registers.sidetoneHz());
}

QString farnsworth(const Registers& registers) {
    const int speed = value(registers, Register::Farnsworth);
    return speed == 0 ? onOff(false) : wpm(speed);
}

QString knobRange(const Registers& registers) {
    const int minimum = value(registers, Register::PotMinimum);
    return RegisterWords::tr("%1 to %2 WPM")
        .arg(minimum)
        .arg(minimum + value(registers, Register::PotRange));
}

QString outputs(const Registers& registers) {
    const bool first = registers.keysOutput(1);
    const bool second = registers.keysOutput(2);
    if (first && second) {
        return RegisterWords::tr("1 and 2");
    }
    return first ? QStringLiteral("1") : second ? QStringLiteral("2") : RegisterWords::tr("none");
}

} // namespace

std::vector<std::pair<QString, QString>> RegisterWords::of(const Registers& registers) {
    const double ratio = 3.0 * value(registers, Register::Ratio) / neutral;
    const int lookAgain = value(registers, Register::Switchpoint);
    return {
        {tr("Speed"), speed(registers)},
        {tr("Knob's range"), knobRange(registers)},
        {tr("Farnsworth"), farnsworth(registers)},
        {tr("Weighting"), percent(value(registers, Register::Weighting))},
        {tr("Dah to dit"), tr("%1 to 1").arg(ratio, 0, 'f', 2)},
        {tr("Key compensation"), milliseconds(value(registers, Register::Compensation))},
        {tr("First extension"), milliseconds(value(registers, Register::FirstExtension))},
        {tr("Word space"), tr("%1 dits").arg(registers.contestSpacing() ? 6 : 7)},
        {tr("Paddle keying"), paddleMode(registers)},
        {tr("Ultimatic priority"), priority(registers)},
        {tr("Paddle swapped"), onOff(registers.swapsPaddle())},
        {tr("Paddle memory"), lookAgain == 0
                                  ? onOff(false)
                                  : tr("after %1 dit lengths").arg(double(lookAgain) / neutral)},
        {tr("Paddle watchdog"), onOff(registers.watchdog())},
        {tr("Autospace"), onOff(registers.autospace())},
        {tr("Paddle echo"), onOff(registers.paddleEcho())},
        {tr("Serial echo"), onOff(registers.serialEcho())},
        {tr("Sidetone"), sidetone(registers)},
        {tr("Key outputs"), outputs(registers)},
        {tr("PTT"), onOff(registers.pttOn())},
        {tr("Lead-in"), milliseconds(stepMs * value(registers, Register::LeadIn))},
        {tr("Tail"), milliseconds(stepMs * value(registers, Register::Tail))},
        {tr("Hang time"), tr("word space and %1 dits").arg(registers.hangDits())},
    };
}

} // namespace virtualkeyer
