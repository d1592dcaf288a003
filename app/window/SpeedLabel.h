#pragma once

#include <QLabel>

class ChosenSpeed;
class WinKeyerUsb;

/// Shows the speed, and whose it is: the knob's, the chosen one, or that of high-speed CW. A click
/// goes back to the knob. A screen reader is told the same as the label's description. Main thread
/// only.
class SpeedLabel final : public QLabel {
    Q_OBJECT
  public:
    using QLabel::QLabel;

    /// Follows both, which must outlive the label. `source` is where to say whose speed it is.
    void follow(const WinKeyerUsb& engine, ChosenSpeed& speed, QLabel& source);

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    [[nodiscard]] QString highSpeed() const;
    void show();

    const WinKeyerUsb* _engine = nullptr;
    ChosenSpeed* _speed = nullptr;
    QLabel* _source = nullptr;
};
