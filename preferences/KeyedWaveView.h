#pragma once

#include <QWidget>

#include <optional>

class KeyedWavePicture;
class QLabel;
class QSpinBox;
class WinKeyerUsb;

/// A picture of what the timing settings do to a short text, at the speed of the keyer's speed
/// pot; while that is not known, at a speed that the operator chooses. It follows the settings
/// store by itself. Main thread only.
class KeyedWaveView final : public QWidget {
    Q_OBJECT
  public:
    explicit KeyedWaveView(QWidget* parent = nullptr);

    /// Takes the speed from now on from the pot of `engine`'s keyer.
    void follow(const WinKeyerUsb& engine);

  private:
    void layOut();
    void takeKeyersSpeed(std::optional<int> wpm);
    void showWave();

    QSpinBox* _speed;
    QLabel* _lengths;
    KeyedWavePicture* _picture;
};
