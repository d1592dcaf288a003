#pragma once

#include <QLabel>

class WinKeyerUsb;

/// Says in words which port the keyer is on and what it is doing. A screen reader is told of each
/// change, with the words as the line's description.
class KeyerStatusLine final : public QLabel {
    Q_OBJECT
  public:
    using QLabel::QLabel;

    /// Follows `engine`, which must outlive the line.
    void setEngine(const WinKeyerUsb& engine);

  private:
    void show(const QString& status);
};
