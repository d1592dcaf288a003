#include "app/window/KeyerStatusLine.h"

#include "keyer/WinKeyerUsb.h"

namespace {

QString statusOf(const WinKeyerUsb& engine) {
    const auto port = engine.serialPortName();
    if (engine.activity() != KeyerActivity::NotConnected && engine.tuneState() != 0) {
        return KeyerStatusLine::tr("Transmitting on %1: tune is on").arg(port);
    }
    switch (engine.activity()) {
    case KeyerActivity::NotConnected:
        break;
    case KeyerActivity::Silent:
        return KeyerStatusLine::tr("Connected to %1, waiting for the keyer's first byte").arg(port);
    case KeyerActivity::Idle:
        return KeyerStatusLine::tr("Connected to %1: idle").arg(port);
    case KeyerActivity::Sending:
        return KeyerStatusLine::tr("Connected to %1: sending").arg(port);
    case KeyerActivity::BreakIn:
        return KeyerStatusLine::tr("Connected to %1: break-in (paddle)").arg(port);
    case KeyerActivity::BufferFull:
        return KeyerStatusLine::tr("Connected to %1: buffer full").arg(port);
    case KeyerActivity::Paused:
        return KeyerStatusLine::tr("Connected to %1: paused").arg(port);
    }
    return KeyerStatusLine::tr("Not connected");
}

} // namespace

void KeyerStatusLine::setEngine(const WinKeyerUsb& engine) {
    const auto follow = [this, &engine] {
        _status = statusOf(engine);
        show();
    };
    QObject::connect(&engine, &WinKeyerUsb::activityChanged, this, follow);
    QObject::connect(&engine, &WinKeyerUsb::tuneStateChanged, this, follow);
    follow();
}

void KeyerStatusLine::setNotice(const QString& notice) {
    _notice = notice;
    show();
}

void KeyerStatusLine::show() {
    const auto shown = _notice.isEmpty() ? _status : tr("%1. %2").arg(_status, _notice);
    if (shown != text()) {
        setText(shown);
        setAccessibleDescription(shown);
    }
}
