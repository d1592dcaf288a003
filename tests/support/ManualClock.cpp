#include "tests/support/ManualClock.h"

#include <algorithm>

void ManualClock::advance(Duration duration) {
    const auto end = _now + duration;
    while (!_entries.isEmpty() && _entries.constFirst().due <= end) {
        const auto entry = _entries.takeFirst();
        if (entry.isAlive()) {
            _now = std::max(_now, entry.due);
            entry.timer->fire();
        }
    }
    _now = std::max(_now, end);
}

QList<Clock::Duration> ManualClock::pendingTimers() const {
    QList<Duration> pending;
    for (const auto& entry : _entries) {
        if (entry.isAlive()) {
            pending.append(entry.due - _now);
        }
    }
    return pending;
}

void ManualClock::sleep(Duration duration) {
    _naps.append(duration);
    if (_whileNapping) {
        _whileNapping(duration);
    }
    _now += duration;
}

std::shared_ptr<Timer> ManualClock::scheduleTimer(Duration interval, QObject* target,
                                                  std::function<void()> action) {
    const Entry entry{_now + std::max(interval, Duration(0)), target,
                      std::make_shared<Timer>(std::move(action))};
    const auto place =
        std::upper_bound(_entries.begin(), _entries.end(), entry,
                         [](const Entry& a, const Entry& b) { return a.due < b.due; });
    _entries.insert(place, entry);
    return entry.timer;
}
