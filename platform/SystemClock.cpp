#include "platform/SystemClock.h"

#include <QTimer>

#include <algorithm>
#include <thread>

using namespace std::chrono;

Clock::Duration SystemClock::now() const {
    return steady_clock::now().time_since_epoch();
}

void SystemClock::sleep(Duration duration) {
    std::this_thread::sleep_for(duration);
}

std::shared_ptr<Timer> SystemClock::scheduleTimer(Duration interval, QObject* target,
                                                  std::function<void()> action) {
    auto timer = std::make_shared<Timer>(std::move(action));
    const auto wait = std::max(ceil<milliseconds>(interval), 0ms);
    QTimer::singleShot(wait, Qt::PreciseTimer, target, [timer] { timer->fire(); });
    return timer;
}
