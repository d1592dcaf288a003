#pragma once

#include <QDoubleSpinBox>

#include <optional>

struct TypedNumber;

/// A number that is typed or stepped. It is stored in a unit of its own and may be shown in one
/// that people use: with a scale of 10, a value of 3 reads as 30.
///
/// Any number may be typed, and stands there until another one does. The value is always one of
/// the range: what lies outside is never made into one that nobody asked for. A number between two
/// steps becomes the nearer one when it is left.
class NumberBox final : public QDoubleSpinBox {
    Q_OBJECT
    Q_PROPERTY(int scale READ scale WRITE setScale)
    /// For assistive tools, in place of the one that is inherited, which would cut a number off at
    /// the end of the range, and would set a box that is disabled.
    Q_PROPERTY(double value READ shownNumber WRITE setValue USER true)
  public:
    explicit NumberBox(QWidget* parent = nullptr);

    /// How much is shown for a value of 1.
    [[nodiscard]] int scale() const { return _scale; }
    void setScale(int scale);

    /// Shows a number that nobody has chosen just now, inside the range or not.
    void showNumber(double number);
    /// Chooses a number; one that lies outside the range only stands there, as if it was typed.
    /// Nothing happens while the box is disabled.
    void setValue(double number);
    /// What stands there, inside the range or not, in the value's unit; the value where that is
    /// no number.
    [[nodiscard]] double shownNumber() const;

    /// Whether what stands there is no number of the range.
    [[nodiscard]] bool isHeld() const { return _held.has_value(); }
    [[nodiscard]] bool isNumber() const;
    /// Whether what stands there becomes another number of the range when it is left.
    [[nodiscard]] bool isBetweenSteps() const;
    /// What stands there, without its unit.
    [[nodiscard]] QString typedText() const { return bare(text()); }

    /// From outside the range, a step leads to its nearer end.
    void stepBy(int steps) override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    [[nodiscard]] QString textFromValue(double value) const override;
    [[nodiscard]] double valueFromText(const QString& text) const override;
    [[nodiscard]] QValidator::State validate(QString& text, int& position) const override;

  Q_SIGNALS:
    /// Another text stands there, which the value does not follow yet. Nobody is going to end the
    /// typing when it was `byTool`.
    void typed(bool byTool);

  protected:
    [[nodiscard]] StepEnabled stepEnabled() const override;

  private:
    [[nodiscard]] QString bare(const QString& text) const;
    [[nodiscard]] TypedNumber read(const QString& text) const;
    [[nodiscard]] bool isInRange(double shown) const;
    [[nodiscard]] bool isOffered(double number) const;
    void followText(const QString& text);
    void choose(double number);

    int _scale = 1;
    /// What stands there in place of the value; set aside while the box is measured.
    mutable std::optional<QString> _held;
    /// The text that is about to be announced was changed by key, mouse or input method.
    bool _isEdited = false;
};
