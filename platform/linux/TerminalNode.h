#pragma once

#include "platform/FileDescriptor.h"

#include <QString>

/// What can be told about a terminal's node without opening it. Opening would raise the modem
/// lines of a serial port, and hang up a pseudo-terminal's other end at the close.
namespace TerminalNode {

/// True when `path` leads to a terminal device. The nodes that stand for another terminal
/// (/dev/tty, /dev/console) or make one (/dev/ptmx) are none.
[[nodiscard]] bool isTerminal(const QString& path);

/// True when the pseudo-terminal at `path` was made after the symbolic link at `link`: its number
/// is in use again, and the link was made for another terminal. A terminal that has been both used
/// and given another mode since looks younger than it is.
[[nodiscard]] bool isYoungerThanLink(const QString& path, const QString& link);

/// Holds on to a node, by which it can be told from a later one of the same number. Does not open
/// the terminal.
[[nodiscard]] FileDescriptor held(const QString& path);

/// Whether the node that is held has not been removed.
[[nodiscard]] bool isStillThere(const FileDescriptor& held);

} // namespace TerminalNode
