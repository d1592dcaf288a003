#include "app/window/BeaconCountdown.h"

#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"

using namespace std::chrono_literals;

BeaconCountdown::BeaconCountdown(const WinKeyerUsb& engine, QObject* parent)
    : QObject(parent), _engine(engine) {
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this, &BeaconCountdown::follow);
    QObject::connect(&_engine, &WinKeyerUsb::beaconStateChanged, this, &BeaconCountdown::follow);
    QObject::connect(&_engine, &WinKeyerUsb::sendingProgressed, this, &BeaconCountdown::follow);
    follow();
}

void BeaconCountdown::follow() {
    if (_timer) {
        _timer->invalidate();
        _timer.reset();
    }
    count();
}

void BeaconCountdown::count() {
    auto& clock = Platform::current().clock();
    const auto due = _engine.beaconDue();
    const auto rest = due ? *due - clock.now() : -1ns;
    const auto seconds =
        rest > Clock::Duration::zero()
            ? static_cast<int>(std::chrono::ceil<std::chrono::seconds>(rest).count())
            : -1;
    if (rest > Clock::Duration::zero()) {
        // To the moment at which the number becomes another one.
        _timer = clock.scheduleTimer(rest - (seconds - 1) * 1s, this, [this] { count(); });
    }
    if (_seconds != seconds) {
        _seconds = seconds;
        Q_EMIT secondsChanged();
    }
}
