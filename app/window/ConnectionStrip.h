#pragma once

#include "app/window/Strip.h"

class WinKeyerUsb;

/// A strip across the window that is there while no keyer is connected: says that nothing is sent,
/// and what becomes of what is typed, and leads to the choice of port and to the check of them all.
class ConnectionStrip final : public Strip {
    Q_OBJECT
  public:
    explicit ConnectionStrip(QWidget* parent = nullptr);

    /// Follows `engine`, which must outlive the strip.
    void setEngine(const WinKeyerUsb& engine);
    /// While something else in the window says as much, the strip is not there.
    void setMuted(bool isMuted);

  Q_SIGNALS:
    /// The operator wants to choose a port.
    void portRequested();
    /// The operator wants to know why a port does not work.
    void portCheckRequested();

  private:
    void showIfNeeded();

    const WinKeyerUsb* _engine = nullptr;
    bool _isMuted = false;
};
