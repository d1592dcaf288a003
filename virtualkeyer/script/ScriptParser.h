#pragma once

#include "virtualkeyer/script/ScriptStep.h"

#include <QString>

#include <variant>

namespace virtualkeyer {

/// A line that is no line of a script; how it would be one.
struct ScriptMistake {
    QString usage;
};

/// Nothing to do, as in an empty line or a comment.
struct EmptyLine {};

/// What a line of a script means.
[[nodiscard]] std::variant<EmptyLine, ScriptStep, ScriptMistake>
readScriptLine(const QString& line);

/// The lines that there are, one of each kind, for those who have to write them.
[[nodiscard]] QString scriptUsage();

} // namespace virtualkeyer
