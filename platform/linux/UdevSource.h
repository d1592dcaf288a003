#pragma once

#include "platform/linux/DeviceSource.h"
#include "platform/linux/UdevHandles.h"

#include <QHash>

#include <optional>

/// The serial devices that udev knows, and its news of them. Where udev does not run, the devices
/// of this moment are listed all the same, but nobody tells of others.
class UdevSource final : public DeviceSource {
    Q_OBJECT
  public:
    UdevSource();
    ~UdevSource() override;

    [[nodiscard]] QList<SerialDevice> devices() override;
    [[nodiscard]] bool has(const SerialDevice& device) override;

  private:
    void startMonitor();
    void readEvents();
    void scan();
    [[nodiscard]] std::optional<QList<SerialDevice>> scanned() const;
    [[nodiscard]] bool isReady(udev_device* device) const;
    [[nodiscard]] QString identityOf(const QString& path) const;

    UdevContext _udev;
    UdevMonitor _monitor;
    /// How often each device, by its path in sysfs, has been removed: what tells an adapter that
    /// was pulled out and plugged in between two looks from one that stayed.
    QHash<QString, int> _removals;
    QList<SerialDevice> _devices;
    bool _isStale = true;
    bool _isDaemonRunning;
};
