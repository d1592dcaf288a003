#pragma once

#include "platform/Clock.h"
#include "platform/DeviceRegistry.h"
#include "platform/NotificationCenter.h"
#include "serial/ORSSerialPort.h"

#include <QList>
#include <QObject>

#include <memory>
#include <optional>

/// Posted after new ports were found.
inline constexpr QLatin1StringView ORSSerialPortWasConnectedNotification{
    "ORSSerialPortWasConnectedNotification"};
/// Posted after ports were removed.
inline constexpr QLatin1StringView ORSSerialPortWasDisconnectedNotification{
    "ORSSerialPortWasDisconnectedNotification"};
/// User-information key of the new ports, an ORSSerialPortManager::Ports.
inline constexpr QLatin1StringView ORSConnectedSerialPortsKey{"ORSConnectedSerialPortsKey"};
/// User-information key of the removed ports, an ORSSerialPortManager::Ports.
inline constexpr QLatin1StringView ORSDisconnectedSerialPortsKey{"ORSDisconnectedSerialPortsKey"};

/// What the device registry calls when devices arrive. A context that is no ORSSerialPortManager
/// is only logged.
void ORSSerialPortManagerPortsPublishedNotificationCallback(QObject* context,
                                                            const QList<DeviceHandle>& devices);

/// What the device registry calls when devices go. A context that is no ORSSerialPortManager is
/// only logged.
void ORSSerialPortManagerPortsTerminatedNotificationCallback(QObject* context,
                                                             const QList<DeviceHandle>& devices);

/// The one object that knows which serial ports the machine has: it lists them, follows them as
/// they come and go, closes them for sleep and at the end of the application. Main thread only.
///
/// Order of an arrival: the ports are in availablePorts() before the notification is posted. Of a
/// removal: the ports are closed and their delegates told, they leave availablePorts(), the
/// notification is posted. Both are posted with the manager as object, even with no port in them.
class ORSSerialPortManager final : public QObject {
    Q_OBJECT
  public:
    using Ports = QList<std::shared_ptr<ORSSerialPort>>;
    /// Places in a list of ports, ascending.
    using Indexes = QList<qsizetype>;

    /// The one manager of the running program; the first call lists the ports. It ends with the
    /// platform that was current then.
    [[nodiscard]] static ORSSerialPortManager& sharedSerialPortManager();

    ORSSerialPortManager(const ORSSerialPortManager&) = delete;
    ORSSerialPortManager& operator=(const ORSSerialPortManager&) = delete;
    ~ORSSerialPortManager() override;

    /// The ports present now: those of the start in the order in which they were listed, then the
    /// later ones. Nothing (nil) when the devices could not be watched, and after the end of the
    /// application.
    [[nodiscard]] const std::optional<Ports>& availablePorts() const { return _availablePorts; }
    void setAvailablePorts(const std::optional<Ports>& ports);

    /// 0 when there is no list.
    [[nodiscard]] qsizetype countOfAvailablePorts() const;
    [[nodiscard]] std::shared_ptr<ORSSerialPort>
    objectInAvailablePortsAtIndex(qsizetype index) const;

    /// Inserts each port so that it is at its index afterwards. Nothing happens without a list.
    void insertAvailablePortsAtIndexes(const Ports& ports, const Indexes& indexes);
    void insertObjectInAvailablePortsAtIndex(const std::shared_ptr<ORSSerialPort>& port,
                                             qsizetype index);
    /// Removes the ports that are at these indexes now. Nothing happens without a list.
    void removeAvailablePortsAtIndexes(const Indexes& indexes);
    void removeObjectFromAvailablePortsAtIndex(qsizetype index);

    /// The ports that were closed for sleep and wait for the machine to wake up.
    [[nodiscard]] const Ports& portsToReopenAfterSleep() const { return _portsToReopenAfterSleep; }

    /// The registrations with the device registry; 0 for none. Setting one ends the old one.
    [[nodiscard]] quint32 portPublishedNotificationIterator() const;
    void setPortPublishedNotificationIterator(quint32 iterator);
    [[nodiscard]] quint32 portTerminatedNotificationIterator() const;
    void setPortTerminatedNotificationIterator(quint32 iterator);

    /// Closes the open ports and remembers them. Blocks while what was written last goes out, for
    /// three seconds at most.
    void systemWillSleep(const Notification& notification);
    /// Opens the remembered ports that are still there, and forgets them all. One whose device is
    /// still being closed is opened once that is done, within ten seconds.
    void systemDidWake(const Notification& notification);
    /// Whether the machine has said that it goes to sleep, and not yet that it woke up, or a device
    /// is still being closed since.
    [[nodiscard]] bool isAsleep() const {
        return _isAsleep || (_waitForDevices && _waitForDevices->isValid());
    }

    /// Whether the port is listed and the machine has its device: one that has gone while an alert
    /// is up leaves the list only afterwards.
    [[nodiscard]] bool isPresent(const ORSSerialPort& port) const;

    void serialPortsWerePublished(const QList<DeviceHandle>& devices);
    void serialPortsWereTerminated(const QList<DeviceHandle>& devices);

  Q_SIGNALS:
    /// availablePorts() holds new ports at these indexes.
    void availablePortsInserted(const QList<qsizetype>& indexes);
    /// The ports that were at these indexes have left availablePorts().
    void availablePortsRemoved(const QList<qsizetype>& indexes);
    /// availablePorts() is another list now.
    void availablePortsReplaced();

  private:
    explicit ORSSerialPortManager(QObject* parent);

    void getAvailablePortsAndRegisterForChangeNotifications();
    void registerForNotifications();
    void applicationWillTerminate();
    void awaitLastOutput() const;
    void reopenAfterSleep();
    void endWaitForDevices();
    void appendAvailablePorts(const Ports& ports);
    void removeAvailablePorts(const Ports& ports);
    void replaceIterator(quint32& iterator, quint32 successor);

    std::optional<Ports> _availablePorts;
    Ports _portsToReopenAfterSleep;
    std::shared_ptr<Timer> _waitForDevices;
    Clock::Duration _endOfWait{0};
    bool _isAsleep = false;
    quint32 _portPublishedNotificationIterator = 0;
    quint32 _portTerminatedNotificationIterator = 0;
};
