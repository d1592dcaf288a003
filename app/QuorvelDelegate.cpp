#include "app/QuorvelDelegate.h"

#include "formatters/CallsignFormatter.h"
#include "keyer/GeneralSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "serial/ORSSerialPortManager.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

Application& application() {
    return Platform::current().application();
}

ORSSerialPortManager::Ports portsIn(const Notification& notification, QLatin1StringView key) {
    return notification.userInfo.value(key).value<ORSSerialPortManager::Ports>();
}

bool isPresent(const ORSSerialPort& port) {
    return ORSSerialPortManager::sharedSerialPortManager().isPresent(port);
}

} // namespace

QuorvelDelegate::QuorvelDelegate(WinKeyerUsb& engine) : _engine(engine) {
    application().setDelegate(this);
}

QuorvelDelegate::~QuorvelDelegate() {
    application().setDelegate(nullptr);
}

void QuorvelDelegate::awakeFromNib(QLineEdit& hisCallsignTextField) {
    hisCallsignTextField.setValidator(new CallsignFormatter(&hisCallsignTextField));
}

void QuorvelDelegate::applicationDidFinishLaunching() {
    auto& center = NotificationCenter::defaultCenter();
    updateSerialPortList();
    center.addObserver(this, ORSSerialPortWasConnectedNotification,
                       [this](const Notification& each) { serialPortAdded(each); });
    center.addObserver(this, ORSSerialPortWasDisconnectedNotification,
                       [this](const Notification& each) { serialPortRemoved(each); });
    // Once more: nobody was told of a port that came between the list and the observers.
    updateSerialPortList();
    connectToKeyer();
}

QuorvelDelegate::TerminateReply QuorvelDelegate::applicationShouldTerminate() {
    _isTerminating = true;
    Error error;
    if (!disconnectFromKeyer(&error)) {
        application().presentError(error);
    }
    return TerminateReply::TerminateNow;
}

void QuorvelDelegate::changeSerialPort(const QObject*) {
    Error error;
    if (!disconnectFromKeyer(&error)) {
        application().presentError(error);
    }
    if (SettingsStore::standardUserDefaults().stringForKey(WKPortName) == noPortName) {
        return;
    }
    connectToKeyer();
}

bool QuorvelDelegate::disconnectFromKeyer(Error* error) {
    Q_EMIT willDisconnect();
    return _engine.disconnect(error);
}

/// Not once the application is to end, as it may be while an alert is up: the ports have gone by
/// then, and a connection that fails forgets which one the operator chose.
void QuorvelDelegate::connectToKeyer() {
    Error error;
    if (!_isTerminating && !_engine.connect(&error)) {
        application().presentError(error);
    }
}

void QuorvelDelegate::setSerialPortNameArray(const QStringList& names) {
    _serialPortNameArray = names;
    Q_EMIT serialPortNameArrayChanged();
}

void QuorvelDelegate::updateSerialPortList() {
    QStringList names{noPortName};
    const auto& ports = ORSSerialPortManager::sharedSerialPortManager().availablePorts();
    for (const auto& port : ports.value_or(ORSSerialPortManager::Ports())) {
        names.append(port->name());
    }
    setSerialPortNameArray(names);
}

void QuorvelDelegate::serialPortRemoved(const Notification& notification) {
    logLine(u"-[QuorvelDelegate(Private) serialPortRemoved:]"_s);
    auto& settings = SettingsStore::standardUserDefaults();
    for (const auto& port : portsIn(notification, ORSDisconnectedSerialPortsKey)) {
        if (port->name() != settings.stringForKey(WKPortName)) {
            continue;
        }
        // The choice of port itself stays: it is the same adapter that will be plugged in again.
        settings.setObject(QString(noPortName), noPortName);
        disconnectFromKeyer(nullptr);
        application().runModal(
            {.messageText =
                 tr("The WinKeyer using serial port %1 has been unplugged.").arg(port->name()),
             .informativeText =
                 tr("Plug it back in, or choose another serial port in General preferences.")});
        break;
    }
    updateSerialPortList();
}

void QuorvelDelegate::serialPortAdded(const Notification& notification) {
    logLine(u"-[QuorvelDelegate(Private) serialPortAdded:]"_s);
    updateSerialPortList();
    if (_engine.isConnected()) {
        return;
    }
    // Each port is offered, also after a "Yes": a later "Yes" moves the link to the later port.
    for (const auto& port : portsIn(notification, ORSConnectedSerialPortsKey)) {
        if (!port->name().startsWith("usbserial-"_L1) || !isPresent(*port)) {
            continue;
        }
        const auto answer = application().runModal(
            {.messageText = tr("The serial port %1 has been plugged in.").arg(port->name()),
             .informativeText = tr("Try to use this port to communicate with a WinKeyer?"),
             .defaultButton = tr("Yes"),
             .alternateButton = tr("No")});
        // It may have gone while the question was up: that it is not available is then said.
        if (answer == AlertAnswer::Default) {
            SettingsStore::standardUserDefaults().setObject(port->name(), WKPortName);
            changeSerialPort(this);
        }
    }
}
