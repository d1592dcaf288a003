#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>
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
/// A device's properties stay readable after it has gone until the removal has been announced to
/// everyone, and for good once somebody has retained it.
class DeviceRegistry : public QObject {
    Q_OBJECT
  public:
    explicit DeviceRegistry(QObject* parent = nullptr);
    ~DeviceRegistry() override;

    /// The serial devices present now, in the order in which they are listed; nothing on failure.
    [[nodiscard]] virtual std::optional<QList<DeviceHandle>> matchingDevices() { return _present; }

    /// Whether the device is listed and the machine has it at this moment, looked for anew: the
    /// list may not have heard yet that it has gone, or that another one is in its place.
    [[nodiscard]] virtual bool isThere(DeviceHandle device);

    /// Has `callback` called with `context` for each set of devices that arrives or goes from now
    /// on, while `context` lives. Nothing on failure.
    [[nodiscard]] virtual std::optional<DeviceNotification>
    addMatchingNotification(DeviceEvent event, DeviceCallback callback, QObject* context);

    /// Ends a registration. Unknown iterators are ignored.
    void removeNotification(quint32 iterator);

    /// A property by its DeviceKey; null for what the device does not have.
    [[nodiscard]] QString stringProperty(DeviceHandle device, const QString& key) const;

    /// Keeps the properties of a device readable for good.
    virtual void retain(DeviceHandle device);

    /// Has arrivals and removals wait, as they must while an alert is up, until as many
    /// resumeAnnouncements() have followed. They are then announced in order, from the event loop.
    void holdAnnouncements();
    void resumeAnnouncements();

  protected:
    /// What a device has, by its DeviceKey.
    using Properties = QHash<QString, QString>;

    /// Puts a device at the end of the list. Whoever does so announces it.
    DeviceHandle add(const Properties& properties);
    /// Strikes devices off the list. Whoever does so announces it.
    void strike(const QList<DeviceHandle>& devices);
    /// The list changes to another order of the same devices.
    void reorder(const QList<DeviceHandle>& devices);
    [[nodiscard]] const QList<DeviceHandle>& present() const { return _present; }

    /// Notes that devices came or went at one moment, for the registrations that there are now. The
    /// going of a device whose coming waits to be announced takes that back instead.
    void enqueue(DeviceEvent event, const QList<DeviceHandle>& devices);
    /// Tells of everything that waits, in order, and never of one set while another one is being
    /// handled, even if its handler runs an event loop. Does nothing while announcements are held.
    void announce();

    [[nodiscard]] qsizetype registrationCount(DeviceEvent event) const;

  private:
    struct Registration {
        quint32 iterator;
        DeviceEvent event;
        DeviceCallback callback;
        QPointer<QObject> context;
    };
    struct Announcement {
        DeviceEvent event;
        QList<DeviceHandle> devices;
        quint32 lastIterator;
    };

    [[nodiscard]] bool takeBack(DeviceHandle device);
    void announceNext();
    [[nodiscard]] bool isRegistered(quint32 iterator) const;
    [[nodiscard]] bool isAwaited(DeviceHandle device) const;
    void forgetUnlessNeeded(DeviceHandle device);

    /// The devices present, in the order in which they are listed.
    QList<DeviceHandle> _present;
    /// Of every device that is present, waits to be announced or is retained.
    QHash<DeviceHandle, Properties> _properties;
    QSet<DeviceHandle> _retained;
    QList<Registration> _registrations;
    QList<Announcement> _announcements;
    DeviceHandle _lastDevice = noDevice;
    quint32 _lastIterator = 0;
    int _holds = 0;
    bool _isAnnouncing = false;
};
