#pragma once

#include <QString>

/// What can be told about a terminal's node without opening it. Opening would raise the modem
/// lines of a serial port, and hang up a pseudo-terminal's other end at the close.
namespace TerminalNode {

/// True when `path` leads to a terminal device. The nodes that stand for another terminal
/// (/dev/tty, /dev/console) or make one (/dev/ptmx) are none.
[[nodiscard]] bool isTerminal(const QString& path);

/// True when the pseudo-terminal at `path` was made after the symbolic link at `link`: its number
/// is in use again, and the link was made for another terminal.
[[nodiscard]] bool isYoungerThanLink(const QString& path, const QString& link);

} // namespace TerminalNode
