#pragma once

#include "keyer/WinKeyerUsb.h"
#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/TestPlatform.h"

#include <QByteArray>
#include <QString>

#include <initializer_list>
#include <memory>

/// The keyer engine on a serial line whose far end is in the test's hands. All defaults are
/// registered, the line's port is plugged in under portName, and it is the one chosen.
class EngineBench {
  public:
    static constexpr QLatin1StringView portName{"usbserial-WK1"};

    EngineBench();

    [[nodiscard]] TestPlatform& platform() { return _platform; }
    [[nodiscard]] SettingsStore& settings() { return _platform.settings(); }
    [[nodiscard]] ManualClock& clock() { return _platform.clock(); }
    [[nodiscard]] PseudoTerminalPair& line() { return _line; }
    [[nodiscard]] DeviceHandle device() const { return _device; }
    [[nodiscard]] ORSSerialPort& port() { return *_port; }
    [[nodiscard]] WinKeyerUsb& engine() { return WinKeyerUsb::sharedInstance(); }

    /// Connects, and discards what that wrote. False when it failed.
    [[nodiscard]] bool connect();

    /// What was written to the line since the last call, as "13 0a". Nothing is still on its way.
    [[nodiscard]] QByteArray written();

    /// One delivery of bytes from the keyer.
    void receive(std::initializer_list<int> bytes);

    /// The operator changes the text.
    void type(const QString& text);

  private:
    TestPlatform _platform;
    PseudoTerminalPair _line;
    DeviceHandle _device;
    std::shared_ptr<ORSSerialPort> _port;
};
