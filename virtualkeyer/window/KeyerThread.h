#pragma once

#include "virtualkeyer/Session.h"
#include "virtualkeyer/pty/FileDescriptor.h"

#include <QObject>
#include <QString>

#include <thread>

namespace virtualkeyer {

/// Runs a session on a thread of its own, so that a host does not wait while a window is painted.
class KeyerThread : public QObject {
    Q_OBJECT
  public:
    /// `session` must outlive this, and belongs to the thread until end() returns.
    explicit KeyerThread(Session& session);
    /// As end().
    ~KeyerThread() override;

    /// Begins the session. Whoever wants to hear that it failed has connected by then. Once.
    void start();
    /// Ends the session and waits for it; the program's exit status.
    ExitStatus end();

  Q_SIGNALS:
    /// The session has ended by itself: why it could not go on. From the thread.
    void failed(const QString& reason);

  private:
    void run();

    Session& _session;
    FileDescriptor _stop;
    ExitStatus _status = ExitStatus::Success;
    std::thread _thread;
};

} // namespace virtualkeyer
