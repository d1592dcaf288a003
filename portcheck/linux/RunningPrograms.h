#pragma once

#include <QString>

namespace RunningPrograms {

/// Whether a program of that name runs, whoever's it is. The system knows 15 characters of a name.
[[nodiscard]] bool include(const QString& name);

} // namespace RunningPrograms
