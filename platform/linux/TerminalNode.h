#pragma once

#include <QString>

/// What can be told about a terminal's node without opening it. Opening would raise the modem
/// lines of a serial port, and hang up a pseudo-terminal's other end at the close.
namespace TerminalNode {

/// True when `path` leads to a terminal device. The nodes that stand for another terminal
/// (/dev/tty, /dev/console) or make one (/dev/ptmx) are none.
[[nodiscard]] bool isTerminal(const QString& path);

} // namespace TerminalNode
