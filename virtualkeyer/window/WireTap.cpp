#include "virtualkeyer/window/WireTap.h"

#include <iterator>
#include <utility>

namespace virtualkeyer {

std::vector<WireLine> WireTap::takeLines() {
    const std::lock_guard lock(_mutex);
    _isAnnounced = false;
    auto lines = std::exchange(_waiting, {});
    return {std::make_move_iterator(lines.begin()), std::make_move_iterator(lines.end())};
}

void WireTap::keyerDid(const Event& event, const Registers& registers) {
    if (const auto* byte = std::get_if<HostByte>(&event.what)) {
        _reader.fromKeyer(byte->value, registers, event.at);
        handOver();
    }
}

void WireTap::hostSent(std::uint8_t byte, bool isLost, Time at) {
    _reader.fromHost(byte, isLost, at);
    handOver();
}

void WireTap::keyerRestarted(Time at) {
    _reader.restart(at);
    handOver();
}

void WireTap::timePassed(Time now) {
    _reader.advance(now);
    handOver();
}

void WireTap::handOver() {
    auto lines = _reader.takeLines();
    if (lines.empty()) {
        return;
    }
    std::unique_lock lock(_mutex);
    _waiting.insert(_waiting.end(), std::make_move_iterator(lines.begin()),
                    std::make_move_iterator(lines.end()));
    while (_waiting.size() > mostWaiting) {
        _waiting.pop_front();
    }
    const bool wasAnnounced = std::exchange(_isAnnounced, true);
    lock.unlock();
    if (!wasAnnounced) {
        Q_EMIT heard();
    }
}

} // namespace virtualkeyer
