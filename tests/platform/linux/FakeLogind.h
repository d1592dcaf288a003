#pragma once

#include "tests/platform/linux/PrivateBus.h"

#include <QDBusContext>
#include <QDBusUnixFileDescriptor>
#include <QList>
#include <QObject>
#include <QStringList>

/// A login service that sends the machine to sleep as a test says. It is on the bus for as long as
/// the object lives; one at a time.
class FakeLogind final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")
  public:
    explicit FakeLogind(const PrivateBus& bus);
    ~FakeLogind() override;

    /// Announces that the machine is about to sleep, or that it has woken up.
    void announceSleep() { Q_EMIT PrepareForSleep(true); }
    void announceWake() { Q_EMIT PrepareForSleep(false); }

    /// Announces that the machine is about to end, or that this was called off.
    void announceShutdown() { Q_EMIT PrepareForShutdown(true); }
    void callOffShutdown() { Q_EMIT PrepareForShutdown(false); }

    /// How many locks have been given out and not been let go of.
    [[nodiscard]] qsizetype heldLocks() const;
    /// What each lock was asked for with: what, who, why and mode.
    [[nodiscard]] const QList<QStringList>& requests() const { return _requests; }
    /// From now on locks are refused.
    void refuseLocks() { _refuses = true; }
    /// From now on requests are left without an answer, until answerRequests().
    void delayAnswers() { _delays = true; }
    void answerRequests();

  public Q_SLOTS:
    Q_SCRIPTABLE QDBusUnixFileDescriptor Inhibit(const QString& what, const QString& who,
                                                 const QString& why, const QString& mode);

  Q_SIGNALS:
    Q_SCRIPTABLE void PrepareForSleep(bool isStart);
    Q_SCRIPTABLE void PrepareForShutdown(bool isStart);

  private:
    [[nodiscard]] QDBusUnixFileDescriptor newLock();

    QDBusConnection _connection;
    QList<QStringList> _requests;
    /// The near end of each lock's pipe; it hangs up once nobody holds the lock.
    QList<QDBusUnixFileDescriptor> _locks;
    QList<QDBusMessage> _delayed;
    bool _refuses = false;
    bool _delays = false;
};
