#pragma once

#include "platform/Error.h"

#include <QByteArray>

#include <memory>

class ORSSerialPort;

/// What a serial port tells the object that uses it. Every operation may be left out. The port
/// does not own its delegate; one that has gone is told nothing.
class ORSSerialPortDelegate {
  public:
    ORSSerialPortDelegate() = default;
    ORSSerialPortDelegate(const ORSSerialPortDelegate&) = delete;
    ORSSerialPortDelegate& operator=(const ORSSerialPortDelegate&) = delete;
    virtual ~ORSSerialPortDelegate() = default;

    /// 1 to 1024 bytes were read, in the order of the line. From the main queue.
    virtual void serialPortDidReceiveData(ORSSerialPort& port, const QByteArray& data);

    /// The port was opened. From the main queue, before any data of that opening.
    virtual void serialPortWasOpened(ORSSerialPort& port);

    /// The port is about to be closed by another than its user, because its device goes or the
    /// machine sleeps: the last moment to write. On the thread that closes it.
    virtual void serialPortWillBeClosed(ORSSerialPort& port);

    /// The port was closed. On the thread that closed it, before close() returns.
    virtual void serialPortWasClosed(ORSSerialPort& port);

    /// The device has gone, and the port is closed. On the thread that cleaned up.
    virtual void serialPortWasRemovedFromSystem(ORSSerialPort& port);

    /// A system call failed. From the main queue, but for a failed write, which reports before
    /// sendData() returns.
    virtual void serialPortDidEncounterError(ORSSerialPort& port, const Error& error);

    /// Whether errors of an open port mean anything to it; it stays so. Where they do not, it need
    /// not be told of those of its poller, which on a line without modem lines are a hundred a
    /// second. Main thread.
    [[nodiscard]] virtual bool hearsErrorsOfOpenPort() const;

    /// Expires with the delegate.
    [[nodiscard]] std::weak_ptr<const void> lifetime() const { return _lifetime; }

  private:
    std::shared_ptr<const void> _lifetime = std::make_shared<char>();
};
