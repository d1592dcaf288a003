#pragma once

#include "keyer/KeyerSettings.h"
#include "keyer/SettingsSource.h"

#include <stdexcept>

/// The keyer settings at their defaults, readable at compile time.
class DefaultSettings {
  public:
    [[nodiscard]] constexpr bool flag(QLatin1StringView key) const {
        return std::get<bool>(value(key));
    }

    [[nodiscard]] constexpr qint64 integer(QLatin1StringView key) const {
        return std::get<int>(value(key));
    }

    [[nodiscard]] constexpr double real(QLatin1StringView key) const {
        return std::get<double>(value(key));
    }

    [[nodiscard]] constexpr std::uint8_t code(QLatin1StringView key,
                                              std::span<const Choice> choices) const {
        return codeOfChoice(choices, std::get<QLatin1StringView>(value(key)));
    }

  private:
    [[nodiscard]] static constexpr const decltype(Setting::defaultValue)&
    value(QLatin1StringView key) {
        for (const auto& setting : keyerSettings) {
            if (isSameText(setting.key, key)) {
                return setting.defaultValue;
            }
        }
        throw std::out_of_range("no such keyer setting");
    }
};

static_assert(SettingsSource<DefaultSettings>);
