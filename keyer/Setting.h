#pragma once

#include <QHash>
#include <QString>
#include <QVariant>
#include <QtGlobal>

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

/// One entry of a choice list: the text that is offered and stored, and its bits in the keyer's
/// register.
struct Choice {
    QLatin1StringView text;
    std::uint8_t code;
};

/// The values that the keyer knows, both ends included, in the setting's own unit.
struct Range {
    double minimum;
    double maximum;
};

/// A setting: its key in the settings store, its registered default, which also tells its type,
/// its choice list where it has one, and what may be chosen of a number. Values beyond the range
/// are stored and sent as they are: it is the controls that keep to it.
struct Setting {
    QLatin1StringView key;
    std::variant<bool, int, double, QLatin1StringView> defaultValue;
    std::span<const Choice> choices = {};
    std::optional<Range> range = {};
};

/// Equality that the compiler can evaluate too, unlike Qt's own.
[[nodiscard]] constexpr bool isSameText(QLatin1StringView one, QLatin1StringView other) {
    return std::string_view(one.data(), static_cast<std::size_t>(one.size())) ==
           std::string_view(other.data(), static_cast<std::size_t>(other.size()));
}

[[nodiscard]] inline bool isSameText(QLatin1StringView one, const QString& other) {
    return one == other;
}

/// The code of the entry that equals `text`, case included; 0 when there is none.
template <typename Text>
[[nodiscard]] constexpr std::uint8_t codeOfChoice(std::span<const Choice> choices,
                                                  const Text& text) {
    for (const auto& choice : choices) {
        if (isSameText(choice.text, text)) {
            return choice.code;
        }
    }
    return 0;
}

/// What the operator reads for a text that a setting has by default or offers: numbers and words
/// are stored as English has them, whatever the language.
[[nodiscard]] QString shownText(const QString& text);

/// The default values by key, as the settings store registers them.
[[nodiscard]] QHash<QString, QVariant> defaultsOf(std::span<const Setting> settings);
