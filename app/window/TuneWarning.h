#pragma once

#include <QLabel>

class WinKeyerUsb;

/// A strip across the window that is there while the operator tunes, and says so. A screen reader
/// announces it as an alert.
class TuneWarning final : public QLabel {
    Q_OBJECT
  public:
    explicit TuneWarning(QWidget* parent = nullptr);

    /// Follows `engine`, which must outlive the warning.
    void setEngine(const WinKeyerUsb& engine);

  private:
    void setShown(bool isShown);
};
