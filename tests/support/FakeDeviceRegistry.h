#pragma once

#include "platform/DeviceRegistry.h"

#include <QHash>
#include <QList>
#include <QString>

/// A machine whose devices come and go as a test says.
class FakeDeviceRegistry final : public DeviceRegistry {
    Q_OBJECT
  public:
    using Properties = QHash<QString, QString>;

    FakeDeviceRegistry();

    /// The properties of an ordinary device: its name, its node, and a second path if it has one.
    [[nodiscard]] static Properties device(const QString& name, const QString& calloutPath,
                                           const QString& dialinPath = {});

    /// Plugs devices in, in one set, at the end of the list, and tells those who registered: at
    /// once, unless announcements are held or this is such an announcement.
    QList<DeviceHandle> plug(const QList<Properties>& devices);
    DeviceHandle plug(const QString& name, const QString& calloutPath,
                      const QString& dialinPath = {});

    /// Takes devices away, in one set, and tells those who registered, likewise.
    void unplug(const QList<DeviceHandle>& devices);
    void unplug(DeviceHandle device);

    /// From now on no list of devices can be had.
    void failMatching(bool fails = true) { _matchingFails = fails; }
    /// From now on nobody can register for such events.
    void failNotifications(DeviceEvent event, bool fails = true);

    /// How many retains of a device no release has answered; it may be negative.
    [[nodiscard]] int retainCount(DeviceHandle device) const;
    [[nodiscard]] qsizetype registrationCount(DeviceEvent event) const;

    [[nodiscard]] std::optional<QList<DeviceHandle>> matchingDevices() override;
    [[nodiscard]] std::optional<DeviceNotification>
    addMatchingNotification(DeviceEvent event, DeviceCallback callback, QObject* context) override;
    void removeNotification(quint32 iterator) override;
    [[nodiscard]] QString stringProperty(DeviceHandle device, const QString& key) const override;
    void retain(DeviceHandle device) override;
    void release(DeviceHandle device) override;

  private:
    struct Registration {
        quint32 iterator;
        DeviceEvent event;
        DeviceCallback callback;
        QObject* context;
    };

    /// Devices that came or went at one moment, for the registrations that there were then.
    struct Announcement {
        DeviceEvent event;
        QList<DeviceHandle> devices;
        quint32 lastIterator;
    };

    void enqueue(DeviceEvent event, const QList<DeviceHandle>& devices);
    void announceWaiting();
    void announce(const Announcement& announcement);
    [[nodiscard]] bool isRegistered(quint32 iterator) const;
    [[nodiscard]] bool isAwaited(DeviceHandle device) const;
    void forgetUnlessNeeded(DeviceHandle device);

    QList<DeviceHandle> _present;
    QHash<DeviceHandle, Properties> _properties;
    QHash<DeviceHandle, int> _retains;
    QList<Registration> _registrations;
    QList<Announcement> _announcements;
    bool _isAnnouncing = false;
    QList<DeviceEvent> _failingEvents;
    bool _matchingFails = false;
    DeviceHandle _lastHandle = noDevice;
    quint32 _lastIterator = 0;
};
