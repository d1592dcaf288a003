#pragma once

#include "platform/FileDescriptor.h"

#include <QObject>
#include <QSocketNotifier>

/// Turns SIGTERM, SIGINT, SIGHUP and SIGQUIT into a signal of the event loop, so that a killed
/// program leaves by the same way as one that is quit: with the key up and the keyer out of host
/// mode.
/// One at a time; main thread.
class TerminationSignals final : public QObject {
    Q_OBJECT
  public:
    /// Throws std::system_error when the handlers cannot be installed.
    explicit TerminationSignals(QObject* parent = nullptr);
    /// Gives the signals their default effect again.
    ~TerminationSignals() override;

  Q_SIGNALS:
    void requested();

  private:
    void drain();

    FileDescriptor _event;
    QSocketNotifier _notifier;
};
