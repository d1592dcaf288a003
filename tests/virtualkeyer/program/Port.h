#pragma once

#include "virtualkeyer/pty/FileDescriptor.h"

#include <QByteArray>
#include <QString>

/// The host's end of the line, opened as any terminal program would.
class Port {
  public:
    explicit Port(const QString& path);

    [[nodiscard]] bool isOpen() const { return _descriptor.isOpen(); }
    void send(const QByteArray& bytes) const;
    /// The bytes up to and including the next `last`; what came in time when it does not come.
    [[nodiscard]] QByteArray readUntil(char last) const;
    /// The next `count` bytes, or those that came within `patience` ms.
    [[nodiscard]] QByteArray read(qsizetype count, int patience = 10'000) const;

  private:
    virtualkeyer::FileDescriptor _descriptor;
};
