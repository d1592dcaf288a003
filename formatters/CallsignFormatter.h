#pragma once

#include "formatters/UpperCaseFormatter.h"

/// Keeps a field to what a call sign is made of: letters, digits and the slash.
class CallsignFormatter final : public UpperCaseFormatter {
    Q_OBJECT
  public:
    using UpperCaseFormatter::UpperCaseFormatter;

    /// Never accepts a text as it was typed: the field is to show `newString` instead.
    bool isPartialStringValid(const QString& partialString, QString* newString,
                              QString* errorDescription) const;

  protected:
    /// The insertion point stays where it was in the text around it.
    void replace(QString& input, int& position) const override;
};
