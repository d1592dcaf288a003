#pragma once

/// The message buttons and the beacon as the program comes with them.
class PreferencesMessagesViewController {
  public:
    PreferencesMessagesViewController() = delete;

    /// Registers their defaults. To be called before any setting is read.
    static void initialize();
};
