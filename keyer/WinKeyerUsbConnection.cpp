// How the link to the keyer comes up and goes down.

#include "keyer/GeneralSettings.h"
#include "keyer/KeyerCommand.h"
#include "keyer/LineTime.h"
#include "keyer/StoredSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/LeadingNumber.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "serial/ORSSerialPortManager.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What connecting sends, in bytes.
constexpr qsizetype greetingSize = 28;

QString giveUp() {
    return WinKeyerUsb::tr("Giving up and closing connection to keyer.");
}

QString seeHeader() {
    return WinKeyerUsb::tr("See AMSerialErrors.h");
}

/// The code of the error that the caller's slot held already. Callers pass an empty one, so that
/// the messages which print it say 0.
int codeIn(const Error* slot) {
    return slot != nullptr ? slot->code : 0;
}

/// A message that ends in that code.
QString withCode(const QString& message, const Error* slot) {
    return message + QString::number(codeIn(slot));
}

void fill(Error* slot, const Error& error) {
    if (slot != nullptr) {
        *slot = error;
    }
}

} // namespace

bool WinKeyerUsb::connect(Error* error) {
    QString name;
    if (!determinePortName(&name, error) || !determineSerialPortForName(name, error) ||
        !configureSerialPort(error) || !openSerialPort(error) || !syncWinKeyer(error) ||
        !echoTest(error)) {
        return false;
    }
    _winKeyerSerialPort->setDelegate(this);
    const bool isHostOpen = openHostMode(error);
    announceActivity();
    if (isHostOpen) {
        Q_EMIT greeted();
    }
    return isHostOpen;
}

bool WinKeyerUsb::isConnected() const {
    return _winKeyerSerialPort != nullptr;
}

QString WinKeyerUsb::serialPortName() const {
    return isConnected() ? _winKeyerSerialPort->name() : QString();
}

bool WinKeyerUsb::isPortOpen() const {
    return isConnected() && _winKeyerSerialPort->isOpen();
}

bool WinKeyerUsb::disconnect(Error* error) {
    clearSending();
    setVersionString({});
    setSpeedOfPot({});
    if (!isConnected()) {
        return true;
    }
    bool isHostClosed = true;
    if (_winKeyerSerialPort->isOpen()) {
        // The keyer is given time to end what it is doing, and then to leave host mode.
        auto& clock = Platform::current().clock();
        clock.sleep(1s);
        isHostClosed = closeHostMode(error);
        clock.sleep(1s);
        _winKeyerSerialPort->close();
    }
    endMemoryLoad();
    _winKeyerSerialPort.reset();
    announceActivity();
    return isHostClosed;
}

bool WinKeyerUsb::determinePortName(QString* name, Error* error) {
    *name = SettingsStore::standardUserDefaults().stringForKey(WKPortName);
    if (*name == noPortName) {
        fill(error, Error::ofApplication(
                        tr("There is no port defined for the WinKeyer."),
                        tr("Choose a serial port other than None in the General "
                           "Preferences pane. Or, plug in a cable to your WinKeyer USB.")));
        return false;
    }
    return true;
}

bool WinKeyerUsb::determineSerialPortForName(const QString& name, Error* error) {
    const auto& manager = ORSSerialPortManager::sharedSerialPortManager();
    const auto& ports = manager.availablePorts();
    for (const auto& port : ports.value_or(ORSSerialPortManager::Ports())) {
        // One that has gone, of which nobody has told yet: its node may be another device's by now.
        if (port->name() == name && manager.isPresent(*port)) {
            _winKeyerSerialPort = port;
            return true;
        }
    }
    // "FDTI" is spelt so on purpose.
    return refuse(
        error,
        Error::ofApplication(
            tr("The WinKeyer serial port %1 is not available.").arg(name),
            tr("Confirm that the WinKeyer is connected to the selected port, and that no other "
               "application is using that port. Also confirm that the FDTI driver is installed. "
               "Obtain the appropriate Mac OS X driver at https://ftdichip.com/drivers/.")));
}

bool WinKeyerUsb::configureSerialPort(Error*) {
    _winKeyerSerialPort->setBaudRate(1200);
    _winKeyerSerialPort->setParity(0);
    _winKeyerSerialPort->setNumberOfStopBits(2);
    _winKeyerSerialPort->setUsesDTRDSRFlowControl(false);
    _winKeyerSerialPort->setUsesRTSCTSFlowControl(false);
    _winKeyerSerialPort->setUsesDCDOutputFlowControl(false);
    // A block counts as repetitions of its first byte; one byte is always what it is.
    _winKeyerSerialPort->setMaximumBlockSize(1);
    return true;
}

bool WinKeyerUsb::openSerialPort(Error* error) {
    _winKeyerSerialPort->open();
    if (_winKeyerSerialPort->isOpen()) {
        return true;
    }
    return refuse(
        error,
        Error::ofApplication(
            tr("Unable to open the WinKeyer serial port %1.").arg(_winKeyerSerialPort->name()),
            tr("Confirm that the USB-Serial device is connected and active.")));
}

bool WinKeyerUsb::syncWinKeyer(Error* error) {
    for (int i = 0; i < 4; ++i) {
        if (!sendToPort(KeyerCommand::nullCommand())) {
            return refuse(
                error,
                Error::ofApplication(
                    withCode(tr("WinKeyer sync failed with AMSerial code: "), error), seeHeader()));
        }
    }
    return true;
}

bool WinKeyerUsb::echoTest(Error* error) {
    if (sendToPort(KeyerCommand::adminEchoTest())) {
        return true;
    }
    return refuse(
        error,
        Error::ofApplication(
            withCode(tr("WinKeyer echo test Admin command failed with AMSerial code: "), error),
            seeHeader()));
}

