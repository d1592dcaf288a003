#pragma once

#include "virtualkeyer/pty/FileDescriptor.h"
#include "virtualkeyer/pty/LinkRemover.h"
#include "virtualkeyer/pty/NameClaim.h"

#include <optional>
#include <string>
#include <string_view>

namespace virtualkeyer {

/// Plugs a terminal in: a symbolic link to it in the ports directory, pulled when this is
/// destroyed, or the process is killed.
///
/// The ports directory is `quorvel/ports` in the runtime directory and holds links only, because
/// whatever is in it is a port. Who has which name stands beside it, in `quorvel/virtual-keyers`.
/// There a keyer writes down the very link that it is about to make, so that the next one can tell
/// a crashed keyer's link from somebody else's even when the terminal's number is in use again.
class PortLink {
  public:
    /// Makes the directories (0700) and the link `name` to the terminal `target`.
    ///
    /// Replaces a crashed keyer's link and one that points nowhere. Throws std::runtime_error when
    /// a living keyer has the name or something else stands in its place, which is left alone, and
    /// std::system_error when the system refuses. `name` must be valid.
    PortLink(const std::string& runtimeDirectory, const std::string& name,
             const std::string& target);

    /// Removes the link, unless somebody has put another in its place.
    ~PortLink();
    PortLink(const PortLink&) = delete;
    PortLink& operator=(const PortLink&) = delete;

    /// The link's own path.
    [[nodiscard]] const std::string& path() const { return _path; }

    /// Whether `name` can name a port: not empty, not hidden, printable, no slash, 200 at most.
    [[nodiscard]] static bool isValidName(std::string_view name);

  private:
    /// Tells one link from every other, also from one that gets its inode number later.
    [[nodiscard]] static std::string identityOf(int directory, const std::string& name);

    void makeWay();
    void plugIn(const std::string& target);

    std::string _name;
    std::string _path;
    FileDescriptor _home;
    FileDescriptor _ports;
    FileDescriptor _claims;
    NameClaim _claim;
    std::string _identity;
    std::optional<LinkRemover> _remover;
};

} // namespace virtualkeyer
