#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// A socket to the Quorvel that runs on this machine. Throws std::system_error for what should not
/// go wrong.
class Connection {
  public:
    explicit Connection(std::uint16_t port);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// False when nobody listens, as far as that is known by now.
    [[nodiscard]] bool send(std::string_view datagram) const;
    /// Whether somebody listens. Takes a moment.
    [[nodiscard]] bool isHeard() const;
    /// Waits for a reply, and returns it without its line end; empty when nobody listens any more.
    [[nodiscard]] std::string reply() const;

  private:
    [[nodiscard]] bool waitForInput(int milliseconds) const;

    int _socket;
};
