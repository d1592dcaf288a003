#include "app/window/KeyerStatusLine.h"

#include "app/window/BeaconCountdown.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/NotificationCenter.h"

using namespace Qt::StringLiterals;

void KeyerStatusLine::follow(const WinKeyerUsb& engine, const BeaconCountdown& countdown) {
    _engine = &engine;
    _countdown = &countdown;
    for (const auto change : {&WinKeyerUsb::activityChanged, &WinKeyerUsb::tuneStateChanged,
                              &WinKeyerUsb::pauseStateChanged, &WinKeyerUsb::hscwStateChanged,
                              &WinKeyerUsb::beaconStateChanged}) {
        QObject::connect(_engine, change, this, &KeyerStatusLine::show);
    }
    QObject::connect(_countdown, &BeaconCountdown::secondsChanged, this, &KeyerStatusLine::show);
    const auto note = [this](bool isAsleep) {
        return [this, isAsleep](const Notification&) {
            _isAsleep = isAsleep;
            show();
        };
    };
    auto& center = NotificationCenter::defaultCenter();
    center.addObserver(this, NSWorkspaceWillSleepNotification, note(true));
    center.addObserver(this, NSWorkspaceDidWakeNotification, note(false));
    show();
}

void KeyerStatusLine::setNotice(const QString& notice) {
    _notice = notice;
    show();
}

void KeyerStatusLine::show() {
    setText(sentence(_countdown->seconds()));
    const auto spoken = sentence(-1);
    if (accessibleDescription() != spoken) {
        setAccessibleDescription(spoken);
    }
}

QString KeyerStatusLine::sentence(int secondsToBeacon) const {
    const auto modeList = modes(secondsToBeacon);
    auto shown =
        modeList.isEmpty() ? status() : tr("%1 (%2)").arg(status(), modeList.join(tr(", ")));
    return _notice.isEmpty() ? shown : tr("%1. %2").arg(shown, _notice);
}

QString KeyerStatusLine::status() const {
    const auto port = _engine->serialPortName();
    const auto activity = _engine->activity();
    if (_isAsleep && _engine->isConnected()) {
        return tr("The machine sleeps: %1 is closed").arg(port);
    }
    if (activity != KeyerActivity::NotConnected && _engine->tuneState() != 0) {
        return tr("Transmitting on %1: tune is on").arg(port);
    }
    switch (activity) {
    case KeyerActivity::NotConnected:
        break;
    case KeyerActivity::Silent:
        return tr("Connected to %1, waiting for the keyer's first byte").arg(port);
    case KeyerActivity::Idle:
        return tr("Connected to %1: idle").arg(port);
    case KeyerActivity::Sending:
        return tr("Connected to %1: sending").arg(port);
    case KeyerActivity::BreakIn:
        return tr("Connected to %1: break-in (paddle)").arg(port);
    case KeyerActivity::BufferFull:
        return tr("Connected to %1: buffer full").arg(port);
    case KeyerActivity::Paused:
        return tr("Connected to %1: paused").arg(port);
    }
    return tr("Not connected");
}

/// What is on besides.
QStringList KeyerStatusLine::modes(int secondsToBeacon) const {
    QStringList modes;
    if (_engine->pauseState() != 0 && _engine->activity() != KeyerActivity::Paused) {
        modes.append(tr("paused"));
    }
    if (_engine->hscwState() != 0) {
        modes.append(tr("high-speed CW"));
    }
    if (secondsToBeacon > 0) {
        modes.append(tr("beacon again in %1 s").arg(secondsToBeacon));
    } else if (_engine->beaconState() != 0) {
        modes.append(tr("beacon on"));
    }
    return modes;
}
