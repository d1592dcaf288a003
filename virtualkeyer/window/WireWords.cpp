#include "virtualkeyer/window/WireWords.h"

#include "virtualkeyer/core/Registers.h"
#include "virtualkeyer/window/RegisterWords.h"

#include <QByteArray>
#include <QStringList>

#include <algorithm>
#include <array>
#include <span>

namespace virtualkeyer {

namespace {

using Parameters = std::span<const std::uint8_t>;
using LineKind = WireLine::Kind;

constexpr int stepOfTimesMs = 10;
constexpr int wpmOfHundredLetters = 20;

QString translated(const char* words) {
    return QCoreApplication::translate("WireWords", words);
}

QString character(std::uint8_t value) {
    return value == ' ' ? WireWords::tr("space") : QString(QLatin1Char(static_cast<char>(value)));
}

QString hex(Parameters bytes) {
    const QByteArray raw(reinterpret_cast<const char*>(bytes.data()),
                         static_cast<qsizetype>(bytes.size()));
    return QString::fromLatin1(raw.toHex(' ').toUpper());
}

/// How a command's parameters stand in its words.
using Filling = QString (*)(const QString& words, Parameters parameters);

QString numbers(const QString& words, Parameters parameters) {
    QString filled = words;
    for (const std::uint8_t number : parameters) {
        if (filled.contains(u'%')) {
            filled = filled.arg(number);
        }
    }
    return filled;
}

QString raw(const QString& words, Parameters parameters) {
    return words.arg(hex(parameters));
}

QString tens(const QString& words, Parameters parameters) {
    return words.arg(stepOfTimesMs * parameters[0]).arg(stepOfTimesMs * parameters[1]);
}

QString letters(const QString& words, Parameters parameters) {
    QString filled;
    for (const std::uint8_t each : parameters) {
        filled += each >= firstText && each <= lastText ? character(each) : hex({&each, 1});
    }
    return words.arg(filled);
}

QString sidetone(const QString& words, Parameters parameters) {
    const int divider = parameters[0] & 0x0F;
    Registers registers;
    registers.set(Register::Sidetone, parameters[0]);
    // One that is out of its range leaves the keyer's as it was.
    return divider == 0 || divider > 10
               ? words.arg(hex(parameters))
               : words.arg(RegisterWords::of(registers, Register::Sidetone));
}

QString speed(const QString& words, Parameters parameters) {
    return parameters[0] == 0 ? WireWords::tr("Leave the speed to the knob")
                              : numbers(words, parameters);
}

QString knobRange(const QString& words, Parameters parameters) {
    return words.arg(parameters[0]).arg(parameters[0] + parameters[1]);
}

QString pause(const QString& words, Parameters parameters) {
    return parameters[0] != 0 ? words : WireWords::tr("Resume");
}

QString key(const QString& words, Parameters parameters) {
    return parameters[0] != 0 ? words : WireWords::tr("Key up");
}

QString ptt(const QString& words, Parameters parameters) {
    return parameters[0] != 0 ? words : WireWords::tr("In the buffer: PTT off");
}

QString highSpeed(const QString& words, Parameters parameters) {
    return words.arg(wpmOfHundredLetters * parameters[0]);
}

QString farnsworth(const QString& words, Parameters parameters) {
    return parameters[0] == 0 ? WireWords::tr("No Farnsworth") : numbers(words, parameters);
}

template <Register which>
QString decided(const QString& words, Parameters parameters) {
    Registers registers;
    registers.set(which, parameters[0]);
    return words.arg(RegisterWords::of(registers, which));
}

QString allRegisters(const QString& words, Parameters parameters) {
    Registers registers;
    registers.load(parameters.first<Registers::count>());
    // What is out of its range leaves the keyer's as it was, which nobody here knows.
    const bool isWhole = std::ranges::equal(registers.block(), parameters);
    return words.arg(isWhole ? RegisterWords::line(registers) : hex(parameters));
}

QString contacts(const QString& words, Parameters parameters) {
    switch (parameters[0]) {
    case 0:
        return words.arg(WireWords::tr("none"));
    case 1:
        return words.arg(WireWords::tr("dit"));
    case 2:
        return words.arg(WireWords::tr("dah"));
    case 3:
        return words.arg(WireWords::tr("both"));
    default:
        return words.arg(parameters[0]);
    }
}

QString pointer(const QString& words, Parameters parameters) {
    const int place = parameters.size() > 1 ? parameters[1] : 0;
    switch (static_cast<PointerMove>(parameters[0])) {
    case PointerMove::Reset:
        return words;
    case PointerMove::Overwrite:
        return WireWords::tr("Buffer: overwrite at %1").arg(place);
    case PointerMove::Append:
        return WireWords::tr("Buffer: append at %1").arg(place);
    case PointerMove::InsertNulls:
        return WireWords::tr("Buffer: insert %1 nulls").arg(place);
    default:
        return WireWords::tr("Buffer: move %1, unknown").arg(parameters[0]);
    }
}

QString outputOrSpeed(const QString& words, Parameters parameters) {
    return parameters[0] > 1 ? WireWords::tr("In the buffer: high speed, %1 WPM")
                                   .arg(wpmOfHundredLetters * parameters[0])
                             : words.arg(parameters[0] + 1);
}

struct CommandWords {
    Opcode opcode;
    const char* words;
    Filling fill = numbers;
};

constexpr std::array commands{
    CommandWords{Opcode::Admin, nullptr},
    CommandWords{Opcode::Sidetone, QT_TRANSLATE_NOOP("WireWords", "Set the tone: %1"), sidetone},
    CommandWords{Opcode::Speed, QT_TRANSLATE_NOOP("WireWords", "Set speed %1 WPM"), speed},
    CommandWords{Opcode::Weighting, QT_TRANSLATE_NOOP("WireWords", "Set weighting %1 %")},
    CommandWords{Opcode::PttTimes, QT_TRANSLATE_NOOP("WireWords", "Set PTT lead/tail %1, %2 ms"),
                 tens},
    CommandWords{Opcode::PotSetup,
                 QT_TRANSLATE_NOOP("WireWords", "Set the knob's range %1 to %2 WPM"), knobRange},
    CommandWords{Opcode::Pause, QT_TRANSLATE_NOOP("WireWords", "Pause"), pause},
    CommandWords{Opcode::ReadPot, QT_TRANSLATE_NOOP("WireWords", "Ask for the knob")},
    CommandWords{Opcode::Backspace, QT_TRANSLATE_NOOP("WireWords", "Backspace")},
    CommandWords{Opcode::PinConfiguration, QT_TRANSLATE_NOOP("WireWords", "Set the pins: %1"),
                 decided<Register::PinConfiguration>},
    CommandWords{Opcode::ClearBuffer, QT_TRANSLATE_NOOP("WireWords", "Clear buffer")},
    CommandWords{Opcode::KeyImmediate, QT_TRANSLATE_NOOP("WireWords", "Key down"), key},
    CommandWords{Opcode::HighSpeed, QT_TRANSLATE_NOOP("WireWords", "Set high speed %1 WPM"),
                 highSpeed},
    CommandWords{Opcode::Farnsworth, QT_TRANSLATE_NOOP("WireWords", "Set Farnsworth %1 WPM"),
                 farnsworth},
    CommandWords{Opcode::Mode, QT_TRANSLATE_NOOP("WireWords", "Set the mode: %1"),
                 decided<Register::Mode>},
    CommandWords{Opcode::LoadDefaults, QT_TRANSLATE_NOOP("WireWords", "Load defaults: %1"),
                 allRegisters},
    CommandWords{Opcode::FirstExtension,
                 QT_TRANSLATE_NOOP("WireWords", "Set first extension %1 ms")},
    CommandWords{Opcode::Compensation,
                 QT_TRANSLATE_NOOP("WireWords", "Set key compensation %1 ms")},
    CommandWords{Opcode::Switchpoint,
                 QT_TRANSLATE_NOOP("WireWords", "Set paddle memory %1 (50: a dit)")},
    CommandWords{Opcode::Null, QT_TRANSLATE_NOOP("WireWords", "Null")},
    CommandWords{Opcode::SoftwarePaddle, QT_TRANSLATE_NOOP("WireWords", "Paddle by the host: %1"),
                 contacts},
    CommandWords{Opcode::ReadStatus, QT_TRANSLATE_NOOP("WireWords", "Ask for the status")},
    CommandWords{Opcode::MovePointer, QT_TRANSLATE_NOOP("WireWords", "Buffer: to its beginning"),
                 pointer},
    CommandWords{Opcode::Ratio, QT_TRANSLATE_NOOP("WireWords", "Set dah to dit %1 (50: 3 to 1)")},
    CommandWords{Opcode::Ptt, QT_TRANSLATE_NOOP("WireWords", "In the buffer: PTT on"), ptt},
    CommandWords{Opcode::TimedKey, QT_TRANSLATE_NOOP("WireWords", "In the buffer: key down, %1 s")},
    CommandWords{Opcode::Wait, QT_TRANSLATE_NOOP("WireWords", "In the buffer: wait, %1 s")},
    CommandWords{Opcode::Merge, QT_TRANSLATE_NOOP("WireWords", "In the buffer: merge %1"), letters},
    CommandWords{Opcode::TemporarySpeed, QT_TRANSLATE_NOOP("WireWords", "In the buffer: %1 WPM")},
    CommandWords{Opcode::OutputOrHighSpeed,
                 QT_TRANSLATE_NOOP("WireWords", "In the buffer: key output %1"), outputOrSpeed},
    CommandWords{Opcode::EndTemporarySpeed,
                 QT_TRANSLATE_NOOP("WireWords", "In the buffer: the speed that was set")},
    CommandWords{Opcode::BufferedNull, QT_TRANSLATE_NOOP("WireWords", "In the buffer: null")},
};

constexpr bool isInOrder() {
    for (std::size_t i = 0; i < commands.size(); ++i) {
        if (static_cast<std::size_t>(commands[i].opcode) != i) {
            return false;
        }
    }
    return commands.size() == firstText;
}
static_assert(isInOrder());

struct AdminWords {
    AdminCommand command;
    const char* words;
    Filling fill = numbers;
};

constexpr std::array adminCommands{
    AdminWords{AdminCommand::Calibrate, QT_TRANSLATE_NOOP("WireWords", "Calibrate")},
    AdminWords{AdminCommand::Reset, QT_TRANSLATE_NOOP("WireWords", "Reset the keyer")},
    AdminWords{AdminCommand::Open, QT_TRANSLATE_NOOP("WireWords", "Open the keyer")},
    AdminWords{AdminCommand::Close, QT_TRANSLATE_NOOP("WireWords", "Close the keyer")},
    AdminWords{AdminCommand::Echo, QT_TRANSLATE_NOOP("WireWords", "Echo test %1"), raw},
    AdminWords{AdminCommand::ReadPaddle, QT_TRANSLATE_NOOP("WireWords", "Ask for the paddle A/D")},
    AdminWords{AdminCommand::ReadSpeed, QT_TRANSLATE_NOOP("WireWords", "Ask for the speed A/D")},
    AdminWords{AdminCommand::ReadValues, QT_TRANSLATE_NOOP("WireWords", "Ask for all values")},
    AdminWords{AdminCommand::Debug, QT_TRANSLATE_NOOP("WireWords", "Debug")},
    AdminWords{AdminCommand::ReadCalibration,
               QT_TRANSLATE_NOOP("WireWords", "Ask for the calibration")},
    AdminWords{AdminCommand::Version1Status, QT_TRANSLATE_NOOP("WireWords", "Version 1 status")},
    AdminWords{AdminCommand::Version2Status, QT_TRANSLATE_NOOP("WireWords", "Version 2 status")},
    AdminWords{AdminCommand::DumpMemory, QT_TRANSLATE_NOOP("WireWords", "Ask for the memory")},
    AdminWords{AdminCommand::LoadMemory, QT_TRANSLATE_NOOP("WireWords", "Load the memory")},
    AdminWords{AdminCommand::PlayMessage, QT_TRANSLATE_NOOP("WireWords", "Play message %1")},
    AdminWords{AdminCommand::LoadX1Mode, QT_TRANSLATE_NOOP("WireWords", "Load X1MODE %1"), raw},
    AdminWords{AdminCommand::Baud9600, QT_TRANSLATE_NOOP("WireWords", "Line at 9600 baud")},
    AdminWords{AdminCommand::Baud1200, QT_TRANSLATE_NOOP("WireWords", "Line at 1200 baud")},
};

QString adminWords(std::uint8_t number, Parameters parameters) {
    const auto* found =
        std::ranges::find(adminCommands, static_cast<AdminCommand>(number), &AdminWords::command);
    return found == adminCommands.end() ? WireWords::tr("Admin command %1, unknown").arg(number)
                                        : found->fill(translated(found->words), parameters);
}

QString commandWords(Parameters bytes) {
    const std::uint8_t code = bytes.front();
    if (code >= firstText) {
        return WireWords::tr("text %1").arg(character(code));
    }
    if (static_cast<Opcode>(code) == Opcode::Admin) {
        return adminWords(bytes[1], bytes.subspan(2));
    }
    const CommandWords& command = commands[code];
    return command.fill(translated(command.words), bytes.subspan(1));
}

/// Names of the bits that are set.
QStringList namesOfBits(std::uint8_t byte, std::span<const std::pair<unsigned, QString>> names) {
    QStringList found;
    for (const auto& [bit, name] : names) {
        if ((byte & bit) != 0) {
            found += name;
        }
    }
    return found;
}

QString statusWords(std::uint8_t byte) {
    const std::array<std::pair<unsigned, QString>, 5> names{{{0x10, WireWords::tr("wait")},
                                                             {0x08, WireWords::tr("key down")},
                                                             {0x04, WireWords::tr("busy")},
                                                             {0x02, WireWords::tr("break-in")},
                                                             {0x01, WireWords::tr("XOFF")}}};
    const QStringList found = namesOfBits(byte, names);
    return WireWords::tr("status: %1")
        .arg(found.isEmpty() ? WireWords::tr("idle") : found.join(QStringLiteral(", ")));
}

QString buttonWords(std::uint8_t byte) {
    const std::array<std::pair<unsigned, QString>, 4> names{{{0x01, QStringLiteral("1")},
                                                             {0x02, QStringLiteral("2")},
                                                             {0x04, QStringLiteral("3")},
                                                             {0x10, QStringLiteral("4")}}};
    const QStringList found = namesOfBits(byte, names);
    return WireWords::tr("push-buttons: %1")
        .arg(found.isEmpty() ? WireWords::tr("none") : found.join(QStringLiteral(", ")));
}

QString answerWords(AdminCommand question, Parameters bytes) {
    switch (question) {
    case AdminCommand::Open:
        return WireWords::tr("open, version %1").arg(bytes.front());
    case AdminCommand::Echo:
        return WireWords::tr("echo test %1").arg(hex(bytes));
    case AdminCommand::ReadValues:
        return allRegisters(WireWords::tr("values: %1"), bytes);
    case AdminCommand::DumpMemory:
        return WireWords::tr("memory, %1 bytes").arg(bytes.size());
    default:
        return WireWords::tr("answer %1").arg(bytes.front());
    }
}

} // namespace

QString WireWords::of(const WireLine& line) {
    constexpr int knobValue = 0x3F;
    switch (line.kind) {
    case LineKind::Command:
        return commandWords(line.bytes);
    case LineKind::Discarded:
        return tr("discarded by the keyer");
    case LineKind::Lost:
        return tr("lost, the keyer is starting");
    case LineKind::Unfinished:
        return tr("unfinished command");
    case LineKind::Restarted:
        return tr("the keyer starts anew");
    case LineKind::Echo:
        return tr("echo %1").arg(character(line.bytes.front()));
    case LineKind::Status:
        return statusWords(line.bytes.front());
    case LineKind::Buttons:
        return buttonWords(line.bytes.front());
    case LineKind::Knob:
        return tr("knob: %1 WPM").arg(line.knobMinimum + (line.bytes.front() & knobValue));
    case LineKind::Answer:
        return answerWords(line.question, line.bytes);
    }
    return {};
}

QString WireWords::bytes(const WireLine& line) {
    return hex(line.bytes);
}

} // namespace virtualkeyer
