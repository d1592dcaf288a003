#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <memory>

class ORSSerialPort;

/// The ports that exist, so that a device has only one: a list of references that keep nothing
/// alive. There is one list per platform, and it ends with it. Main thread only.
class LivePorts final : public QObject {
    Q_OBJECT
  public:
    /// The current platform's list; the first call makes it.
    [[nodiscard]] static LivePorts& current();

    /// Closes the ports that are still open: their workers need the main queue, which ends next.
    ~LivePorts() override;

    void add(ORSSerialPort& port);
    /// Removes every entry of that very port.
    void remove(const ORSSerialPort& port);
    /// The first port entered whose path is `path`; empty when there is none.
    [[nodiscard]] std::shared_ptr<ORSSerialPort> withPath(const QString& path) const;

  private:
    using QObject::QObject;

    QList<ORSSerialPort*> _ports;
};
