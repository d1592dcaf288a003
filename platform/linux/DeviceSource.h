#pragma once

#include "platform/linux/SerialDevice.h"

#include <QList>
#include <QObject>

/// One of the places where serial devices come from. Main thread only.
class DeviceSource : public QObject {
    Q_OBJECT
  public:
    DeviceSource();
    ~DeviceSource() override;

    /// The devices that the source has now, in the order in which they choose their names. What it
    /// cannot read it leaves out, with one line in the log.
    [[nodiscard]] virtual QList<SerialDevice> devices() = 0;

    /// Whether the source has that very device at this moment. Looks anew, and changes nothing of
    /// what devices() says.
    [[nodiscard]] virtual bool has(const SerialDevice& device) = 0;

  Q_SIGNALS:
    /// Devices may have come or gone.
    void changed();
};
