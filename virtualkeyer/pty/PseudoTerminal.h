#pragma once

#include "virtualkeyer/pty/FileDescriptor.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace virtualkeyer {

/// The keyer's end of a serial port made of software: a raw pseudo-terminal.
///
/// It keeps the application's side open itself, so that the master never reports a hang-up while
/// no application has the port, and watches that side for openings and closings. Everything here
/// is non-blocking. One thread. Failures of the system are thrown as std::system_error.
class PseudoTerminal {
  public:
    PseudoTerminal();

    /// The terminal device that the application opens, such as /dev/pts/3.
    [[nodiscard]] const std::string& slavePath() const { return _slavePath; }

    /// Readable when the host has sent bytes.
    [[nodiscard]] int master() const { return _master.number(); }

    /// Readable when the port was opened or closed; then call takeOpenings().
    ///
    /// -1 where the system has no watches left to give. Then takeOpenings() has to be called from
    /// time to time, and notices only an application that opens the port for its exclusive use.
    [[nodiscard]] int watch() const { return _watch.number(); }

    /// How many times the port went from closed to open since the last call.
    ///
    /// An opening and the last closing drop what the keyer had sent and nobody read, as a serial
    /// adapter does. The closing also ends what the application had set: exclusive use, line mode.
    [[nodiscard]] int takeOpenings();

    /// Whether an application has the port, as of the last takeOpenings().
    [[nodiscard]] bool isOpenByApplication() const { return _openCount > 0; }

    /// Reads what the host has sent, up to the size of `buffer`; the bytes read, 0 for none yet.
    [[nodiscard]] std::size_t read(std::span<std::uint8_t> buffer);

    /// Sends bytes to the host, which gets them in one read if it can. What finds no room because
    /// the host has left a full buffer unread is lost.
    void write(std::span<const std::uint8_t> bytes);

  private:
    void holdSlave();
    [[nodiscard]] int takeExclusiveOpenings();
    void afterOpened();
    void afterClosed();

    FileDescriptor _master;
    std::string _slavePath;
    FileDescriptor _slave;
    FileDescriptor _watch;
    int _openCount = 0;
};

} // namespace virtualkeyer
