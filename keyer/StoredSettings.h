#pragma once

#include "keyer/SettingsSource.h"

class SettingsStore;

/// The settings as the operator has stored them; each is read afresh whenever it is asked for.
class StoredSettings {
  public:
    /// Reads from the store that the whole program shares.
    StoredSettings();

    [[nodiscard]] bool flag(QLatin1StringView key) const;
    [[nodiscard]] qint64 integer(QLatin1StringView key) const;
    [[nodiscard]] double real(QLatin1StringView key) const;
    [[nodiscard]] std::uint8_t code(QLatin1StringView key, std::span<const Choice> choices) const;

  private:
    const SettingsStore& _store;
};

static_assert(SettingsSource<StoredSettings>);
