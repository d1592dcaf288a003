#include "virtualkeyer/pty/SerialKeyer.h"

#include <algorithm>
#include <utility>

namespace virtualkeyer {

namespace {

/// The earlier of the two, if there is any.
std::optional<Time> earlier(std::optional<Time> a, std::optional<Time> b) {
    return a && b ? std::min(*a, *b) : a ? a : b;
}

} // namespace

SerialKeyer::SerialKeyer(const Profile& profile, std::vector<KeyerListener*> listeners,
                         const Troubles& troubles, std::uint32_t seed)
    : _keyer(profile),
      _listeners(std::move(listeners)),
      _troubles(troubles),
      _arrivingAtKeyer(TroubledLine::Direction::ToKeyer, seed),
      _arrivingAtHost(TroubledLine::Direction::ToHost, seed + 1) {
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
    if (_keyer.isDeaf()) {
        tellRestart(at);
    }
    handOn();
    plan(at);
}

void SerialKeyer::setTroubles(const Troubles& troubles, Time at) {
    advance(at);
    _troubles = troubles;
    plan(at);
}

/// What happens a while from now.
void SerialKeyer::plan(Time from) {
    const auto planned = [from](std::optional<Time> after) {
        return after ? std::optional{from + *after} : std::nullopt;
    };
    _resetAt = planned(_troubles.reset);
    _hangUpAt = planned(_troubles.hangUp);
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
    tellRestart(at);
    handOn();
    hangUp(at);
    _arrived.clear();
    _fromHost = PacedLine(initialBaud);
    _toHost = PacedLine(initialBaud);
}

/// What has arrived before stays arrived.
void SerialKeyer::hangUp(Time at) {
    _keyer.advance(at);
    handOn();
    collect(at);
    _fromHost.clear();
    _toHost.clear();
    _arrivingAtKeyer.clear();
    _arrivingAtHost.clear();
    _resetAt.reset();
    _hangUpAt.reset();
    _isHungUp = true;
}

void SerialKeyer::plugIn(Time at) {
    advance(at);
    _isPluggedIn = true;
    _keyer.setPushButtons(_pushButtons, at);
    _keyer.setPaddle(_dit, _dah, at);
    handOn();
}

void SerialKeyer::advance(Time until) {
    for (auto next = nextIncident(); next && *next <= until; next = nextIncident()) {
        runIncident(*next);
    }
    _keyer.advance(until);
    handOn();
    collect(until);
    for (KeyerListener* listener : _listeners) {
        listener->timePassed(until);
    }
}

/// What happens to the keyer next, not by its own doing.
std::optional<Time> SerialKeyer::nextIncident() const {
    return earlier(earlier(_fromHost.nextCompletion(), _arrivingAtKeyer.nextArrival()),
                   earlier(_resetAt, _hangUpAt));
}

void SerialKeyer::runIncident(Time at) {
    if (const auto byte = _arrivingAtKeyer.take(at)) {
        // What was before it is told before it.
        _keyer.advance(byte->completeAt);
        handOn();
        for (KeyerListener* listener : _listeners) {
            listener->hostSent(byte->value, _keyer.isDeaf(), byte->completeAt);
        }
        _keyer.receive(byte->value, byte->completeAt);
        // At once, because a new line speed holds from the next byte on.
        handOn();
    } else if (const auto complete = _fromHost.take(at)) {
        _arrivingAtKeyer.put(*complete, _troubles);
    } else if (_resetAt && *_resetAt <= at) {
        _resetAt.reset();
        _keyer.reset(at);
        tellRestart(at);
        handOn();
    } else {
        hangUp(at);
    }
}

void SerialKeyer::collect(Time until) {
    while (const auto byte = _toHost.take(until)) {
        _arrivingAtHost.put(*byte, _troubles);
    }
    while (const auto byte = _arrivingAtHost.take(until)) {
        _arrived.push_back(byte->value);
    }
}

std::vector<std::uint8_t> SerialKeyer::takeArrived() {
    return std::exchange(_arrived, {});
}

std::optional<Time> SerialKeyer::nextEvent() const {
    auto next = earlier(earlier(_keyer.nextEvent(), nextIncident()),
                        earlier(_toHost.nextCompletion(), _arrivingAtHost.nextArrival()));
    for (const KeyerListener* listener : _listeners) {
        next = earlier(next, listener->nextWish());
    }
    return next;
}

void SerialKeyer::tellRestart(Time at) {
    for (KeyerListener* listener : _listeners) {
        listener->keyerRestarted(at);
    }
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
