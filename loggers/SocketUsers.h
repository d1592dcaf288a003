#pragma once

#include <QString>

/// Which program has a UDP port of this machine.
namespace SocketUsers {

/// The name of the program that has a socket on that port, made of characters that are safe to
/// show; null when there is none, or it is another user's, whose sockets the system does not tell.
/// Takes some milliseconds: it looks at every process.
[[nodiscard]] QString of(quint16 port);

} // namespace SocketUsers
