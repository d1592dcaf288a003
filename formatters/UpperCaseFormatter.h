#pragma once

#include <QString>
#include <QValidator>
#include <QVariant>

#include <optional>

class QLineEdit;

/// What the formatters have in common: text is in upper case, and a field that uses one as its
/// validator shows a replacement for whatever text gets into it, by whichever way. Main thread
/// only.
class UpperCaseFormatter : public QValidator {
    Q_OBJECT
  public:
    /// `field`, where there is one, is the field that is to use the formatter; its text may then
    /// be of any length.
    explicit UpperCaseFormatter(QLineEdit* field = nullptr);

    /// A text in upper case; null for what is no text.
    [[nodiscard]] QString stringForObjectValue(const QVariant& object) const;

    /// Yields the text in upper case. Always succeeds.
    bool getObjectValue(QVariant* object, const QString& string, QString* errorDescription) const;

    /// Puts the replacement in place of the text, one pass for each edit. Invalid, upon which the
    /// field takes the edit back, selection and all, when nothing of what was entered stays.
    State validate(QString& input, int& position) const final;

  protected:
    /// Typed letters reach the field in upper case: a field forgets what it can take back whenever
    /// its validator gives it a replacement.
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Makes one pass over a text as it was just edited, and moves the insertion point with it.
    virtual void replace(QString& input, int& position) const = 0;

  private:
    [[nodiscard]] bool isEdit(const QString& input) const;
    [[nodiscard]] bool changesNothing(const QString& edited, const QString& replacement) const;
    [[nodiscard]] bool isTakenBackOnRefusal() const;

    const QLineEdit* _field;
    /// What the field had when it last came to rest.
    QString _text;
    bool _hadSelection = false;
    /// What the field has just been given, and is about to ask about in its turn.
    mutable std::optional<QString> _replacement;
};
