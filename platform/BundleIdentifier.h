#pragma once

#include <QLatin1StringView>

/// What the desktop knows the application by: its name on the bus and of its desktop file. The
/// domain of its own errors too.
inline constexpr QLatin1StringView bundleIdentifier{"org.quorvel.Quorvel"};
