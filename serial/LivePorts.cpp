#include "serial/LivePorts.h"

#include "platform/Platform.h"
#include "serial/ORSSerialPort.h"

#include <algorithm>

LivePorts& LivePorts::current() {
    auto& platform = Platform::current();
    if (auto* const existing =
            platform.findChild<LivePorts*>(QString(), Qt::FindDirectChildrenOnly)) {
        return *existing;
    }
    return *new LivePorts(&platform);
}

LivePorts::~LivePorts() {
    const auto ports = std::exchange(_ports, {});
    QList<std::shared_ptr<ORSSerialPort>> held;
    for (auto* const port : ports) {
        held.append(port->shared_from_this());
    }
    for (const auto& port : std::as_const(held)) {
        port->close();
    }
}

void LivePorts::add(ORSSerialPort& port) {
    _ports.append(&port);
}

void LivePorts::remove(const ORSSerialPort& port) {
    _ports.removeIf([&port](const ORSSerialPort* each) { return each == &port; });
}

std::shared_ptr<ORSSerialPort> LivePorts::withPath(const QString& path) const {
    const auto found = std::find_if(_ports.begin(), _ports.end(),
                                    [&path](const auto* port) { return port->path() == path; });
    return found != _ports.end() ? (*found)->shared_from_this() : nullptr;
}
