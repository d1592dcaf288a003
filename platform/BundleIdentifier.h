#pragma once

#include <QLatin1StringView>

/// What the desktop knows the application by: its name on the bus, the name of its desktop file,
/// and the domain of its own errors.
inline constexpr QLatin1StringView bundleIdentifier{"org.quorvel.Quorvel"};
