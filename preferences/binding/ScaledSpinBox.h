#pragma once

#include <QSpinBox>

/// A number that is stored in steps of the keyer's own and shown in a unit that people use: with a
/// scale of 10, a value of 3 reads as 30.
///
/// What is typed between two steps becomes the nearest one when it is left. Not for negative
/// numbers.
class ScaledSpinBox final : public QSpinBox {
    Q_OBJECT
    Q_PROPERTY(int scale READ scale WRITE setScale)
  public:
    using QSpinBox::QSpinBox;

    /// How much is shown for a value of 1.
    [[nodiscard]] int scale() const { return _scale; }
    void setScale(int scale);

  protected:
    [[nodiscard]] QString textFromValue(int value) const override;
    [[nodiscard]] int valueFromText(const QString& text) const override;
    [[nodiscard]] QValidator::State validate(QString& text, int& position) const override;
    void fixup(QString& text) const override;

  private:
    [[nodiscard]] QString bare(const QString& text) const;

    int _scale = 1;
};
