#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QObject>

#include <memory>

class QDBusPendingCallWatcher;

/// Tells the program of the machine's sleep, wake-up and end, as the login service announces them:
/// posts NSWorkspaceWillSleepNotification, NSWorkspaceDidWakeNotification and
/// NSWorkspaceWillPowerOffNotification on the default notification centre, with itself as sender.
///
/// While the machine is awake a lock is held that has the service wait, some seconds at most, with
/// the sleep or the end until every observer has been called. A machine without the service, or
/// without a bus, is one that never sleeps; a service that starts later is noticed. Main thread
/// only; the service is never waited for.
class LogindPower final : public QObject {
    Q_OBJECT
  public:
    explicit LogindPower(const QDBusConnection& bus = QDBusConnection::systemBus());
    ~LogindPower() override;

  private Q_SLOTS:
    void prepareForSleep(bool isStart);
    void prepareForShutdown(bool isStart);

  private:
    void sleep();
    void wake();
    void requestInhibitor();
    void takeInhibitor(const QDBusPendingCallWatcher& request);
    void dropInhibitor();
    void serviceHasGone();

    QDBusConnection _bus;
    QDBusServiceWatcher _watcher;
    std::unique_ptr<QDBusPendingCallWatcher> _request;
    /// Whoever holds this descriptor holds the sleep up.
    QDBusUnixFileDescriptor _inhibitor;
    bool _isAsleep = false;
};
