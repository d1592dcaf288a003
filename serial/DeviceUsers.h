#pragma once

#include <QString>
#include <QStringList>

/// Which other programs have a device open, as far as the system tells: it shows a user only the
/// descriptors of that user's own processes, and those of the same container.
namespace DeviceUsers {

/// The other processes that have the terminal at `path` open, as "NAME (process NUMBER)". The far
/// end of a pseudo-terminal does not count, though it may hold the near end as well. None for what
/// can be no terminal.
[[nodiscard]] QStringList of(const QString& path);

} // namespace DeviceUsers
