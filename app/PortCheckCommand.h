#pragma once

#include <QStringList>

#include <string_view>

/// The check of the ports on a terminal, which needs no screen.
namespace PortCheckCommand {

/// The first argument behind the program's name that asks for it.
inline constexpr std::string_view option{"--check-ports"};

/// Looks at every port and prints what was found; with "--ask-keyer PORT" among `arguments`, the
/// ones behind the option, it also asks the keyer on that port, if the port is free. The exit
/// status: 0 when a port can be used, or the keyer asked for answers; 1 when not; 2 for other
/// arguments. Needs a QCoreApplication.
[[nodiscard]] int run(const QStringList& arguments);

} // namespace PortCheckCommand
