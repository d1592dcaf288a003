#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

#include <functional>

/// Posted when the application is about to end.
inline constexpr QLatin1StringView NSApplicationWillTerminateNotification{
    "NSApplicationWillTerminateNotification"};
/// Posted before the machine sleeps; ports are to be closed by the time the post returns.
inline constexpr QLatin1StringView NSWorkspaceWillSleepNotification{
    "NSWorkspaceWillSleepNotification"};
/// Posted after the machine woke up.
inline constexpr QLatin1StringView NSWorkspaceDidWakeNotification{"NSWorkspaceDidWakeNotification"};

/// Posted before the machine shuts down or starts anew; the program may be gone when the post
/// returns.
inline constexpr QLatin1StringView NSWorkspaceWillPowerOffNotification{
    "NSWorkspaceWillPowerOffNotification"};

struct Notification {
    QString name;
    QObject* object = nullptr;
    QHash<QString, QVariant> userInfo;
};

/// Tells observers of named events, synchronously, in the order in which they registered.
/// Main thread only.
class NotificationCenter {
  public:
    using Handler = std::function<void(const Notification&)>;

    /// The centre that the whole program shares.
    static NotificationCenter& defaultCenter();

    /// Calls `handler` for every later post of `name`, for as long as `observer` lives.
    void addObserver(QObject* observer, const QString& name, Handler handler);

    /// Forgets everything that `observer` registered for.
    void removeObserver(const QObject* observer);

    /// Returns when every observer has been called. An observer that goes while the post is under
    /// way is not called any more; one that comes meanwhile is not called yet.
    void post(const QString& name, QObject* object, const QHash<QString, QVariant>& userInfo = {});

  private:
    struct Observer {
        QPointer<QObject> owner;
        QString name;
        Handler handler;
        quint64 number;
    };

    [[nodiscard]] bool isRegistered(quint64 number) const;

    QList<Observer> _observers;
    quint64 _lastNumber = 0;
};
