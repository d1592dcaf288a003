#include "virtualkeyer/CommandLine.h"

#include "virtualkeyer/NamedProfiles.h"
#include "virtualkeyer/pty/NamedTroubles.h"
#include "virtualkeyer/pty/PortLink.h"
#include "virtualkeyer/script/ScriptParser.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

using namespace Qt::StringLiterals;

namespace virtualkeyer {

namespace {

constexpr int slowestPot = 5;
constexpr int fastestPot = 99;
constexpr auto standardLink = "usbserial-virtual"_L1;

QString qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString profileList() {
    QString list = CommandLine::tr("The kind of keyer, or several of them, separated by commas:");
    for (const NamedProfile& profile : namedProfiles()) {
        list += u"\n%1: %2"_s.arg(
            qt(profile.name),
            QCoreApplication::translate("NamedProfile", std::string(profile.description).c_str()));
    }
    return list;
}

/// Behind the name of a trouble.
QString numberOf(const NamedTrouble& trouble) {
    switch (trouble.number) {
    case TroubleNumber::Share:
        return u":%1"_s.arg(CommandLine::tr("SHARE"));
    case TroubleNumber::Seconds:
        return u":%1"_s.arg(CommandLine::tr("SECONDS"));
    default:
        return {};
    }
}

QString troubleList() {
    QString list = CommandLine::tr("What is wrong with the line, or several such things, separated "
                                   "by commas; a number may be left out:");
    for (const NamedTrouble& trouble : namedTroubles()) {
        list += u"\n%1%2: %3"_s.arg(
            qt(trouble.name), numberOf(trouble),
            QCoreApplication::translate("NamedTrouble", std::string(trouble.description).c_str()));
    }
    return list;
}

QString transcriptHelp() {
    return CommandLine::tr("Writes a line for every event, with its time in ms, to %1.")
        .arg(u"FILE"_s);
}

QString registersHelp() {
    return CommandLine::tr("Keeps %1 up to date with the keyer's registers, and the settings and "
                           "messages of its memory: lines of a name and a value. Each change "
                           "replaces the file as a whole.")
        .arg(u"FILE"_s);
}

QString speedHelp() {
    return CommandLine::tr("Where the speed pot stands, %1 to %2 words per minute, %3 by default. "
                           "It counts within the range that the host has set, 10 to 25 at "
                           "power-up.")
        .arg(slowestPot)
        .arg(fastestPot)
        .arg(Profile{}.potWpm);
}

QString linkHelp() {
    return CommandLine::tr("The serial port's name, %1 by default. The port is a link in "
                           "quorvel/ports in the runtime directory.")
        .arg(standardLink);
}

struct Options {
    QCommandLineOption headless{u"headless"_s, CommandLine::tr("Shows no window.")};
    QCommandLineOption transcript{u"transcript"_s, transcriptHelp(), u"FILE"_s};
    QCommandLineOption registers{u"registers"_s, registersHelp(), u"FILE"_s};
    QCommandLineOption speed{u"speed"_s, speedHelp(), u"WPM"_s, QString::number(Profile{}.potWpm)};
    QCommandLineOption profile{u"profile"_s, profileList(), u"NAMES"_s, u"default"_s};
    QCommandLineOption trouble{u"trouble"_s, troubleList(), u"NAMES"_s,
                               QString::fromUtf8(noTroubles.data())};
    QCommandLineOption seed{
        u"seed"_s,
        CommandLine::tr("Has chance do the same to the line as it did with this number, 1 by "
                        "default."),
        u"NUMBER"_s, u"1"_s};
    QCommandLineOption paddle{
        u"paddle"_s,
        CommandLine::tr("Standard input works the paddle: \".\" and \"-\" each close a "
                        "contact, and anything else opens both.")};
    QCommandLineOption wav{u"wav"_s,
                           CommandLine::tr("Saves the sidetone to %1, a WAV file.").arg(u"FILE"_s),
                           u"FILE"_s};
    QCommandLineOption script{
        u"script"_s,
        CommandLine::tr("Works the keyer as %1 says, \"-\" for standard input, and ends with it; "
                        "the exit status is 3 if what it expects did not happen. Lines of it are: "
                        "%2")
            .arg(u"FILE"_s, scriptUsage()),
        u"FILE"_s};
    QCommandLineOption fast{
        u"fast"_s, CommandLine::tr("The script's time passes as fast as it can, and no port is "
                                   "plugged in.")};
    QCommandLineOption link{u"link"_s, linkHelp(), u"NAME"_s, standardLink};
};

/// What is wrong with the script's options; empty when nothing is.
QString readScript(const QCommandLineParser& parser, const Options& options, CommandLine& result) {
    result.scriptPath = parser.value(options.script);
    result.isFast = parser.isSet(options.fast);
    if (parser.isSet(options.script) && result.scriptPath.isEmpty()) {
        return CommandLine::tr("The script needs a file name.");
    }
    if (result.isFast && result.scriptPath.isEmpty()) {
        return CommandLine::tr("Only a script can be fast.");
    }
    if (result.isPaddled && result.scriptPath == u"-"_s) {
        return CommandLine::tr("Standard input is either the script or the paddle.");
    }
    return {};
}

/// What is wrong with the line's options; empty when nothing is.
QString readTroubles(const QCommandLineParser& parser, const Options& options,
                     CommandLine& result) {
    const QString names = parser.value(options.trouble);
    const auto troubles = troublesNamed(names.toStdString());
    if (!troubles) {
        return CommandLine::tr("'%1' is no trouble; --help lists them.").arg(names);
    }
    bool isNumber = false;
    result.troubles = *troubles;
    result.seed = parser.value(options.seed).toUInt(&isNumber);
    return isNumber ? QString()
                    : CommandLine::tr("'%1' is no seed: a whole number, not below 0.")
                          .arg(parser.value(options.seed));
}

/// What is wrong with the values; empty when nothing is.
QString readValues(const QCommandLineParser& parser, const Options& options, CommandLine& result) {
    result.isHeadless = parser.isSet(options.headless);
    result.isPaddled = parser.isSet(options.paddle);
    const QString profileNames = parser.value(options.profile);
    for (const QString& name : profileNames.split(u',')) {
        if (!profileNamed(name.toStdString())) {
            return CommandLine::tr("Unknown profile '%1'; --help lists them.").arg(name);
        }
    }
    bool isNumber = false;
    const int speed = parser.value(options.speed).toInt(&isNumber);
    if (!isNumber || speed < slowestPot || speed > fastestPot) {
        return CommandLine::tr("The speed is %1 to %2 words per minute, not '%3'.")
            .arg(slowestPot)
            .arg(fastestPot)
            .arg(parser.value(options.speed));
    }
    result.linkName = parser.value(options.link);
    if (!PortLink::isValidName(QFile::encodeName(result.linkName).toStdString())) {
        return CommandLine::tr("'%1' cannot name a serial port: a name has 1 to 200 characters, no "
                               "slash, and does not begin with a dot.")
            .arg(result.linkName);
    }
    result.transcriptPath = parser.value(options.transcript);
    if (parser.isSet(options.transcript) && result.transcriptPath.isEmpty()) {
        return CommandLine::tr("The transcript needs a file name.");
    }
    result.registersPath = parser.value(options.registers);
    if (parser.isSet(options.registers) && result.registersPath.isEmpty()) {
        return CommandLine::tr("The registers need a file name.");
    }
    result.wavPath = parser.value(options.wav);
    if (parser.isSet(options.wav) && result.wavPath.isEmpty()) {
        return CommandLine::tr("The sound needs a file name.");
    }
    result.profileNames = profileNames;
    result.profile = profileNamed(profileNames.toStdString()).value();
    result.profile.potWpm = speed;
    const QString wrongTrouble = readTroubles(parser, options, result);
    return wrongTrouble.isEmpty() ? readScript(parser, options, result) : wrongTrouble;
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments) {
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("A Morse keyer made of software: it plugs itself in as a serial port, obeys the host\n"
           "program that opens it, and prints what it keys to standard output."));
    const QCommandLineOption help({u"h"_s, u"help"_s}, tr("Shows this text."));
    const QCommandLineOption version({u"v"_s, u"version"_s}, tr("Shows the version."));
    parser.addOptions({help, version, options.headless, options.transcript, options.registers,
                       options.speed, options.profile, options.trouble, options.seed,
                       options.paddle, options.wav, options.script, options.fast, options.link});

    CommandLine result;
    if (!parser.parse(arguments)) {
        result.error = parser.errorText();
    } else if (parser.isSet(help)) {
        result.answer = parser.helpText();
    } else if (parser.isSet(version)) {
        result.answer = u"%1 %2\n"_s.arg(QCoreApplication::applicationName(),
                                         QCoreApplication::applicationVersion());
    } else if (!parser.positionalArguments().isEmpty()) {
        result.error = tr("Unexpected argument '%1'.").arg(parser.positionalArguments().first());
    } else {
        result.error = readValues(parser, options, result);
    }
    return result;
}

} // namespace virtualkeyer
