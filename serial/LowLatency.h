#pragma once

#include <QString>

/// Adapters gather received bytes for a while (16 ms, as a rule) and hand them over in one piece.
namespace LowLatency {

/// Asks the driver of the terminal open at `descriptor` to hand over each byte within a
/// millisecond. True when the driver does so from now on and did not before; false also where it
/// offers no such thing, or not to this user. `sysfs` is where the kernel's view of devices is.
[[nodiscard]] bool obtain(int descriptor, const QString& sysfs = QStringLiteral("/sys"));

} // namespace LowLatency
