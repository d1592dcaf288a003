#pragma once

#include "virtualkeyer/script/ScriptStep.h"

#include <QString>

namespace virtualkeyer {

/// An expectation in the words of a script.
[[nodiscard]] QString scriptWords(const Expectation& expectation);

/// An action in the words of a script; empty for none.
[[nodiscard]] QString scriptWords(const ScriptAction& action);

/// The line of a script that does this at `at`, to the microsecond.
[[nodiscard]] QString scriptLine(Time at, const ScriptAction& action);

} // namespace virtualkeyer
