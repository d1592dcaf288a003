// What the keyer sends: every byte of it arrives here, on the main queue.

#include "keyer/KeyerSettings.h"
#include "keyer/MessageSettings.h"
#include "keyer/ReceivedByte.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Log.h"
#include "platform/Platform.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
/// Seconds; twenty-three days, just within what a timer of the system can take.
constexpr double longestBeaconInterval = 2'000'000;
} // namespace

void WinKeyerUsb::serialPortDidReceiveData(ORSSerialPort& port, const QByteArray& data) {
    if (!isConnected() || !_isHostMode) {
        return;
    }
    if (&port != _winKeyerSerialPort.get()) {
        logLine(u"Winkeyer didReceiveData called by a stranger!"_s);
        logLine(QString::asprintf("sourcePort address: %p, name: %s",
                                  static_cast<const void*>(&port), qUtf8Printable(port.name())));
    }
    _wkStatus = 0;
    if (data.isEmpty()) {
        logLine(u"WinKeyer port was somehow closed!"_s);
        return;
    }
    // A chunk counts as that many repetitions of its first byte, on purpose.
    const auto byte = static_cast<std::uint8_t>(data.front());
    for (qsizetype i = 0; i < data.size(); ++i) {
        handleByte(byte);
    }
    announceActivity();
}

void WinKeyerUsb::handleByte(std::uint8_t byte) {
    _hasHeardFromKeyer = true;
    switch (classify(byte)) {
    case ReceivedByte::Error:
        logLine(u"  error byte"_s);
        break;
    case ReceivedByte::SpeedPot: {
        const auto minimum = SettingsStore::standardUserDefaults().integerForKey(WKSpeedPotMinimum);
        setSpeedOfPot((byte & 0x3F) + minimum);
        break;
    }
    case ReceivedByte::Status:
        handleStatus(byte);
        break;
    case ReceivedByte::Echo:
        takeEcho(byte);
        break;
    }
    Q_EMIT heard();
}

void WinKeyerUsb::handleStatus(std::uint8_t status) {
    _wkStatus = status;
    if ((status & KeyerStatus::pushButton) != 0) {
        handleButtonPressed();
        return;
    }
    _lastStatus = status;
    endSilence();
    const bool isIdle = (status & KeyerStatus::anything) == 0;
    if (isIdle && _onTheirWay.isOneAtATime()) {
        _onTheirWay.clear();
    }
    _mayBeKeying = !isIdle || _onTheirWay.areAwaited();
    _isKeyerPlaying = _isKeyerPlaying && _mayBeKeying;
    if (isIdle) {
        handleIdle();
    }
    if ((status & KeyerStatus::bufferNearlyFull) != 0) {
        setPauseState(1);
    }
    if ((status & KeyerStatus::breakIn) != 0) {
        handleBreakIn();
    }
    if ((status & KeyerStatus::busy) != 0 && beaconState() != 0 && _beaconTimer) {
        _beaconTimer->invalidate();
    }
    Q_EMIT statusReceived(status);
}

KeyerActivity WinKeyerUsb::activity() const {
    if (!isConnected() || !_isHostMode) {
        return KeyerActivity::NotConnected;
    }
    return _hasHeardFromKeyer ? activityOf(_lastStatus, pauseState() != 0) : KeyerActivity::Silent;
}

void WinKeyerUsb::announceActivity() {
    const auto now = activity();
    const auto name = serialPortName();
    if (now != _announcedActivity || name != _announcedPortName) {
        _announcedActivity = now;
        _announcedPortName = name;
        Q_EMIT activityChanged();
    }
}

void WinKeyerUsb::handleIdle() {
    if (pauseState() != 0) {
        setPauseState(0);
    }
    if (beaconState() != 0) {
        const auto interval = std::chrono::duration<double>(
            std::clamp(SettingsStore::standardUserDefaults().doubleForKey(BeaconInterval.key), 0.0,
                       longestBeaconInterval));
        // The timer before this one is let go of, not stopped.
        auto& clock = Platform::current().clock();
        const auto rest = std::chrono::duration_cast<Clock::Duration>(interval);
        _beaconDue = clock.now() + rest;
        _beaconTimer = clock.scheduleTimer(rest, this, [this] { repeatMessage(); });
    }
    send();
    awaitSilence();
}

std::optional<Clock::Duration> WinKeyerUsb::beaconDue() const {
    const bool isWaiting = _beaconTimer && _beaconTimer->isValid();
    if (beaconState() == 0 || _beaconMessage.isNull() || !isWaiting) {
        return std::nullopt;
    }
    return _beaconDue;
}
