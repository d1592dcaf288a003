#include "app/window/SleepNotice.h"

#include "app/window/NoticeStrip.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"

#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Many a keyer answers the greeting with its status, and an idle one ends a pause.
constexpr Clock::Duration longestAnswer = 1s;

} // namespace

SleepNotice::SleepNotice(WinKeyerUsb& engine, NoticeStrip& strip, QObject* parent)
    : QObject(parent), _engine(engine), _strip(strip) {
    QObject::connect(&_engine, &WinKeyerUsb::sendingCutShort, this, [this] { _hasStopped = true; });
    QObject::connect(&_engine, &WinKeyerUsb::keyboardBufferChanged, this, &SleepNotice::followText);
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this, &SleepNotice::followLink);
    QObject::connect(&_engine, &WinKeyerUsb::reopeningFailed, this, &SleepNotice::followLink);
    QObject::connect(&_engine, &WinKeyerUsb::greeted, this, &SleepNotice::hold);
    QObject::connect(&_engine, &WinKeyerUsb::pauseStateChanged, this, &SleepNotice::followPause);
    // By the keyer's first word after the wake-up all has been told.
    QObject::connect(&_engine, &WinKeyerUsb::heard, this, [this] { _hasStopped = false; });
    NotificationCenter::defaultCenter().addObserver(this, NSWorkspaceDidWakeNotification,
                                                    [this](const Notification&) { tell(); });
}

/// It is announced ahead of the sending, which would lose its first letter to a closed port.
void SleepNotice::followText() {
    const bool hasText = !_engine.keyboardBuffer().isEmpty();
    if (hasText && _engine.isAsleep() && !_isHolding) {
        _isHolding = true;
        _engine.setPauseState(1);
    } else if (!hasText && std::exchange(_isHolding, false)) {
        _engine.setPauseState(0);
    }
}

void SleepNotice::followLink() {
    if (!_engine.isConnected()) {
        _hasStopped = false; // the port went, of which the operator is told in another way
    }
    const bool wasAsleep = std::exchange(_isAsleep, _engine.isAsleep());
    if (!wasAsleep || _isAsleep || !_isHolding) {
        return;
    }
    if (_engine.isPortOpen()) {
        tell();
    } else {
        _isHolding = false;
        _engine.setPauseState(0);
    }
}

/// The keyer, too, has to know of the pause.
void SleepNotice::hold() {
    if (_isHolding) {
        _settled = Platform::current().clock().now() + longestAnswer;
        _engine.setPauseState(1);
    }
}

void SleepNotice::followPause() {
    if (!_isHolding || _engine.pauseState() != 0) {
        return;
    }
    if (_engine.isAsleep() || Platform::current().clock().now() < _settled) {
        _engine.setPauseState(1);
    } else {
        _isHolding = false;
    }
}

void SleepNotice::tell() {
    QStringList sentences;
    if (_hasStopped) {
        sentences.append(tr("The computer went to sleep, which stopped the sending."));
    }
    if (_isHolding && !_engine.isAsleep()) {
        sentences.append(tr("What you entered meanwhile waits: take Pause off to send it, or "
                            "press Esc to drop it."));
    }
    if (!sentences.isEmpty()) {
        _strip.say(sentences.join(u' '));
    }
}
