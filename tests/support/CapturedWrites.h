#pragma once

#include <QByteArray>

/// Catches what this program writes to one descriptor, in test programs that link tests-capture:
/// the system never sees it, nor what goes with it, so nothing needs to be read back. Every write
/// succeeds in full. There may be one at a time. Main thread only; other threads may write to other
/// descriptors.
class CapturedWrites {
  public:
    explicit CapturedWrites(int descriptor);
    CapturedWrites(const CapturedWrites&) = delete;
    CapturedWrites& operator=(const CapturedWrites&) = delete;
    ~CapturedWrites();

    /// What was written since the last call.
    [[nodiscard]] QByteArray take();
};
