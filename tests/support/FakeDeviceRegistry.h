#pragma once

#include "platform/DeviceRegistry.h"

#include <QHash>
#include <QList>
#include <QString>

/// A machine whose devices come and go as a test says.
class FakeDeviceRegistry final : public DeviceRegistry {
    Q_OBJECT
  public:
    using DeviceRegistry::Properties;
    using DeviceRegistry::registrationCount;

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

    /// Takes a device away of which nobody has been told yet, not even the list.
    void vanish(DeviceHandle device) { _vanished.insert(device); }

    /// From now on no list of devices can be had.
    void failMatching(bool fails = true) { _matchingFails = fails; }
    /// From now on nobody can register for such events.
    void failNotifications(DeviceEvent event, bool fails = true);

    /// How often a device was retained.
    [[nodiscard]] int retainCount(DeviceHandle device) const;
    /// Counts from 0 again, for a soak that plugs more devices than any session does.
    void forgetRetains(DeviceHandle device) { _retains.remove(device); }

    [[nodiscard]] std::optional<QList<DeviceHandle>> matchingDevices() override;
    [[nodiscard]] bool isThere(DeviceHandle device) override;
    [[nodiscard]] std::optional<DeviceNotification>
    addMatchingNotification(DeviceEvent event, DeviceCallback callback, QObject* context) override;
    /// Only counts: a machine that kept every device would hide what else stays behind.
    void retain(DeviceHandle device) override;

  private:
    QHash<DeviceHandle, int> _retains;
    QSet<DeviceHandle> _vanished;
    QList<DeviceEvent> _failingEvents;
    bool _matchingFails = false;
};
