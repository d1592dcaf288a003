#include "keyer/KeyerWatch.h"

#include "keyer/KeyerCommand.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"

#include <QScopedValueRollback>

#include <array>
#include <utility>

using namespace std::chrono_literals;

namespace {

/// How long an answer to each greeting is waited for.
constexpr std::array<Clock::Duration, 3> patience{2s, 5s, 2s};

/// The slowest sign of all takes less.
constexpr Clock::Duration longestSilence = 10s;

void end(std::shared_ptr<Timer>& timer) {
    if (timer) {
        std::exchange(timer, nullptr)->invalidate();
    }
}

Clock& platformClock() {
    return Platform::current().clock();
}

} // namespace

KeyerWatch::KeyerWatch(WinKeyerUsb& engine, QObject* parent) : QObject(parent), _engine(engine) {
    connect(&_engine, &WinKeyerUsb::greeted, this, &KeyerWatch::beginGreeting);
    connect(&_engine, &WinKeyerUsb::heard, this, &KeyerWatch::hear);
    connect(&_engine, &WinKeyerUsb::activityChanged, this, &KeyerWatch::followLink);
    connect(&_engine, &WinKeyerUsb::willSend, this, [this] { _lastSign = platformClock().now(); });
    connect(&_engine, &WinKeyerUsb::sendingProgressed, this, &KeyerWatch::followSending);
    connect(&_engine, &WinKeyerUsb::reopeningFailed, this,
            [this] { report(&KeyerWatch::neverAnswered); });
}

void KeyerWatch::askAgain() {
    _hasReported = false;
    _engine.clearSending();
    if (_engine.isPortOpen()) {
        _engine.greetAgain();
        _engine.silence();
    } else {
        Q_EMIT connectionWanted();
    }
}

void KeyerWatch::beginGreeting() {
    if (_isGreeting) {
        return; // it is this watch that greets
    }
    end(_greetingTimer);
    end(_sendingTimer);
    _greetings = 0;
    _greetingTimer = platformClock().scheduleTimer(patience[0], this, [this] { checkGreeting(); });
}

void KeyerWatch::checkGreeting() {
    if (++_greetings == patience.size()) {
        report(&KeyerWatch::neverAnswered);
        return;
    }
    const QScopedValueRollback guard(_isGreeting, true);
    _engine.greetAgain();
    _greetingTimer =
        platformClock().scheduleTimer(patience[_greetings], this, [this] { checkGreeting(); });
}

void KeyerWatch::hear() {
    end(_greetingTimer);
    _lastSign = platformClock().now();
    if (std::exchange(_hasReported, false)) {
        Q_EMIT settled();
    }
}

void KeyerWatch::followLink() {
    if (_engine.activity() == KeyerActivity::NotConnected) {
        end(_greetingTimer);
        end(_sendingTimer);
        if (!_engine.isConnected() && std::exchange(_hasReported, false)) {
            Q_EMIT settled();
        }
    }
}

void KeyerWatch::followSending() {
    if (_engine.isPortOpen() && _engine.isAwaitingEcho() && !_sendingTimer) {
        _sendingTimer =
            platformClock().scheduleTimer(longestSilence, this, [this] { checkSending(); });
    }
}

/// A keyer that the operator has paused says nothing of a character until it goes on. One whose
/// buffer is full keys on, and tells of each character.
void KeyerWatch::checkSending() {
    _sendingTimer.reset();
    if (!_engine.isAwaitingEcho()) {
        return;
    }
    const auto left = _lastSign + longestSilence - platformClock().now();
    if (_engine.activity() == KeyerActivity::Paused) {
        followSending();
    } else if (left > Clock::Duration::zero()) {
        _sendingTimer = platformClock().scheduleTimer(left, this, [this] { checkSending(); });
    } else {
        keyUp();
        report(&KeyerWatch::fellSilent);
    }
}

/// A command that has lost its end takes nulls for it, and not the key up. What that makes of it
/// may hold the key for a time of its own, which only clearing ends; a keyer that is idle, as far
/// as it has said, has nothing to lose by that.
void KeyerWatch::keyUp() {
    constexpr int nullCommands = 4;
    if (_engine.tuneState() != 0) {
        return; // it is to be down
    }
    for (int i = 0; i < nullCommands; ++i) {
        _engine.putToWinKeyer(KeyerCommand::nullCommand());
    }
    _engine.keyUp();
    if (_engine.activity() == KeyerActivity::Idle) {
        _engine.putToWinKeyer(KeyerCommand::clearBuffer());
    }
}

void KeyerWatch::report(void (KeyerWatch::*what)()) {
    if (!std::exchange(_hasReported, true)) {
        Q_EMIT(this->*what)();
    }
}
