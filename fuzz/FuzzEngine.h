#pragma once

#include "tests/keyer/EngineBench.h"
#include "tests/support/CapturedWrites.h"

#include <optional>

/// One keyer engine for all runs of a fuzz target, connected, with its writes caught: no run waits
/// for the system. Logs nothing.
class FuzzEngine {
  public:
    [[nodiscard]] static FuzzEngine& instance();

    [[nodiscard]] WinKeyerUsb& engine() { return _bench.engine(); }
    [[nodiscard]] ManualClock& clock() { return _bench.clock(); }

    /// One delivery of bytes from the keyer.
    void receive(const QByteArray& bytes);
    /// The operator changes the text.
    void type(const QString& text) { _bench.type(text); }
    /// What was written since the last call.
    [[nodiscard]] QByteArray written() { return _writes->take(); }

    /// As at the beginning: nothing is sent, and no mode is on.
    void reset();

  private:
    FuzzEngine();

    EngineBench _bench;
    std::optional<CapturedWrites> _writes;
};
