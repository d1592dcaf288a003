#pragma once

#include "preferences/KeyedWave.h"

#include <QWidget>

#include <optional>

class QLabel;
class QSpinBox;
class WinKeyerUsb;

/// A picture of what the timing settings do to a short text, at the speed of the keyer's speed
/// pot; while that is not known, at a speed that the operator chooses. It follows the settings
/// store and the keyer engine by itself.
class KeyedWaveView final : public QWidget {
    Q_OBJECT
  public:
    explicit KeyedWaveView(QWidget* parent = nullptr);

  private:
    QSpinBox* _speed;
};
