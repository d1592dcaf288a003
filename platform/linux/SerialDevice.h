#pragma once

#include <QString>
#include <QStringList>

/// A serial device as the source that found it describes it.
///
/// A device is named `baseName` and a suffix; which of its suffixes it gets depends on the names
/// that others have already, so the registry that joins the sources decides that.
struct SerialDevice {
    /// Names this appearance of the device: another one after it went and came back.
    QString identity;
    /// USB devices are listed before all others.
    bool isUsb = false;
    /// Path of the node that is opened.
    QString calloutPath;
    /// Second path that finds the device.
    QString dialinPath;
    QString baseName;
    /// What may follow the base name, the most wanted first; never empty.
    QStringList suffixes;

    friend bool operator==(const SerialDevice&, const SerialDevice&) = default;
};
