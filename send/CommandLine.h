#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// What the program was asked to do.
struct CommandLine {
    /// Text to print and leave it at that: the help or the version.
    std::string answer;
    /// What is wrong with the options, for standard error; empty when nothing is.
    std::string error;
    std::uint16_t port = 6789;
    std::optional<int> speed;
    bool isAbort = false;
    bool hasToWait = false;
    /// The words of the arguments; nothing for the text of standard input.
    std::optional<std::string> text;

    /// Reads the program's arguments, its own name first.
    [[nodiscard]] static CommandLine parse(int argc, char* argv[]);
};
