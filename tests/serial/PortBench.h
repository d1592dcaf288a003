#pragma once

#include "serial/ORSSerialPort.h"
#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/RecordingDelegate.h"
#include "tests/support/SystemCallFaults.h"
#include "tests/support/TestPlatform.h"

#include <QTest>

#include <memory>

/// A port on a line of its own, a delegate that writes everything down, and faults at hand. The
/// line has modem lines, all of them low, unless a test takes them away.
struct PortBench {
    PortBench() {
        faults.setModemWord(0);
        port->setDelegate(&delegate);
    }
    PortBench(const PortBench&) = delete;
    PortBench& operator=(const PortBench&) = delete;
    ~PortBench() {
        faults.mend();
        port->setDelegate(nullptr);
        port->close();
    }

    /// Opens the port and waits until its delegate knows.
    [[nodiscard]] bool open() {
        port->open();
        return QTest::qWaitFor([this] { return delegate.count(QStringLiteral("opened")) > 0; });
    }

    SystemCallFaults faults;
    TestPlatform platform;
    PseudoTerminalPair line;
    DeviceHandle device = platform.devices().plug(QStringLiteral("line"), line.path());
    RecordingDelegate delegate;
    std::shared_ptr<ORSSerialPort> port = ORSSerialPort::serialPortWithDevice(device);
};
