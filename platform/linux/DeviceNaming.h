#pragma once

#include "platform/linux/SerialDevice.h"

#include <QSet>

/// How serial devices are named and ordered.
namespace DeviceNaming {

/// The first of the device's suffixes that makes a name which is not in `taken`; the last one
/// when all names are taken.
[[nodiscard]] QString freeSuffix(const SerialDevice& device, const QSet<QString>& taken);

/// True when people would list `first` before `second`: digits compare as numbers.
[[nodiscard]] bool comesNaturallyBefore(const QString& first, const QString& second);

/// Whether a link of that name can be a port: there is no control character in it.
[[nodiscard]] bool isPresentable(const QString& name);

} // namespace DeviceNaming
