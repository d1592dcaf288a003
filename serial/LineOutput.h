#pragma once

#include <QByteArray>

#include <sys/types.h>

/// Output of a terminal whose descriptor blocks, without ever waiting for it. Main thread.
namespace LineOutput {

/// One write of as much as there is room for. -1 and errno when it failed, which with EAGAIN means
/// that there was no room at all.
[[nodiscard]] ssize_t write(int descriptor, const QByteArray& bytes);

[[nodiscard]] bool hasRoom(int descriptor);

/// How many bytes have been written and have not left the computer, as far as the driver tells: a
/// pseudo-terminal tells of none.
[[nodiscard]] int waiting(int descriptor);

/// Throws away what has been written and has not left, as far as the driver can.
void drop(int descriptor);

} // namespace LineOutput
