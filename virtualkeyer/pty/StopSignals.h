#pragma once

#include "virtualkeyer/pty/FileDescriptor.h"

namespace virtualkeyer {

/// Turns SIGINT, SIGTERM and SIGHUP into a readable descriptor, so that the keyer ends by way of
/// its destructors. Blocks them in this thread and in those started later; make it first in main().
class StopSignals {
  public:
    StopSignals();

    /// Readable once one of the signals has come.
    [[nodiscard]] int descriptor() const { return _signals.number(); }

  private:
    FileDescriptor _signals;
};

} // namespace virtualkeyer
