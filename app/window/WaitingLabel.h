#pragma once

#include <QLabel>

/// How many characters are still to be sent. It is as wide as numbers of so many digits are, so
/// that the window is not laid out anew for each character.
class WaitingLabel final : public QLabel {
    Q_OBJECT
  public:
    using QLabel::QLabel;

    /// Shows nothing for 0.
    void setCount(int count);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    [[nodiscard]] static QString textFor(const QString& number);
    void fit();
};
