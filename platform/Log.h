#pragma once

#include <QString>

/// Writes one line to the diagnostic log: standard error, which is the journal in a desktop
/// session. There are no levels. It stays one line, whatever others have put into the names in it.
/// Any thread.
void logLine(const QString& line);
