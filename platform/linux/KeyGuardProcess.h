#pragma once

#include "guard/GuardMessage.h"
#include "platform/FileDescriptor.h"

#include <QObject>
#include <QSocketNotifier>
#include <QString>

#include <memory>
#include <optional>
#include <sys/types.h>

/// A running key guard: the program that lets go of the key when this one dies or hangs.
///
/// It has the port that it watches in common with this program, locks included, so it has to be
/// ended before the port is closed: destroying this ends it, and waits until it has gone. Main
/// thread only.
class KeyGuardProcess final : public QObject {
    Q_OBJECT
  public:
    /// Where the guard's program is: beside the running one, or where it is installed to.
    [[nodiscard]] static QString standardProgram();

    /// Starts `program` over the open terminal `port`, a descriptor. Throws std::system_error when
    /// it cannot be started.
    KeyGuardProcess(const QString& program, int port);
    ~KeyGuardProcess() override;

    /// Nothing happens when the guard has ended.
    void tell(GuardMessage message);

    /// 0 when the guard has ended.
    [[nodiscard]] pid_t processIdentifier() const { return _process; }

  Q_SIGNALS:
    /// It has ended by itself; nothing when something else ended it.
    void ended(std::optional<GuardEnd> how);

  private:
    void start(const QString& program, int port, int channel);
    void collect();
    [[nodiscard]] std::optional<GuardEnd> reap();
    [[nodiscard]] bool hasHungUpWithin(int milliseconds) const;

    FileDescriptor _channel;
    std::unique_ptr<QSocketNotifier> _notifier;
    pid_t _process = 0;
};
