#pragma once

#include "platform/linux/UdevHandles.h"
#include "portcheck/PortFacts.h"

#include <vector>

/// What udev knows of the ports and adapters of this moment, read at its making.
class UsbReader {
  public:
    UsbReader();

    /// Adds to a port what is known of the device behind its node; nothing for a node that is no
    /// device of udev's, such as a pseudo-terminal.
    void describe(PortFacts& port) const;

    /// The adapters with a serial chip that have no port.
    [[nodiscard]] QList<AdapterFacts> adaptersWithoutPort() const;

  private:
    [[nodiscard]] std::vector<UdevDevice> devicesOf(const char* subsystem) const;
    [[nodiscard]] QString driverOf(const QString& adapterPath) const;

    UdevContext _udev;
    std::vector<UdevDevice> _terminals;
    std::vector<UdevDevice> _usb;
};
