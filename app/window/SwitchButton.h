#pragma once

#include <QPushButton>

/// A push button that stays on or off, and shows which by a filled or an empty lamp: in some themes
/// the shade of a pressed button is all that tells, which is too little.
class SwitchButton final : public QPushButton {
    Q_OBJECT
  public:
    explicit SwitchButton(QWidget* parent = nullptr);

    /// Something more to show behind the text, a short one, where the button is wide enough; it
    /// would like room for `widest` from the start, so that nothing moves.
    void setDetail(const QString& detail);
    void reserveDetail(const QString& widest);

    [[nodiscard]] QSize sizeHint() const override { return sizeWith(_widestDetail); }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeWith({}); }

  Q_SIGNALS:
    void enabledChanged(bool isEnabled);

  protected:
    void changeEvent(QEvent* event) override;
    void initStyleOption(QStyleOptionButton* option) const override;

  private:
    [[nodiscard]] QString withLamp() const;
    [[nodiscard]] QSize sizeWith(const QString& detail) const;

    QString _detail;
    QString _widestDetail;
};
