#pragma once

#include <chrono>

/// What the application tells its key guard, a byte each. The end of the channel without a farewell
/// is a message too: the application has died.
enum class GuardMessage : char {
    /// The key is down by tune, and the application lives. To be repeated more often than
    /// silenceLimit.
    Tuning = 'T',
    /// Tune is off: no sign of life is needed.
    NotTuning = 't',
    /// What waits to leave the computer is an image of the keyer's memory, and must leave it whole.
    LoadingMemory = 'M',
    NotLoadingMemory = 'm',
    /// The link is being taken down in order: the guard ends, and leaves the keyer alone.
    Farewell = 'F'
};

/// With what status the guard ends.
enum class GuardEnd : int {
    Farewell = 0,
    CannotStart = 1,
    /// The port has gone.
    PortLost = 2,
    /// It let go of the key, and the application had died.
    AfterDeath = 3,
    /// It let go of the key and ended host mode, since the application was silent while it tuned.
    AfterSilence = 4
};

/// For how long the application may be silent while it tunes.
inline constexpr std::chrono::milliseconds silenceLimit{3000};
