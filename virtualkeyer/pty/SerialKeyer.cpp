#include "virtualkeyer/pty/SerialKeyer.h"

#include <utility>

namespace virtualkeyer {

SerialKeyer::SerialKeyer(const Profile& profile, std::vector<KeyerListener*> listeners)
    : _keyer(profile), _listeners(std::move(listeners)) {
    handOn();
}

void SerialKeyer::send(std::uint8_t byte, Time at) {
    if (_isPluggedIn) {
        _fromHost.put(byte, at);
    }
}

void SerialKeyer::portOpened(Time at) {
    advance(at);
    _keyer.portOpened(at);
    handOn();
}

void SerialKeyer::setPaddle(bool dit, bool dah, Time at) {
    advance(at);
    _dit = dit;
    _dah = dah;
    if (_isPluggedIn) {
        _keyer.setPaddle(dit, dah, at);
    }
    handOn();
}

void SerialKeyer::setPot(int wpm, Time at) {
    advance(at);
    _keyer.setPot(wpm, at);
    handOn();
}

void SerialKeyer::setPushButtons(std::uint8_t mask, Time at) {
    advance(at);
    _pushButtons = mask;
    if (_isPluggedIn) {
        _keyer.setPushButtons(mask, at);
    }
    handOn();
}

void SerialKeyer::playMessage(int number, Time at) {
    advance(at);
    if (_isPluggedIn) {
        _keyer.playMessage(number, at);
    }
    handOn();
}

void SerialKeyer::setProfile(const Profile& profile, Time at) {
    advance(at);
    _keyer.setProfile(profile, at);
}

void SerialKeyer::pull(Time at) {
    advance(at);
    _isPluggedIn = false;
    _keyer.restart(at);
    handOn();
    _fromHost = PacedLine(initialBaud);
    _toHost = PacedLine(initialBaud);
    _arrived.clear();
}

void SerialKeyer::plugIn(Time at) {
    advance(at);
    _isPluggedIn = true;
    _keyer.setPushButtons(_pushButtons, at);
    _keyer.setPaddle(_dit, _dah, at);
    handOn();
}

void SerialKeyer::advance(Time until) {
    while (const auto byte = _fromHost.take(until)) {
        _keyer.receive(byte->value, byte->completeAt);
        // At once, because a new line speed holds from the next byte on.
        handOn();
    }
    _keyer.advance(until);
    handOn();
    while (const auto byte = _toHost.take(until)) {
        _arrived.push_back(byte->value);
    }
    for (KeyerListener* listener : _listeners) {
        listener->timePassed(until);
    }
}

std::vector<std::uint8_t> SerialKeyer::takeArrived() {
    return std::exchange(_arrived, {});
}

std::optional<Time> SerialKeyer::nextEvent() const {
    std::optional<Time> next;
    const auto consider = [&next](std::optional<Time> due) {
        if (due && (!next || *due < *next)) {
            next = due;
        }
    };
    consider(_keyer.nextEvent());
    consider(_fromHost.nextCompletion());
    consider(_toHost.nextCompletion());
    for (const KeyerListener* listener : _listeners) {
        consider(listener->nextWish());
    }
    return next;
}

/// Gives the keyer's events and state to the listeners and its bytes to the line.
void SerialKeyer::handOn() {
    for (const Event& event : _keyer.takeEvents()) {
        if (const auto* byte = std::get_if<HostByte>(&event.what)) {
            _toHost.put(byte->value, event.at);
        }
        if (const auto* speed = std::get_if<LineSpeed>(&event.what)) {
            _fromHost.setBaud(speed->baud, event.at);
            _toHost.setBaud(speed->baud, event.at);
        }
        for (KeyerListener* listener : _listeners) {
            listener->keyerDid(event, _keyer.registers());
        }
    }
    for (KeyerListener* listener : _listeners) {
        listener->keyerHolds(_keyer.registers(), _keyer.memory());
    }
}

} // namespace virtualkeyer
