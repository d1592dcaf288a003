#pragma once

#include "serial/ORSSerialPort.h"

#include <QList>
#include <QObject>

#include <memory>
#include <optional>

/// The one object that knows which serial ports the machine has. Main thread only.
class ORSSerialPortManager final : public QObject {
    Q_OBJECT
  public:
    using Ports = QList<std::shared_ptr<ORSSerialPort>>;

    /// The one manager of the running program; the first call lists the ports.
    [[nodiscard]] static ORSSerialPortManager& sharedSerialPortManager();

    /// The ports present now, in the order in which they are listed; nothing (nil) when the
    /// devices could not be watched, and after the end of the application.
    [[nodiscard]] const std::optional<Ports>& availablePorts() const;
};
