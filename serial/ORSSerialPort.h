#pragma once

#include "platform/DeviceRegistry.h"
#include "platform/MainQueue.h"
#include "serial/ORSSerialPortDelegate.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>

#include <atomic>
#include <chrono>
#include <future>
#include <memory>

class LivePorts;
class PortOpening;
class QSocketNotifier;

namespace ExclusiveDevice {
struct Device;
} // namespace ExclusiveDevice

/// One serial device of the system: its line settings, opening and closing, reading and writing.
///
/// There is at most one object per device: whoever asks for a device that has one gets that one.
/// Main thread only; received data and callbacks arrive there too. An open port keeps itself
/// alive until it is closed.
class ORSSerialPort final : public QObject, public std::enable_shared_from_this<ORSSerialPort> {
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)
    Q_PROPERTY(int fileDescriptor READ fileDescriptor NOTIFY isOpenChanged)
    Q_PROPERTY(QString path READ path CONSTANT)
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(DeviceHandle IOKitDevice READ IOKitDevice CONSTANT)
    Q_PROPERTY(unsigned long baudRate READ baudRate WRITE setBaudRate NOTIFY baudRateChanged)
    Q_PROPERTY(unsigned numberOfStopBits READ numberOfStopBits WRITE setNumberOfStopBits NOTIFY
                   numberOfStopBitsChanged)
    Q_PROPERTY(int maximumBlockSize READ maximumBlockSize WRITE setMaximumBlockSize NOTIFY
                   maximumBlockSizeChanged)
    Q_PROPERTY(bool shouldEchoReceivedData READ shouldEchoReceivedData WRITE
                   setShouldEchoReceivedData NOTIFY shouldEchoReceivedDataChanged)
    Q_PROPERTY(unsigned parity READ parity WRITE setParity NOTIFY parityChanged)
    Q_PROPERTY(bool usesRTSCTSFlowControl READ usesRTSCTSFlowControl WRITE setUsesRTSCTSFlowControl
                   NOTIFY usesRTSCTSFlowControlChanged)
    Q_PROPERTY(bool usesDTRDSRFlowControl READ usesDTRDSRFlowControl WRITE setUsesDTRDSRFlowControl
                   NOTIFY usesDTRDSRFlowControlChanged)
    Q_PROPERTY(bool usesDCDOutputFlowControl READ usesDCDOutputFlowControl WRITE
                   setUsesDCDOutputFlowControl NOTIFY usesDCDOutputFlowControlChanged)
    Q_PROPERTY(int RTS READ RTS WRITE setRTS NOTIFY RTSChanged)
    Q_PROPERTY(int DTR READ DTR WRITE setDTR NOTIFY DTRChanged)
    Q_PROPERTY(bool CTS READ CTS WRITE setCTS NOTIFY CTSChanged)
    Q_PROPERTY(bool DSR READ DSR WRITE setDSR NOTIFY DSRChanged)
    Q_PROPERTY(bool DCD READ DCD WRITE setDCD NOTIFY DCDChanged)

  public:
    /// The port of the device whose callout or dial-in path is `path`; empty when there is none.
    [[nodiscard]] static std::shared_ptr<ORSSerialPort> serialPortWithPath(const QString& path);

    /// The port of `device`: the one that its path has, unless that was another device's, by name.
    /// Throws InternalInconsistency for noDevice.
    [[nodiscard]] static std::shared_ptr<ORSSerialPort> serialPortWithDevice(DeviceHandle device);

    /// Enters a port into the list of live ports, or takes that very port out of it. Ports do so
    /// themselves as they come and go.
    static void addSerialPort(ORSSerialPort& port);
    static void removeSerialPort(const ORSSerialPort& port);

    /// The live port whose path is `path`; empty when there is none.
    [[nodiscard]] static std::shared_ptr<ORSSerialPort> existingPortWithPath(const QString& path);

    /// The present device whose callout or dial-in path is `path`, else noDevice.
    [[nodiscard]] static DeviceHandle deviceFromBSDPath(const QString& path);

    /// What the registry says of a device under one DeviceKey; null when it says nothing.
    [[nodiscard]] static QString stringPropertyOf(DeviceHandle device, const QString& key);
    [[nodiscard]] static QString bsdCalloutPathFromDevice(DeviceHandle device);
    [[nodiscard]] static QString bsdDialinPathFromDevice(DeviceHandle device);
    [[nodiscard]] static QString baseNameFromDevice(DeviceHandle device);
    [[nodiscard]] static QString serviceTypeFromDevice(DeviceHandle device);
    [[nodiscard]] static QString modemNameFromDevice(DeviceHandle device);
    [[nodiscard]] static QString suffixFromDevice(DeviceHandle device);

    /// A port without a device is never valid: always throws InternalInconsistency.
    [[noreturn]] ORSSerialPort();
    ~ORSSerialPort() override;

    /// Two ports are equal when their paths are.
    [[nodiscard]] bool isEqual(const ORSSerialPort& other) const;
    [[nodiscard]] size_t hash() const;
    /// The port's name.
    [[nodiscard]] QString description() const;

    /// nullptr when there is none, or it has gone.
    [[nodiscard]] ORSSerialPortDelegate* delegate() const;
    void setDelegate(ORSSerialPortDelegate* delegate);

    [[nodiscard]] bool isOpen() const;
    /// The open descriptor; 0 when the port is closed. Any thread.
    [[nodiscard]] int fileDescriptor() const;
    /// Path of the device node that open() opens.
    [[nodiscard]] QString path() const;
    /// What the operator sees and the settings keep.
    [[nodiscard]] QString name() const;
    /// The device's entry in the registry, kept readable from the port's creation on.
    [[nodiscard]] DeviceHandle IOKitDevice() const;

    /// Opens the device for this program alone; isOpen() says whether it worked. Failure is
    /// reported to the delegate later; of another program that has it open, the log tells which.
    /// What came in before is thrown away. A device that the last close() left to be closed is
    /// waited for until a second and a half after it, and a driver that does not answer for two
    /// seconds; both are failures then, and the second is one at once until it has answered.
    /// Nothing happens to an open port.
    void open();
    /// Puts the device's old settings back and closes it, once what was written has gone out; what
    /// has not within a tenth of a second goes on without the port, and the device stays taken
    /// until then. Bytes received and not yet handed to the delegate are dropped. True when the
    /// port is closed afterwards.
    bool close();
    /// Waits for a device that close() left to be closed, or open() to be opened, no longer than
    /// `limit`. Whether there is none any more.
    [[nodiscard]] bool awaitFreeDevice(std::chrono::milliseconds limit) const;
    /// Closes an open port over its user's head: tells the delegate before. True as of close().
    bool closeForeseen();
    /// The device has gone: closes the port, telling the delegate before, and tells it so.
    void cleanup();
    /// False when the port is closed or the write failed; bytes that a short or failed write left
    /// behind go out ahead of the next ones. Never waits: what the line has no room for goes out
    /// by itself once it has, from the event loop.
    [[nodiscard]] bool sendData(const QByteArray& data);
    /// How many bytes of sendData() have not left the computer, as far as its driver tells. 0 when
    /// the port is closed.
    [[nodiscard]] qsizetype outputWaiting() const;
    /// Whether the system had no room for a part of what was sent.
    [[nodiscard]] bool isHoldingBack() const { return !_writeBuffer.isEmpty(); }
    /// Throws those bytes away, as far as the driver can.
    void dropOutput();
    /// Hands bytes to the delegate as received.
    void receiveData(const QByteArray& data);
    /// Whether errors of the open port mean anything to the delegate. Any thread.
    [[nodiscard]] bool areErrorsHeard() const { return _areErrorsHeard; }
    /// Reports the calling thread's errno to the delegate, at once.
    void notifyDelegateOfPosixError();

    /// Received bytes are handed over in blocks of at most so many: 1 to 1024, 1024 at first. Holds
    /// at once. Readable from any thread.
    [[nodiscard]] int maximumBlockSize() const;
    void setMaximumBlockSize(int size);

    /// Applies all line settings to the open device; a refusal is only logged. The setters of
    /// those settings call it.
    void setPortOptions();

    /// Bit/s; any rate that the device can do. 19200 at first.
    [[nodiscard]] unsigned long baudRate() const;
    /// Applies the settings even if the rate is the one set before.
    void setBaudRate(unsigned long baudRate);
    /// 1, or two for any greater number.
    [[nodiscard]] unsigned numberOfStopBits() const;
    void setNumberOfStopBits(unsigned numberOfStopBits);
    /// Whether the driver sends back what it receives.
    [[nodiscard]] bool shouldEchoReceivedData() const;
    void setShouldEchoReceivedData(bool shouldEcho);
    /// 0 none, 1 odd, 2 even.
    [[nodiscard]] unsigned parity() const;
    /// Values above 2 count as none.
    void setParity(unsigned parity);

    /// A change of flow control closes and reopens an open port.
    [[nodiscard]] bool usesRTSCTSFlowControl() const;
    void setUsesRTSCTSFlowControl(bool uses);
    /// This system has no such flow control: the property is kept, the line ignores it.
    [[nodiscard]] bool usesDTRDSRFlowControl() const;
    void setUsesDTRDSRFlowControl(bool uses);
    /// This system has no such flow control: the property is kept, the line ignores it.
    [[nodiscard]] bool usesDCDOutputFlowControl() const;
    void setUsesDCDOutputFlowControl(bool uses);

    /// Desired state of an output line; anything but 0 is on. The line follows at once while the
    /// port is open, else at the next open(). During open() observers also see the state that the
    /// device was in, as its bit in the modem status word.
    [[nodiscard]] int RTS() const;
    void setRTS(int rts);
    [[nodiscard]] int DTR() const;
    void setDTR(int dtr);

    /// State of an input line, sampled every 10 ms while the port is open. Readable from any
    /// thread.
    [[nodiscard]] bool CTS() const;
    void setCTS(bool cts);
    [[nodiscard]] bool DSR() const;
    void setDSR(bool dsr);
    [[nodiscard]] bool DCD() const;
    void setDCD(bool dcd);

  Q_SIGNALS:
    void isOpenChanged();
    /// The port is about to be closed: the last moment at which its descriptor can be used.
    void willClose();
    void baudRateChanged();
    void numberOfStopBitsChanged();
    void maximumBlockSizeChanged();
    void shouldEchoReceivedDataChanged();
    void parityChanged();
    void usesRTSCTSFlowControlChanged();
    void usesDTRDSRFlowControlChanged();
    void usesDCDOutputFlowControlChanged();
    void RTSChanged();
    void DTRChanged();
    void CTSChanged();
    void DSRChanged();
    void DCDChanged();

  private:
    ORSSerialPort(DeviceHandle device, const QString& path);

    [[nodiscard]] ExclusiveDevice::Device obtainDevice();
    [[nodiscard]] bool isStillHeld() const;
    [[nodiscard]] ExclusiveDevice::Device openDevice();
    void prepareLine();
    void startWorkers();
    [[nodiscard]] bool closeOpening();
    void queueErrorReport();
    bool writeOut();
    void noteWritten(qsizetype bytes);
    [[nodiscard]] bool isSending() const;
    [[nodiscard]] bool wasFull(qsizetype attempted) const;
    void watchForRoom();
    void endWatchForRoom();
    void setFlowControl(bool& setting, bool uses, void (ORSSerialPort::*changed)());
    void setOutputLine(int& line, int value, int bit, void (ORSSerialPort::*changed)());
    void setInputLine(std::atomic<bool>& line, bool value, void (ORSSerialPort::*changed)());
    void synchronizeOutputLines();
    [[nodiscard]] bool isUsedElsewhere() const;
    void requestLowLatency();

    QPointer<LivePorts> _livePorts;
    std::shared_ptr<MainQueue> _mainQueue;
    ORSSerialPortDelegate* _delegate = nullptr;
    std::atomic<bool> _areErrorsHeard = false;
    std::weak_ptr<const void> _delegateLifetime;
    DeviceHandle _ioKitDevice = noDevice;
    QString _path;
    QString _name;
    QByteArray _writeBuffer;
    std::chrono::steady_clock::time_point _lineIsFree;
    std::unique_ptr<QSocketNotifier> _roomWatch;

    unsigned long _baudRate = 19200;
    unsigned _numberOfStopBits = 1;
    unsigned _parity = 0;
    bool _shouldEchoReceivedData = false;
    bool _usesRTSCTSFlowControl = false;
    bool _usesDTRDSRFlowControl = false;
    bool _usesDCDOutputFlowControl = false;
    bool _hasToldOfLowLatency = false;
    int _rts = 0;
    int _dtr = 0;
    std::atomic<bool> _cts = false;
    std::atomic<bool> _dsr = false;
    std::atomic<bool> _dcd = false;

    std::atomic<int> _maximumBlockSize;
    std::atomic<int> _fileDescriptor = 0;
    std::unique_ptr<PortOpening> _opening;
    /// When what was begun with the device last has ended, and until when that is waited for.
    std::shared_future<bool> _endOfLast;
    std::chrono::steady_clock::time_point _endOfRest;
};
