#pragma once

#include <QString>

#include <optional>
#include <utility>

/// Lets a validator pass over a text once for each edit: a field that was given a replacement asks
/// about that replacement again, and would go on until nothing is left to replace.
class OnePass {
  public:
    /// Whether `input` is what the field was just given. True once for each replacement.
    [[nodiscard]] bool isOwnReplacement(const QString& input) {
        const auto replacement = std::exchange(_replacement, std::nullopt);
        return replacement == input;
    }

    /// The field had `typed` and is given `replacement`.
    void replaced(const QString& typed, const QString& replacement) {
        if (typed != replacement) {
            _replacement = replacement;
        }
    }

  private:
    std::optional<QString> _replacement;
};
