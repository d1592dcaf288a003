#pragma once

/// The keyer's settings as the program comes with them.
class PreferencesWinKeyer {
  public:
    PreferencesWinKeyer() = delete;

    /// Registers their defaults. To be called before any setting is read.
    static void initialize();
};
