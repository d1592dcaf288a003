#pragma once

#include "platform/DeviceRegistry.h"
#include "platform/linux/DeviceSource.h"

#include <QHash>
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

    [[nodiscard]] bool isThere(DeviceHandle device) override;

  private:
    void refresh();
    [[nodiscard]] QList<SerialDevice> devicesOfSources() const;
    [[nodiscard]] QList<DeviceHandle> forgetAllBut(const QSet<QString>& identities);
    [[nodiscard]] QList<DeviceHandle> addNew(const QList<SerialDevice>& found);
    [[nodiscard]] DeviceHandle add(const SerialDevice& device);
    [[nodiscard]] QString nameOf(DeviceHandle device) const;
    [[nodiscard]] QList<DeviceHandle> sorted(QList<DeviceHandle> devices) const;

    Sources _sources;
    /// What the sources say of the devices present.
    QHash<DeviceHandle, SerialDevice> _described;
    QTimer _refreshSoon;
};
