#pragma once

#include "portcheck/PortFacts.h"

class DeviceRegistry;

/// Collects what a check of the ports goes by. It only looks: no port is opened, and none touched.
namespace PortInspector {

/// The facts of this moment about the ports of `devices`, and the adapters that have none.
[[nodiscard]] MachineFacts inspect(DeviceRegistry& devices, const LinkFacts& link);

} // namespace PortInspector
