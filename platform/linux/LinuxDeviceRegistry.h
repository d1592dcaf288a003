#pragma once

#include "platform/DeviceRegistry.h"
#include "platform/linux/DeviceSource.h"

#include <QHash>
#include <QPointer>
#include <QSet>
#include <QTimer>

#include <memory>
#include <vector>

/// The serial devices of a Linux machine, joined from several sources.
///
/// A node is listed once, under the first name by which it came, for as long as it stays: a
/// second way to the same node is passed over meanwhile. What changes at one moment is announced
/// as one set of removals and one set of arrivals, in this order.
class LinuxDeviceRegistry final : public DeviceRegistry {
    Q_OBJECT
  public:
    using Sources = std::vector<std::unique_ptr<DeviceSource>>;

    /// The devices that udev knows and those in the user's ports directory.
    LinuxDeviceRegistry();

    /// The devices of these sources. Where two have the same node, the earlier source has it.
    explicit LinuxDeviceRegistry(Sources sources);

    ~LinuxDeviceRegistry() override;

    [[nodiscard]] std::optional<QList<DeviceHandle>> matchingDevices() override;
    [[nodiscard]] std::optional<DeviceNotification>
    addMatchingNotification(DeviceEvent event, DeviceCallback callback, QObject* context) override;
    void removeNotification(quint32 iterator) override;
    [[nodiscard]] QString stringProperty(DeviceHandle device, const QString& key) const override;
    void retain(DeviceHandle device) override;
    void release(DeviceHandle device) override;

  private:
    struct Entry {
        SerialDevice device;
        QString suffix;
        /// How many lists of the registry's own it is in: of what is present, of what waits to be
        /// announced.
        int listings = 0;
        /// How many retain() no release() has answered.
        int holders = 0;

        [[nodiscard]] QString name() const { return device.baseName + suffix; }
    };
    struct Registration {
        quint32 iterator;
        DeviceEvent event;
        DeviceCallback callback;
        QPointer<QObject> context;
    };
    /// Devices that came or went at one moment, for the registrations that there were then.
    struct Announcement {
        DeviceEvent event;
        QList<DeviceHandle> devices;
        quint32 lastIterator;
    };

    void refresh();
    [[nodiscard]] QList<SerialDevice> devicesOfSources() const;
    [[nodiscard]] QList<DeviceHandle> forgetAllBut(const QSet<QString>& identities);
    [[nodiscard]] QList<DeviceHandle> addNew(const QList<SerialDevice>& found);
    [[nodiscard]] DeviceHandle add(const SerialDevice& device);
    void sort(QList<DeviceHandle>& devices) const;
    void unlist(DeviceHandle device);
    void enqueue(DeviceEvent event, QList<DeviceHandle> devices);
    void announce();
    void announceNext();
    [[nodiscard]] bool isRegistered(quint32 iterator) const;

    Sources _sources;
    /// Every device that is present or that somebody holds.
    QHash<DeviceHandle, Entry> _entries;
    /// The devices present, in the order in which they are listed.
    QList<DeviceHandle> _present;
    QList<Registration> _registrations;
    QList<Announcement> _announcements;
    QTimer _refreshSoon;
    QTimer _announceSoon;
    DeviceHandle _lastDevice = noDevice;
    quint32 _lastIterator = 0;
    bool _isAnnouncing = false;
};
