#include "virtualkeyer/script/ScriptParser.h"

#include "virtualkeyer/pty/NamedTroubles.h"
#include "virtualkeyer/script/ScriptWords.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace virtualkeyer {

namespace {

using What = ScriptAction;

constexpr double longestTime = 1e6; // seconds
constexpr double nanoseconds = 1e9;

std::optional<Time> takeSeconds(ScriptWords& words) {
    const auto word = words.take();
    bool isNumber = false;
    const double seconds = word ? word->text.toDouble(&isNumber) : 0;
    if (!isNumber || !(seconds >= 0 && seconds <= longestTime)) {
        return std::nullopt;
    }
    return Time{std::llround(seconds * nanoseconds)};
}

std::optional<int> takeNumber(ScriptWords& words, int least, int most) {
    const auto word = words.take();
    bool isNumber = false;
    const int number = word ? word->text.toInt(&isNumber) : 0;
    return isNumber && number >= least && number <= most ? std::optional{number} : std::nullopt;
}

/// One of two words.
std::optional<bool> takeEither(ScriptWords& words, QStringView yes, QStringView no) {
    if (words.takeIf(yes)) {
        return true;
    }
    return words.takeIf(no) ? std::optional{false} : std::nullopt;
}

/// Text between quotation marks, and bytes as two hexadecimal digits each, at least one.
std::optional<std::vector<std::uint8_t>> takeBytes(ScriptWords& words) {
    std::vector<std::uint8_t> bytes;
    while (const auto word = words.take()) {
        if (word->isQuoted) {
            const QByteArray text = word->text.toLatin1();
            bytes.insert(bytes.end(), text.begin(), text.end());
            continue;
        }
        bool isNumber = false;
        const uint value = word->text.toUInt(&isNumber, 16);
        if (!isNumber || word->text.size() != 2) {
            return std::nullopt;
        }
        bytes.push_back(static_cast<std::uint8_t>(value));
    }
    return bytes.empty() ? std::nullopt : std::optional{bytes};
}

std::optional<What> readPaddle(ScriptWords& words) {
    const bool isBoth = words.takeIf(u"both");
    const bool isDit = isBoth || words.takeIf(u"dit");
    const bool isDah = isBoth || (!isDit && words.takeIf(u"dah"));
    const auto isDown = takeEither(words, u"down", u"up");
    if (!isDown || (!isDit && !isDah)) {
        return std::nullopt;
    }
    return MovePaddle{isDit ? isDown : std::nullopt, isDah ? isDown : std::nullopt};
}

std::optional<What> readKnob(ScriptWords& words) {
    const auto wpm = takeNumber(words, 5, 99);
    return wpm ? std::optional<What>{TurnKnob{*wpm}} : std::nullopt;
}

std::optional<What> readButton(ScriptWords& words) {
    const auto number = takeNumber(words, 1, 4);
    return number ? std::optional<What>{MoveButton{*number, takeEither(words, u"down", u"up")}}
                  : std::nullopt;
}

std::optional<What> readMessage(ScriptWords& words) {
    const auto number = takeNumber(words, 1, 6);
    return number ? std::optional<What>{PlayMessage{*number}} : std::nullopt;
}

std::optional<What> readPlug(ScriptWords& /*words*/) {
    return MovePlug{true};
}

std::optional<What> readPull(ScriptWords& /*words*/) {
    return MovePlug{false};
}

std::optional<What> readProfile(ScriptWords& words) {
    const auto names = words.take();
    return names ? std::optional<What>{ChangeProfile{names->text}} : std::nullopt;
}

std::optional<What> readTrouble(ScriptWords& words) {
    const auto names = words.take();
    return names && troublesNamed(names->text.toStdString())
               ? std::optional<What>{ChangeTroubles{names->text}}
               : std::nullopt;
}

std::optional<What> readSend(ScriptWords& words) {
    auto bytes = takeBytes(words);
    return bytes ? std::optional<What>{SendBytes{std::move(*bytes)}} : std::nullopt;
}

std::optional<Expectation> readExpectation(ScriptWords& words) {
    if (words.takeIf(u"keyed")) {
        const auto text = words.take();
        return text && text->isQuoted
                   ? std::optional<Expectation>{ExpectKeyed{text->text.trimmed().toUpper()}}
                   : std::nullopt;
    }
    if (words.takeIf(u"reply")) {
        auto bytes = takeBytes(words);
        return bytes ? std::optional<Expectation>{ExpectReply{std::move(*bytes)}} : std::nullopt;
    }
    if (words.takeIf(u"key")) {
        const auto isDown = takeEither(words, u"down", u"up");
        return isDown ? std::optional<Expectation>{ExpectKey{*isDown}} : std::nullopt;
    }
    const auto isOn = words.takeIf(u"ptt") ? takeEither(words, u"on", u"off") : std::nullopt;
    return isOn ? std::optional<Expectation>{ExpectPtt{*isOn}} : std::nullopt;
}

std::optional<What> readExpect(ScriptWords& words) {
    const auto expectation = readExpectation(words);
    return expectation ? std::optional<What>{Expect{*expectation}} : std::nullopt;
}

std::optional<What> readWithin(ScriptWords& words) {
    const auto within = takeSeconds(words);
    const auto expectation =
        within && words.takeIf(u"expect") ? readExpectation(words) : std::nullopt;
    return expectation ? std::optional<What>{Expect{*expectation, *within}} : std::nullopt;
}

struct Instruction {
    QStringView name;
    QStringView usage;
    std::optional<What> (*read)(ScriptWords&);
};

constexpr std::array instructions{
    Instruction{u"paddle", u"paddle dit|dah|both down|up", readPaddle},
    Instruction{u"knob", u"knob 5...99", readKnob},
    Instruction{u"button", u"button 1...4 [down|up]", readButton},
    Instruction{u"message", u"message 1...6", readMessage},
    Instruction{u"plug", u"plug", readPlug},
    Instruction{u"pull", u"pull", readPull},
    Instruction{u"profile", u"profile NAME[,NAME...]", readProfile},
    Instruction{u"trouble", u"trouble none|NAME[:NUMBER][,NAME...]", readTrouble},
    Instruction{u"send", u"send \"TEXT\"|HEX...", readSend},
    Instruction{u"expect", u"expect keyed \"TEXT\"|reply HEX...|key down|up|ptt on|off",
                readExpect},
    Instruction{u"within", u"within SECONDS expect ...", readWithin},
};
constexpr QStringView timeUsage = u"[at|after SECONDS] ...";

/// The times and the instruction; nothing when the words are none.
std::optional<ScriptStep> readStep(ScriptWords& words, QStringView& usage) {
    ScriptStep step;
    const auto isAbsolute = takeEither(words, u"at", u"after");
    if (isAbsolute) {
        usage = timeUsage;
        const auto time = takeSeconds(words);
        if (!time) {
            return std::nullopt;
        }
        (*isAbsolute ? step.at.emplace() : step.after) = *time;
        if (words.isAtEnd()) {
            return step;
        }
    }
    const auto* instruction = std::ranges::find_if(
        instructions, [&words](const Instruction& each) { return words.takeIf(each.name); });
    if (instruction == instructions.end()) {
        usage = {};
        return std::nullopt;
    }
    usage = instruction->usage;
    auto what = instruction->read(words);
    if (!what || !words.isAtEnd()) {
        return std::nullopt;
    }
    step.what = std::move(*what);
    return step;
}

} // namespace

std::variant<EmptyLine, ScriptStep, ScriptMistake> readScriptLine(const QString& line) {
    ScriptWords words(line);
    if (words.isAtEnd() && words.isComplete()) {
        return EmptyLine{};
    }
    QStringView usage;
    auto step = readStep(words, usage);
    if (!step || !words.isComplete()) {
        return ScriptMistake{usage.isEmpty() ? scriptUsage() : usage.toString()};
    }
    return std::move(*step);
}

QString scriptUsage() {
    QStringList usages{timeUsage.toString()};
    for (const Instruction& each : instructions) {
        usages += each.usage.toString();
    }
    return usages.join(u"; "_s);
}

} // namespace virtualkeyer
