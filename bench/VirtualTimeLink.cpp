#include "bench/VirtualTimeLink.h"

#include "keyer/KeyerSettings.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

using virtualkeyer::HostByte;
using virtualkeyer::KeyLine;

namespace {

constexpr int baud = 1200;

/// The pot is the one way to speeds above 99 wpm: its range lies above its minimum.
constexpr int slowestPotMinimum = 5;
constexpr int highestPotMinimum = 99;
constexpr int potRange = 63;

int openPort(EngineBench& bench, int wpm) {
    bench.settings().setObject(std::clamp(wpm, slowestPotMinimum, highestPotMinimum),
                               WKSpeedPotMinimum);
    bench.settings().setObject(potRange, WKSpeedPotRange);
    if (!bench.connect()) {
        throw std::runtime_error("There is no line to the keyer.");
    }
    return bench.port().fileDescriptor();
}

} // namespace

// The settings were lost with what connecting wrote to the real line; they are sent once more.
VirtualTimeLink::VirtualTimeLink(int wpm, Time reaction)
    : _reaction(reaction), _writes(openPort(_bench, wpm)), _toKeyer(baud), _toHost(baud) {
    _keyer.setPot(wpm, _now);
    if (!_bench.engine().openHostMode(nullptr)) {
        throw std::runtime_error("The keyer does not open.");
    }
    handOnWrites(_now);
    static_cast<void>(runUntilQuiet());
    if (_keyer.registers().wpm() != wpm) {
        throw std::invalid_argument("The keyer does not have this speed.");
    }
}

std::vector<VirtualTimeLink::KeyChange> VirtualTimeLink::key(const QString& text) {
    _bench.engine().clearSending();
    _bench.engine().appendMessage(text);
    handOnWrites(_now);
    return runUntilQuiet();
}

std::vector<VirtualTimeLink::KeyChange> VirtualTimeLink::runUntilQuiet() {
    std::vector<KeyChange> changes;
    for (;;) {
        std::optional<Time> next;
        for (const auto& due :
             {_toKeyer.nextCompletion(), _toHost.nextCompletion(), _keyer.nextEvent()}) {
            if (due && (!next || *due < *next)) {
                next = due;
            }
        }
        if (!next) {
            return changes;
        }
        _now = *next;
        _keyer.advance(_now);
        while (const auto byte = _toKeyer.take(_now)) {
            _keyer.receive(byte->value, byte->completeAt);
        }
        handOnEvents(changes);
        while (const auto byte = _toHost.take(_now)) {
            _bench.receive({byte->value});
            handOnWrites(byte->completeAt + _reaction);
        }
    }
}

void VirtualTimeLink::handOnWrites(Time at) {
    for (const auto byte : _writes.take()) {
        _toKeyer.put(static_cast<std::uint8_t>(byte), at);
    }
}

void VirtualTimeLink::handOnEvents(std::vector<KeyChange>& changes) {
    for (const auto& event : _keyer.takeEvents()) {
        if (const auto* byte = std::get_if<HostByte>(&event.what)) {
            _toHost.put(byte->value, event.at);
        } else if (const auto* line = std::get_if<KeyLine>(&event.what)) {
            changes.push_back({event.at, line->isDown});
        }
    }
}
