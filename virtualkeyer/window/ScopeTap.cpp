#include "virtualkeyer/window/ScopeTap.h"

#include <algorithm>
#include <utility>

namespace virtualkeyer {

std::vector<ScopeEdge> ScopeTap::takeEdges() {
    const std::lock_guard lock(_mutex);
    _isAnnounced = false;
    const auto edges = std::exchange(_waiting, {});
    return {edges.begin(), edges.end()};
}

Time ScopeTap::now() {
    const std::lock_guard lock(_mutex);
    return _start ? Time{Clock::now() - *_start} : Time{0};
}

void ScopeTap::keyerDid(const Event& event, const Registers& registers) {
    const auto* key = std::get_if<KeyLine>(&event.what);
    const auto* ptt = std::get_if<PttLine>(&event.what);
    if (key == nullptr && ptt == nullptr) {
        return;
    }
    const ScopeEdge edge{key != nullptr ? ScopeEdge::Line::Key : ScopeEdge::Line::Ptt,
                         key != nullptr ? key->isDown : ptt->isOn, event.at, timingOf(registers)};
    std::unique_lock lock(_mutex);
    _waiting.push_back(edge);
    if (_waiting.size() > mostWaiting) {
        _waiting.pop_front();
    }
    const bool wasAnnounced = std::exchange(_isAnnounced, true);
    lock.unlock();
    if (!wasAnnounced) {
        Q_EMIT moved();
    }
}

/// The keyer's time is noticed late, now more and now less, so that the earliest beginning is the
/// true one.
void ScopeTap::timePassed(Time now) {
    const std::lock_guard lock(_mutex);
    const Clock::time_point start = Clock::now() - now;
    _start = std::min(_start.value_or(start), start);
}

} // namespace virtualkeyer
