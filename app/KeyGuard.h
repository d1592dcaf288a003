#pragma once

#include "guard/GuardMessage.h"
#include "platform/Clock.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

class KeyGuardProcess;
class ORSSerialPort;
class WinKeyerUsb;

/// Sees to it that there is a key guard for as long as the keyer's port is open: one for each
/// opening, ended before the port is closed. While tune is on it gives the guard signs of life, by
/// way of the event loop, so that they stop when the main thread hangs.
///
/// Without its program the application runs on, and the log says so. Main thread only.
class KeyGuard final : public QObject {
    Q_OBJECT
  public:
    /// `engine` must outlive this. `program` is the guard's program.
    KeyGuard(WinKeyerUsb& engine, const QString& program);
    ~KeyGuard() override;

    /// The guard's process; 0 while there is none.
    [[nodiscard]] int processIdentifier() const;

  Q_SIGNALS:
    /// The application was silent while it tuned, and the guard has let go of the key and ended
    /// host mode: tune is off by now, and the link has to be set up again. With what to tell the
    /// operator.
    void hasLetGo(const QString& notice);
    /// The link has no guard; with what to tell the operator.
    void hasNoGuard(const QString& notice);

  private:
    void followLink();
    void followPort(const std::shared_ptr<ORSSerialPort>& port);
    void followOpening();
    void followTune();
    void giveSign();
    void tell(GuardMessage message);
    void start();
    void end();
    void guardHasEnded(std::optional<GuardEnd> how);

    WinKeyerUsb& _engine;
    const QString _program;
    std::shared_ptr<ORSSerialPort> _port;
    std::unique_ptr<KeyGuardProcess> _guard;
    std::shared_ptr<Timer> _nextSign;
    bool _isReplacement = false;
};
