#include "app/window/TuneTimer.h"

#include "keyer/GeneralSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

/// In seconds; 0 for none, which is also what a text counts as that is no choice.
int storedLimit() {
    return codeOfChoice(TuneLimit.choices,
                        SettingsStore::standardUserDefaults().stringForKey(TuneLimit.key));
}

} // namespace

TuneTimer::TuneTimer(const WinKeyerUsb& engine, QObject* parent)
    : QObject(parent), _engine(engine) {
    connect(&_engine, &WinKeyerUsb::tuneStateChanged, this, &TuneTimer::followTune);
    followTune();
}

std::optional<int> TuneTimer::secondsLeft() const {
    return _limit != 0 ? std::optional(std::max(_limit - _seconds, 0)) : std::nullopt;
}

void TuneTimer::followTune() {
    const bool isOn = _engine.tuneState() != 0;
    if (isOn == (_nextSecond != nullptr)) {
        return;
    }
    _seconds = 0;
    if (isOn) {
        _limit = storedLimit();
        _start = Platform::current().clock().now();
        waitForNextSecond();
    } else {
        _nextSecond->invalidate();
        _nextSecond.reset();
    }
    Q_EMIT secondsChanged();
}

/// Each is due by the clock, so that what a busy machine is late with does not add up.
void TuneTimer::waitForNextSecond() {
    auto& clock = Platform::current().clock();
    const auto due = _start + std::chrono::seconds(_seconds + 1);
    _nextSecond = clock.scheduleTimer(due - clock.now(), this, [this] { tick(); });
}

void TuneTimer::tick() {
    const auto passed =
        std::chrono::floor<std::chrono::seconds>(Platform::current().clock().now() - _start);
    _seconds = std::max(_seconds + 1, static_cast<int>(passed.count()));
    waitForNextSecond();
    Q_EMIT secondsChanged();
    if (_limit != 0 && _seconds >= _limit) {
        Q_EMIT limitReached(_limit);
    }
}
