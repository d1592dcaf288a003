#include "virtualkeyer/window/RegisterWords.h"

#include <QStringList>

#include <optional>

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

/// Something that a register decides.
struct Row {
    Register which;
    QString name;
    QString value;
};

QString oneLine(const std::vector<Row>& rows, std::optional<Register> which) {
    QStringList words;
    for (const Row& row : rows) {
        if (!which || row.which == *which) {
            words += RegisterWords::tr("%1: %2").arg(row.name, row.value);
        }
    }
    return words.join(QStringLiteral("; "));
}

QString wordSpace(const Registers& registers) {
    return RegisterWords::tr("%1 dits").arg(registers.contestSpacing() ? 6 : 7);
}

QString paddleMemory(const Registers& registers) {
    const int lookAgain = value(registers, Register::Switchpoint);
    return lookAgain == 0
               ? onOff(false)
               : RegisterWords::tr("after %1 dit lengths").arg(double(lookAgain) / neutral);
}

QString ratio(const Registers& registers) {
    const double ratio = 3.0 * value(registers, Register::Ratio) / neutral;
    return RegisterWords::tr("%1 to 1").arg(ratio, 0, 'f', 2);
}

QString hang(const Registers& registers) {
    return RegisterWords::tr("word space and %1 dits").arg(registers.hangDits());
}

std::vector<Row> rowsOf(const Registers& registers) {
    const auto ms = [&registers](Register which) { return milliseconds(value(registers, which)); };
    const auto steps = [&registers](Register which) {
        return milliseconds(stepMs * value(registers, which));
    };
    return {
        {Register::Speed, RegisterWords::tr("Speed"), speed(registers)},
        {Register::PotMinimum, RegisterWords::tr("Knob's range"), knobRange(registers)},
        {Register::Farnsworth, RegisterWords::tr("Farnsworth"), farnsworth(registers)},
        {Register::Weighting, RegisterWords::tr("Weighting"),
         percent(value(registers, Register::Weighting))},
        {Register::Ratio, RegisterWords::tr("Dah to dit"), ratio(registers)},
        {Register::Compensation, RegisterWords::tr("Key compensation"), ms(Register::Compensation)},
        {Register::FirstExtension, RegisterWords::tr("First extension"),
         ms(Register::FirstExtension)},
        {Register::Mode, RegisterWords::tr("Word space"), wordSpace(registers)},
        {Register::Mode, RegisterWords::tr("Paddle keying"), paddleMode(registers)},
        {Register::PinConfiguration, RegisterWords::tr("Ultimatic priority"), priority(registers)},
        {Register::Mode, RegisterWords::tr("Paddle swapped"), onOff(registers.swapsPaddle())},
        {Register::Switchpoint, RegisterWords::tr("Paddle memory"), paddleMemory(registers)},
        {Register::Mode, RegisterWords::tr("Paddle watchdog"), onOff(registers.watchdog())},
        {Register::Mode, RegisterWords::tr("Autospace"), onOff(registers.autospace())},
        {Register::Mode, RegisterWords::tr("Paddle echo"), onOff(registers.paddleEcho())},
        {Register::Mode, RegisterWords::tr("Serial echo"), onOff(registers.serialEcho())},
        {Register::Sidetone, RegisterWords::tr("Sidetone"), sidetone(registers)},
        {Register::PinConfiguration, RegisterWords::tr("Key outputs"), outputs(registers)},
        {Register::PinConfiguration, RegisterWords::tr("PTT"), onOff(registers.pttOn())},
        {Register::LeadIn, RegisterWords::tr("Lead-in"), steps(Register::LeadIn)},
        {Register::Tail, RegisterWords::tr("Tail"), steps(Register::Tail)},
        {Register::PinConfiguration, RegisterWords::tr("Hang time"), hang(registers)},
    };
}

} // namespace

std::vector<std::pair<QString, QString>> RegisterWords::of(const Registers& registers) {
    std::vector<std::pair<QString, QString>> words;
    for (const Row& row : rowsOf(registers)) {
        words.emplace_back(row.name, row.value);
    }
    return words;
}

QString RegisterWords::of(const Registers& registers, Register which) {
    return oneLine(rowsOf(registers), which);
}

QString RegisterWords::line(const Registers& registers) {
    return oneLine(rowsOf(registers), std::nullopt);
}

} // namespace virtualkeyer
