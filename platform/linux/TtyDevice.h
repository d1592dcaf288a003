#pragma once

#include "platform/linux/SerialDevice.h"

#include <QByteArrayList>
#include <QString>
#include <QStringList>

#include <optional>

/// What the kernel and udev know of a terminal device. Text that there is not is null.
struct TtyDevice {
    /// The kernel's name, such as ttyUSB0.
    QString kernelName = {};
    QString node = {};
    /// Links that lead to the node now.
    QStringList links = {};
    /// The adapter's own serial number.
    QString usbSerialNumber = {};
    /// The socket that the adapter sits in, such as 1-1.2.
    QString usbPath = {};
    /// The adapter's interface, such as 1-1.2:1.0, where it has several.
    QString usbInterface = {};
    /// Whether the kernel found a UART behind a port of the machine's own.
    bool hasUart = false;
    /// See SerialDevice::identity.
    QString identity = {};

    /// The serial device that it is; nothing for consoles, pseudo-terminals and ports without
    /// hardware.
    [[nodiscard]] std::optional<SerialDevice> serialDevice() const;

    /// Patterns, as of a shell, of the kernel's names that a serial device can have.
    [[nodiscard]] static QByteArrayList kernelNamePatterns();
};
