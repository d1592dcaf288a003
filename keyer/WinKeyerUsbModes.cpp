// Tune, pause and high-speed CW: what the operator switches on and off.

#include "keyer/Action.h"
#include "keyer/KeyerCommand.h"
#include "keyer/Replace.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Log.h"

using namespace Qt::StringLiterals;

void WinKeyerUsb::tune(const QObject* sender) {
    using KeyerCommand::KeyLine;
    if (Action::state(sender) != 1) {
        keyUp();
        return;
    }
    _mayBeKeying = true;
    putToWinKeyer(KeyerCommand::keyImmediate(KeyLine::Down));
}

void WinKeyerUsb::keyUp() {
    makeWay();
    putToWinKeyer(KeyerCommand::keyImmediate(KeyerCommand::KeyLine::Up));
}

void WinKeyerUsb::silence() {
    makeWay();
    const bool isKeyUp = sendToPort(KeyerCommand::keyImmediate(KeyerCommand::KeyLine::Up));
    static_cast<void>(sendToPort(KeyerCommand::clearBuffer()));
    if (isKeyUp && !_winKeyerSerialPort->isHoldingBack()) {
        Q_EMIT silenced();
    }
}

void WinKeyerUsb::changeHSCWMode(const QObject* sender) {
    if (Action::state(sender) != 1) {
        putToWinKeyer(KeyerCommand::setWpmSpeedFromPot());
        return;
    }
    const auto speed = hscwSpeed();
    logLine(u"HSCW Speed = %1"_s.arg(speed));
    putToWinKeyer(KeyerCommand::hscwSpeedChange(KeyerEncoding::lowByte(speed)));
    noteHighSpeed(speed);
}

void WinKeyerUsb::noteHighSpeed(qint64 speed) {
    if (replace(_highSpeed, std::optional(speed))) {
        Q_EMIT highSpeedChanged();
    }
}

void WinKeyerUsb::setPauseState(int state) {
    using KeyerCommand::Pause;
    const bool isNew = _pauseState != state;
    _pauseState = state;
    putToWinKeyer(KeyerCommand::setPauseState(state != 0 ? Pause::Pause : Pause::Resume));
    if (isNew) {
        Q_EMIT pauseStateChanged();
        announceActivity();
    }
    if (_pauseState == 0) {
        send();
    }
    awaitSilence();
}