bool WinKeyerUsb::openHostMode(Error* error) {
    forgetOnTheirWay();
    beginHostMode();
    if (hostOpen(error) && setWK2Mode(error)) {
        completeHostMode();
    }
    return _isHostMode;
}

void WinKeyerUsb::beginHostMode() {
    _sendIsDue = false; // the keyer's first answer lets the text go
    endMemoryLoad();
    _isHostMode = false;
    _isToBeGreetedAgain = false;
    _isAsleep = false;
    _hasHeardFromKeyer = false;
    _sentSettings.clear();
    _mayBeKeying = false;
    _isKeyerPlaying = false;
    _unheard.clear();
    _lastStatus.reset();
}

void WinKeyerUsb::completeHostMode() {
    loadDefaults();
    putToWinKeyer(KeyerCommand::getSpeedPot());
    _isHostMode = true;
    keepWhole(greetingSize);
}

void WinKeyerUsb::greetAgain() {
    using namespace KeyerCommand;
    if (!isPortOpen()) {
        return;
    }
    beginHostMode();
    takeBackUnheard();
    for (const auto& command : {nullCommand(), nullCommand(), nullCommand(), nullCommand(),
                                adminEchoTest(), adminHostOpen(), adminSetWK2Mode()}) {
        putToWinKeyer(command);
    }
    completeHostMode();
    announceActivity();
    Q_EMIT greeted();
}

bool WinKeyerUsb::hostOpen(Error* error) {
    if (sendToPort(KeyerCommand::adminHostOpen())) {
        return readVersion(error);
    }
    return refuse(error,
                  Error::ofApplication(tr("WinKeyer Host Open Admin command failed."), giveUp()));
}

bool WinKeyerUsb::readVersion(Error*) {
    return true;
}

bool WinKeyerUsb::validateVersion(Error* error) {
    const auto version = LeadingNumber::integer(versionString());
    if (version >= 20 && version <= 23) {
        return true;
    }
    const auto reason =
        Error::ofApplication(tr("WinKeyer returned unsupported version: %1.").arg(version),
                             tr("Confirm that the WinKeyer version is between 20 and 23."));
    setVersionString({});
    return refuse(error, reason);
}

bool WinKeyerUsb::setWK2Mode(Error* error) {
    if (sendToPort(KeyerCommand::adminSetWK2Mode())) {
        return true;
    }
    return refuse(error, Error::ofApplication(
                             tr("WinKeyer Set WinKeyer 2 Mode Admin command failed."), giveUp()));
}

bool WinKeyerUsb::closeHostMode(Error* error) {
    if (!_isHostMode) {
        return true;
    }
    makeWay();
    if (sendToPort(KeyerCommand::adminHostClose())) {
        _isHostMode = false;
        return true;
    }
    fill(error,
         Error::ofApplication(
             withCode(tr("WinKeyer Host Close Admin command failed with AMSerial code: "), error),
             seeHeader()));
    logLine(u"closeHostMode failed"_s);
    return false;
}

// Nothing is waited for, and a line that has gone already refuses it all.
void WinKeyerUsb::serialPortWillBeClosed(ORSSerialPort& port) {
    if (&port != _winKeyerSerialPort.get() || !_isHostMode) {
        return;
    }
    const bool hasText = _text.hasUnsent();
    if (mayBeKeying() || _beaconState != 0 || hasText) {
        Q_EMIT sendingCutShort();
    }
    silence();
    clearSending();
    static_cast<void>(sendToPort(KeyerCommand::adminHostClose()));
    endMemoryLoad();
    _isHostMode = false;
    _isToBeGreetedAgain = true;
    _isAsleep = true;
    announceActivity();
}

void WinKeyerUsb::serialPortWasOpened(ORSSerialPort& port) {
    if (&port != _winKeyerSerialPort.get()) {
        port.close(); // another keyer, or none, was chosen before it could be opened again
    } else if (_isToBeGreetedAgain) {
        greetAgain();
    }
}

/// One that comes during the sleep is of the closing, or of what was under way then.
void WinKeyerUsb::serialPortDidEncounterError(ORSSerialPort& port, const Error&) {
    if (&port == _winKeyerSerialPort.get() && _isToBeGreetedAgain && !isPortOpen() &&
        !ORSSerialPortManager::sharedSerialPortManager().isAsleep()) {
        _isAsleep = false;
        Q_EMIT reopeningFailed();
    }
}

void WinKeyerUsb::serialPortWasRemovedFromSystem(ORSSerialPort& port) {
    logLine(u"-[WinKeyerUsb serialPortWasRemovedFromSystem:]"_s);
    // A port used before, whose delegate this still is, takes no link with it.
    if (&port == _winKeyerSerialPort.get()) {
        endMemoryLoad();
        _winKeyerSerialPort.reset();
        announceActivity();
    }
}

/// Fails a step of connecting: tells why, forgets the stored choice of port, and lets go of it.
bool WinKeyerUsb::refuse(Error* error, const Error& reason) {
    fill(error, reason);
    forgetPortName();
    releasePort();
    return false;
}

void WinKeyerUsb::forgetPortName() {
    SettingsStore::standardUserDefaults().setObject(QString(noPortName), WKPortName);
}

void WinKeyerUsb::releasePort() {
    if (_winKeyerSerialPort) {
        _winKeyerSerialPort->close();
    }
    _winKeyerSerialPort.reset();
}

void WinKeyerUsb::loadDefaults() {
    if (isConnected()) {
        putToWinKeyer(KeyerCommand::loadDefaults(KeyerEncoding::defaultsBlock(StoredSettings())));
    }
}
