#pragma once

#include <QString>

#include <optional>
#include <string_view>

/// What is said in place of starting, when the first argument behind the program's name asks for
/// it: the options, or the version. Nothing otherwise: the toolkit looks at what it knows, and the
/// rest is passed over.
[[nodiscard]] std::optional<QString> commandLineAnswer(std::string_view option,
                                                       const QString& version);
