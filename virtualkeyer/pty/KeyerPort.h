#pragma once

#include "virtualkeyer/pty/PortLink.h"
#include "virtualkeyer/pty/PseudoTerminal.h"

#include <optional>
#include <string>

namespace virtualkeyer {

/// The keyer's serial port as the system sees it: a terminal, and the link under which it is found.
/// They come and go together. One thread.
class KeyerPort {
  public:
    /// Takes what PortLink takes, and throws as it does. Plugged in from the beginning.
    KeyerPort(std::string runtimeDirectory, std::string name);

    [[nodiscard]] bool isPluggedIn() const { return _terminal.has_value(); }
    /// Does nothing when it is. The terminal is a new one.
    void plugIn();
    /// Takes the link away, and then hangs up. Does nothing when it is out.
    void pull();

    /// The port has to be plugged in.
    [[nodiscard]] PseudoTerminal& terminal() { return *_terminal; }
    /// The link's path. The port has to be plugged in.
    [[nodiscard]] const std::string& path() const { return _link->path(); }

  private:
    std::string _runtimeDirectory;
    std::string _name;
    std::optional<PseudoTerminal> _terminal;
    std::optional<PortLink> _link;
};

} // namespace virtualkeyer
