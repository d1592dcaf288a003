#pragma once

#include "platform/Application.h"

#include <optional>

class SettingsStore;

/// What the operator has to be told of the settings' file: where one that could not be read is now,
/// and where the settings go meanwhile. Nothing when all is well with it.
[[nodiscard]] std::optional<Alert> settingsFileAlert(const SettingsStore& settings);

/// What the operator has to be told when the file was damaged while it was in use.
[[nodiscard]] std::optional<Alert> settingsDamagedAlert(const SettingsStore& settings);

/// What the operator has to be told when settings cannot be stored: what will be lost, where they
/// should have gone, and why not. Nothing once they have been stored.
[[nodiscard]] std::optional<Alert> settingsNotStoredAlert(const SettingsStore& settings);
