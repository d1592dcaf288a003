#pragma once

#include "platform/Clock.h"

#include <QObject>

#include <memory>

class WinKeyerUsb;

/// Counts the seconds until the beacon sends again.
class BeaconCountdown final : public QObject {
    Q_OBJECT
  public:
    /// `engine` must outlive this.
    BeaconCountdown(const WinKeyerUsb& engine, QObject* parent);

    /// Whole seconds yet, rounded up; -1 while the beacon is off, or not waiting to send again.
    [[nodiscard]] int seconds() const { return _seconds; }

  Q_SIGNALS:
    void secondsChanged();

  private:
    void follow();
    void count();

    const WinKeyerUsb& _engine;
    std::shared_ptr<Timer> _timer;
    int _seconds = -1;
};
