#pragma once

#include "app/formatters/OnePass.h"

#include <QValidator>
#include <QVariant>

/// Keeps a field to what a call sign is made of: letters, shown in upper case, digits and the
/// slash. As a validator it serves every way in which text gets into a field. Main thread only.
class CallsignFormatter final : public QValidator {
    Q_OBJECT
  public:
    using QValidator::QValidator;

    /// A text in upper case; null for what is no text.
    [[nodiscard]] QString stringForObjectValue(const QVariant& object) const;

    /// Yields the text in upper case. Always succeeds.
    bool getObjectValue(QVariant* object, const QString& string, QString* errorDescription) const;

    /// Never accepts a text as it was typed: the field is to show `newString` instead.
    bool isPartialStringValid(const QString& partialString, QString* newString,
                              QString* errorDescription) const;

    /// Puts the replacement in place of the text, with the insertion point where it was in the
    /// text around it.
    State validate(QString& input, int& position) const override;

  private:
    mutable OnePass _onePass;
};
