#include "tests/integration/VirtualTimeLink.h"

#include "keyer/GeneralSettings.h"
#include "keyer/KeyerSettings.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

using virtualkeyer::HostByte;
using virtualkeyer::KeyLine;

namespace {

constexpr int baud = 1200;

/// The pot is the one way to speeds above 99 wpm: its range lies above its minimum.
constexpr int slowestPotMinimum = 5;
constexpr int highestPotMinimum = 99;
constexpr int potRange = 63;

int openPort(EngineBench& bench) {
    if (!bench.connect()) {
        throw std::runtime_error("There is no line to the keyer.");
    }
    return bench.port().fileDescriptor();
}

bool isCharacter(std::uint8_t byte) {
    return byte >= 0x20 && byte < 0x80;
}

} // namespace

VirtualTimeLink::VirtualTimeLink(const Line& line) : _captured(openPort(_bench)) {
    startOver(line);
}

void VirtualTimeLink::startOver(const Line& line) {
    auto* const old = &engine();
    delete old;
    _line = line;
    _hears = nullptr;
    _writes = nullptr;
    _echoesToLose = 0;
    _keyer.emplace();
    _toKeyer.emplace(baud);
    _toHost.emplace(baud);
    _keyer->setPot(line.wpm, _now);
    _bench.settings().setObject(std::clamp(line.wpm, slowestPotMinimum, highestPotMinimum),
                                WKSpeedPotMinimum);
    _bench.settings().setObject(potRange, WKSpeedPotRange);
    _bench.settings().setObject(line.charactersAhead, CharactersAhead.key);
    static_cast<void>(_captured.take());
    if (!engine().connect(nullptr)) {
        throw std::runtime_error("The keyer does not open.");
    }
    handOn();
    static_cast<void>(runUntilQuiet());
    if (_keyer->registers().wpm() != line.wpm) {
        throw std::invalid_argument("The keyer does not have this speed.");
    }
    _arrived.clear();
    _keyed.clear();
    _begun.reset();
}

std::vector<VirtualTimeLink::KeyChange> VirtualTimeLink::key(const QString& text) {
    engine().clearSending();
    engine().appendMessage(text);
    handOn();
    return runUntilQuiet();
}

void VirtualTimeLink::setPaddle(bool dit, bool dah) {
    _keyer->setPaddle(dit, dah, _now);
    handOnEvents();
}

void VirtualTimeLink::pass(Time duration) {
    const auto end = _now + duration;
    for (auto next = nextEvent(); next && *next <= end; next = nextEvent()) {
        moveTo(*next);
    }
    moveTo(end);
}

std::vector<VirtualTimeLink::KeyChange> VirtualTimeLink::runUntilQuiet() {
    while (const auto next = nextEvent()) {
        moveTo(*next);
    }
    return std::exchange(_changes, {});
}

std::optional<VirtualTimeLink::Time> VirtualTimeLink::nextEvent() {
    std::optional<Time> next = _keyer->nextEvent();
    const auto consider = [&next](std::optional<Time> due) {
        next = due && (!next || *due < *next) ? due : next;
    };
    for (const auto* line : {&*_toKeyer, &*_toHost}) {
        if (const auto due = line->nextCompletion()) {
            consider(*due + _line.delay);
        }
    }
    const auto timers = _bench.clock().pendingTimers();
    if (!timers.isEmpty()) {
        consider(_now + timers.first());
    }
    return next;
}

void VirtualTimeLink::moveTo(Time time) {
    _bench.clock().advance(time - _now);
    _now = time;
    handOnWrites(_now);
    _keyer->advance(_now);
    while (const auto byte = _toKeyer->take(_now - _line.delay)) {
        _arrived.push_back({_now, byte->value});
        _keyer->receive(byte->value, _now);
    }
    handOnEvents();
    while (const auto byte = _toHost->take(_now - _line.delay)) {
        deliver(byte->value);
    }
}

void VirtualTimeLink::deliver(std::uint8_t byte) {
    if (_hears) {
        _hears(byte);
    }
    if (isCharacter(byte) && _echoesToLose > 0) {
        --_echoesToLose;
        return;
    }
    _bench.receive({byte});
    handOnWrites(_now + _line.reaction);
}

void VirtualTimeLink::handOnWrites(Time at) {
    const auto bytes = _captured.take();
    for (const auto byte : bytes) {
        _toKeyer->put(static_cast<std::uint8_t>(byte), at);
    }
    if (_writes && !bytes.isEmpty()) {
        _writes(bytes);
    }
}

void VirtualTimeLink::handOnEvents() {
    for (const auto& event : _keyer->takeEvents()) {
        if (const auto* byte = std::get_if<HostByte>(&event.what)) {
            _toHost->put(byte->value, event.at);
            if (isCharacter(byte->value)) {
                _keyed.push_back({event.at, _begun.value_or(event.at), byte->value});
                _begun.reset();
            }
        } else if (const auto* line = std::get_if<KeyLine>(&event.what)) {
            _changes.push_back({event.at, line->isDown});
            _begun = _begun.value_or(event.at);
        }
    }
}
