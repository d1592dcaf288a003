#pragma once

#include "app/window/Strip.h"

#include <QList>

class WinKeyerUsb;

/// A strip across the window that is there while no keyer is connected: says that nothing is sent,
/// and what becomes of what is typed, and leads to the choice of port and to the check of them all.
/// While the machine sleeps it says that.
class ConnectionStrip final : public Strip {
    Q_OBJECT
  public:
    explicit ConnectionStrip(QWidget* parent = nullptr);

    /// Follows `engine`, which must outlive the strip.
    void setEngine(const WinKeyerUsb& engine);
    /// While something else in the window says as much of a keyer that is missing, the strip is not
    /// there for that.
    void setMuted(bool isMuted);

  Q_SIGNALS:
    /// The operator wants to choose a port.
    void portRequested();
    /// The operator wants to know why a port does not work.
    void portCheckRequested();

  private:
    void follow();
    void say(bool isAsleep);

    const WinKeyerUsb* _engine = nullptr;
    QList<QPushButton*> _buttons;
    bool _isMuted = false;
};
