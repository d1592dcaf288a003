#pragma once

#include <QString>

/// `text` with the characters written out, as \uXXXX, that nobody sees: those that end a line, work
/// a terminal, turn the direction of what follows or have no width, so that what a stranger named
/// looks like something else. Any thread.
[[nodiscard]] QString visibleText(const QString& text);
