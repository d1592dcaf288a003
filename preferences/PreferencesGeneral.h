#pragma once

/// The choice of port and the operator's call sign as the program comes with them.
class PreferencesGeneral {
  public:
    PreferencesGeneral() = delete;

    /// Registers their defaults. To be called before any setting is read.
    static void initialize();
};
