#pragma once

#include "platform/FileDescriptor.h"

#include <QString>

/// A locked file in the user's runtime directory, which tells that an instance of the program runs
/// where there is no bus to ask. The kernel lets go of it however the program ends.
class InstanceLock {
  public:
    /// quorvel/instance.lock in the user's runtime directory; null when the user has none.
    [[nodiscard]] static QString standardPath();

    /// With no path there is no lock, and nobody has it.
    explicit InstanceLock(const QString& path) : _path(path) {}

    /// Whether this object has the lock then, or there can be none. False when another one has it.
    [[nodiscard]] bool take();
    void release() { _file = FileDescriptor(); }

  private:
    QString _path;
    FileDescriptor _file;
};
