#pragma once

#include <QWidget>

class KeyedWavePicture;
class QLabel;
class QSpinBox;

/// A picture of what the timing settings do to a short text, at the speed of the keyer's speed
/// pot; while that is not known, at a speed that the operator chooses. It follows the settings
/// store and the keyer engine by itself. Main thread only.
class KeyedWaveView final : public QWidget {
    Q_OBJECT
  public:
    explicit KeyedWaveView(QWidget* parent = nullptr);

  private:
    void layOut();
    void takeKeyersSpeed();
    void showWave();

    QSpinBox* _speed;
    QLabel* _lengths;
    KeyedWavePicture* _picture;
};
