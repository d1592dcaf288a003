#include "portcheck/linux/PortInspector.h"

#include "platform/DeviceRegistry.h"
#include "portcheck/linux/NodeReader.h"
#include "portcheck/linux/RunningPrograms.h"
#include "portcheck/linux/UsbReader.h"
#include "serial/DeviceUsers.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

MachineFacts PortInspector::inspect(DeviceRegistry& devices, const LinkFacts& link) {
    const UsbReader usb;
    MachineFacts facts{.link = link,
                       .adapters = usb.adaptersWithoutPort(),
                       .isUdevRunning = ::access("/run/udev/control", F_OK) == 0,
                       .isModemManagerRunning = RunningPrograms::include(u"ModemManager"_s),
                       .isBrailleServiceRunning = RunningPrograms::include(u"brltty"_s)};
    const auto present = devices.matchingDevices().value_or(QList<DeviceHandle>());
    for (const auto device : present) {
        PortFacts port{.name = devices.stringProperty(device, DeviceKey::ttyDevice),
                       .node = devices.stringProperty(device, DeviceKey::calloutDevice)};
        port.access = NodeReader::access(port.node);
        port.users = DeviceUsers::of(port.node);
        usb.describe(port);
        facts.ports.append(port);
    }
    return facts;
}
