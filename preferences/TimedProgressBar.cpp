#include "preferences/TimedProgressBar.h"

#include "platform/Platform.h"

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr int steps = 1000;
/// Short enough to be seen as moving.
constexpr Clock::Duration stepLength = 50ms;

} // namespace

TimedProgressBar::TimedProgressBar(QWidget* parent) : QProgressBar(parent) {
    setRange(0, steps);
    setValue(0);
}

void TimedProgressBar::start(Clock::Duration duration) {
    stop();
    _begin = Platform::current().clock().now();
    _duration = duration;
    setValue(0);
    scheduleStep();
}

void TimedProgressBar::stop() {
    if (_timer) {
        std::exchange(_timer, nullptr)->invalidate();
    }
}

void TimedProgressBar::scheduleStep() {
    auto& clock = Platform::current().clock();
    const auto left = _begin + _duration - clock.now();
    _timer = clock.scheduleTimer(std::min(left, stepLength), this, [this] { step(); });
}

void TimedProgressBar::step() {
    const auto elapsed = Platform::current().clock().now() - _begin;
    setValue(static_cast<int>(std::min(elapsed, _duration) * steps / _duration));
    if (elapsed < _duration) {
        scheduleStep();
        return;
    }
    _timer = nullptr;
    Q_EMIT finished();
}
