#pragma once

#include "platform/linux/InstanceLock.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QTimer>

#include <chrono>

/// Keeps the program to one running instance for each user session, by the one owner that a name on
/// the session's bus can have, and where there is no bus, by a lock. The instance that runs can be
/// told to come to the front, in the way in which desktops tell applications. Main thread only.
class SingleInstance final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
  public:
    enum class Role {
        /// This is the instance.
        First,
        /// Another one runs, and has been told to come to the front.
        Second,
        /// Another one runs, and does not answer, or there is no bus to ask it by.
        Unanswered
    };

    /// How long another instance has to answer. One that is quitting needs some seconds, and its
    /// place is taken when it has gone.
    static constexpr std::chrono::milliseconds patience{6000};

    explicit SingleInstance(const QDBusConnection& bus = QDBusConnection::sessionBus(),
                            const QString& lockPath = InstanceLock::standardPath());
    ~SingleInstance() override;

    /// Becomes the instance, or calls the one that runs, with the token by which the desktop lets
    /// it come to the front. Blocks while the other one has not answered.
    [[nodiscard]] Role begin(const QString& activationToken,
                             std::chrono::milliseconds waiting = patience);

    /// Lets another instance take the place: for a program that is ending, and may take long over
    /// it. Whoever calls it yet is refused.
    void leave();

  public Q_SLOTS:
    /// For the bus: someone started the program once more.
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    /// For the bus. There are no files to open: comes to the front.
    Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
    /// For the bus. There is no action but to come to the front.
    Q_SCRIPTABLE void ActivateAction(const QString& action, const QVariantList& parameter,
                                     const QVariantMap& platformData);

  Q_SIGNALS:
    /// The program was started once more; the token may be empty. Of many starts in a row the first
    /// and the last are told of, and some between.
    void activated(const QString& activationToken);

  private:
    void comeToFront(const QVariantMap& platformData);
    void activate();
    [[nodiscard]] bool takePlace();
    [[nodiscard]] bool takeName();
    [[nodiscard]] bool callOwner(const QString& activationToken, std::chrono::milliseconds waiting);

    QDBusConnection _bus;
    InstanceLock _lock;
    bool _hasName = false;
    bool _hasLeft = false;
    QString _token;
    bool _isWanted = false;
    /// Runs for a while after each telling.
    QTimer _rest{this};
};
