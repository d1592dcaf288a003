#pragma once

#include "platform/DeviceRegistry.h"
#include "serial/ORSSerialPortDelegate.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <memory>

/// One serial device of the system: its line settings, opening and closing, reading and writing.
///
/// There is at most one object per device: whoever asks for a device that has one gets that one.
/// Main thread only; received data and callbacks arrive there too.
class ORSSerialPort final : public QObject, public std::enable_shared_from_this<ORSSerialPort> {
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)
    Q_PROPERTY(QString path READ path CONSTANT)
    Q_PROPERTY(QString name READ name CONSTANT)

  public:
    /// The port of the device whose callout or dial-in path is `path`; empty when there is none.
    [[nodiscard]] static std::shared_ptr<ORSSerialPort> serialPortWithPath(const QString& path);

    /// The port of `device`. Throws InternalInconsistency for noDevice.
    [[nodiscard]] static std::shared_ptr<ORSSerialPort> serialPortWithDevice(DeviceHandle device);

    ~ORSSerialPort() override;

    [[nodiscard]] ORSSerialPortDelegate* delegate() const;
    void setDelegate(ORSSerialPortDelegate* delegate);

    [[nodiscard]] bool isOpen() const;
    /// Path of the device node that open() opens.
    [[nodiscard]] QString path() const;
    /// What the operator sees and the settings keep.
    [[nodiscard]] QString name() const;

    /// Opens the device; isOpen() says whether it worked. Nothing happens to an open port.
    void open();
    /// True when the port is closed afterwards.
    bool close();
    /// The device has gone: closes the port and tells the delegate so.
    void cleanup();
    /// False when the port is closed or the write failed; bytes that a short or failed write left
    /// behind go out ahead of the next ones.
    [[nodiscard]] bool sendData(const QByteArray& data);

    void setBaudRate(unsigned long baudRate);
    void setParity(unsigned parity);
    void setNumberOfStopBits(unsigned numberOfStopBits);
    void setUsesRTSCTSFlowControl(bool uses);
    void setUsesDTRDSRFlowControl(bool uses);
    void setUsesDCDOutputFlowControl(bool uses);

  Q_SIGNALS:
    void isOpenChanged();
};
