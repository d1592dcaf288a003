#pragma once

#include "virtualkeyer/core/Profile.h"
#include "virtualkeyer/pty/Troubles.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <cstdint>

namespace virtualkeyer {

/// What the program was asked to do.
struct CommandLine {
    Q_DECLARE_TR_FUNCTIONS(VirtualKeyerCommandLine)

  public:
    /// Text to print and leave it at that: the help or the version.
    QString answer;
    /// What is wrong with the options, for standard error; empty when nothing is.
    QString error;
    bool isHeadless = false;
    /// Whether there is to be a window and can be none.
    bool lacksWindow = false;
    /// Whether standard input works the paddle.
    bool isPaddled = false;
    Profile profile;
    /// As NamedProfiles takes them.
    QString profileNames;
    Troubles troubles;
    /// Of what chance does to the line.
    std::uint32_t seed = 1;
    QString linkName;
    /// Empty for no transcript.
    QString transcriptPath;
    /// Empty for no file of registers.
    QString registersPath;
    /// Empty for no sound.
    QString wavPath;
    /// Empty for no script, "-" for standard input.
    QString scriptPath;
    /// Whether the script's time passes as fast as it can, without a port.
    bool isFast = false;

    /// Reads the program's arguments, its own name first.
    [[nodiscard]] static CommandLine parse(const QStringList& arguments);
};

} // namespace virtualkeyer
