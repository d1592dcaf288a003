#pragma once

#include "formatters/UpperCaseFormatter.h"

/// A stretch of selected text; of no length, the insertion point.
struct TextRange {
    qsizetype location = 0;
    qsizetype length = 0;
    bool operator==(const TextRange&) const = default;
};

/// Keeps a field to the characters that a message can hold.
class MessageFormatter final : public UpperCaseFormatter {
    Q_OBJECT
  public:
    using UpperCaseFormatter::UpperCaseFormatter;

    /// Never accepts a text as it was typed: replaces it by its upper case without the first
    /// character that no message can hold. Then the proposed selection moves one place back.
    bool isPartialStringValid(QString* partialString, TextRange* proposedSelectedRange,
                              const QString& originalString, TextRange originalSelectedRange,
                              QString* errorDescription) const;

    /// A stored message reads as it will be sent. A call sign stays as it is, so that the "your
    /// call" that the program comes with reads as the request that it is.
    void fixup(QString& input) const override;

  protected:
    void replace(QString& input, int& position) const override;
};
