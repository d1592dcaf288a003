#pragma once

#include "app/formatters/OnePass.h"

#include <QValidator>
#include <QVariant>

/// A stretch of selected text; of no length, the insertion point.
struct TextRange {
    qsizetype location = 0;
    qsizetype length = 0;
    bool operator==(const TextRange&) const = default;
};

/// Keeps a field to the characters of a message, in upper case. As a validator it serves every
/// way in which text gets into a field. Main thread only.
class MessageFormatter final : public QValidator {
    Q_OBJECT
  public:
    using QValidator::QValidator;

    /// A text in upper case; null for what is no text.
    [[nodiscard]] QString stringForObjectValue(const QVariant& object) const;

    /// Yields the text in upper case. Always succeeds.
    bool getObjectValue(QVariant* object, const QString& string, QString* errorDescription) const;

    /// Never accepts a text as it was typed: replaces it by its upper case without the first
    /// character that no message can hold. Then the proposed selection moves one place back.
    bool isPartialStringValid(QString* partialString, TextRange* proposedSelectedRange,
                              const QString& originalString, TextRange originalSelectedRange,
                              QString* errorDescription) const;

    State validate(QString& input, int& position) const override;

  private:
    mutable OnePass _onePass;
};
