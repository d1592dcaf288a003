#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace virtualkeyer {

/// Where a command goes.
enum class CommandKind {
    Admin,     ///< about the keyer itself, also while no host has opened it
    Immediate, ///< obeyed at once
    Buffered,  ///< waits in the buffer with the text
    Text,      ///< a character for the buffer
};

/// One whole command of the host.
struct Command {
    CommandKind kind;
    std::uint8_t code; ///< the admin number, the command code or the character
    std::vector<std::uint8_t> parameters;
};

/// Parameters that a command with `code` 01 to 1F takes. The pointer command (16) takes one more
/// unless its first is 0.
[[nodiscard]] std::size_t parameterCount(std::uint8_t code);

/// Cuts the host's bytes into commands. Parameters are raw: whatever their value, they are no text.
class Parser {
  public:
    /// Takes one byte; the command if that completes one. A closed keyer takes admin commands only.
    [[nodiscard]] std::optional<Command> take(std::uint8_t byte, bool isOpen);

    /// Whether no command has begun that is not complete.
    [[nodiscard]] bool isIdle() const { return !_command && !_awaitsAdminNumber; }

    /// Forgets a command that has begun.
    void reset();

  private:
    [[nodiscard]] std::optional<Command> begin(std::uint8_t byte, bool isOpen);
    [[nodiscard]] std::optional<Command> completed();

    std::optional<Command> _command;
    bool _awaitsAdminNumber = false;
    std::size_t _missing = 0;
};

} // namespace virtualkeyer
