#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <optional>

/// Names a serial device of the machine, present or gone.
using DeviceHandle = quint32;
inline constexpr DeviceHandle noDevice = 0;

/// The properties that a device has.
namespace DeviceKey {
/// Path of the node that is opened.
inline constexpr QLatin1StringView calloutDevice{"IOCalloutDevice"};
/// A second path that finds the device: a link that survives a re-plug, where there is one.
inline constexpr QLatin1StringView dialinDevice{"IODialinDevice"};
/// The name that the operator sees and the settings keep.
inline constexpr QLatin1StringView ttyDevice{"IOTTYDevice"};
inline constexpr QLatin1StringView ttyBaseName{"IOTTYBaseName"};
inline constexpr QLatin1StringView ttySuffix{"IOTTYSuffix"};
inline constexpr QLatin1StringView clientType{"IOSerialBSDClientType"};
} // namespace DeviceKey

enum class DeviceEvent { Publish, Terminate };

/// Called on the main thread with all the devices of one moment.
using DeviceCallback = void (*)(QObject* context, const QList<DeviceHandle>& devices);

/// A registered interest in arrivals or removals, and the devices present when it began.
struct DeviceNotification {
    quint32 iterator;
    QList<DeviceHandle> present;
};

/// Which serial devices the machine has, and which come and go. Main thread only.
///
/// A device's properties stay readable after it has gone, for as long as somebody retains it, and
/// in any case until the removal has been announced to everyone.
class DeviceRegistry : public QObject {
    Q_OBJECT
  public:
    explicit DeviceRegistry(QObject* parent = nullptr);
    ~DeviceRegistry() override;

    /// The serial devices present now, in the order in which they are listed; nothing on failure.
    [[nodiscard]] virtual std::optional<QList<DeviceHandle>> matchingDevices() = 0;

    /// Has `callback` called with `context` for each set of devices that arrives or goes from now
    /// on. Nothing on failure.
    [[nodiscard]] virtual std::optional<DeviceNotification>
    addMatchingNotification(DeviceEvent event, DeviceCallback callback, QObject* context) = 0;

    /// Ends a registration. Unknown iterators are ignored.
    virtual void removeNotification(quint32 iterator) = 0;

    /// A property by its DeviceKey; null for what the device does not have.
    [[nodiscard]] virtual QString stringProperty(DeviceHandle device, const QString& key) const = 0;

    /// Keeps the properties of a device readable until as many release() have followed.
    virtual void retain(DeviceHandle device) = 0;
    virtual void release(DeviceHandle device) = 0;

    /// Has arrivals and removals wait, as they must while an alert is up, until as many
    /// resumeAnnouncements() have followed. They are then announced in order, from the event loop.
    void holdAnnouncements();
    void resumeAnnouncements();
    [[nodiscard]] bool areAnnouncementsHeld() const { return _holds > 0; }

  Q_SIGNALS:
    /// Nobody holds the announcements any more.
    void announcementsResumed();

  private:
    int _holds = 0;
};
