#include "app/ScrollRest.h"

#include "platform/Platform.h"

void ScrollRest::noteUse() {
    _end = Platform::current().clock().now() + length;
}

bool ScrollRest::isOver() {
    if (Platform::current().clock().now() >= _end) {
        return true;
    }
    if (!_timer) {
        wait();
    }
    return false;
}

void ScrollRest::wait() {
    auto& clock = Platform::current().clock();
    _timer = clock.scheduleTimer(_end - clock.now(), this, [this] {
        _timer.reset();
        if (isOver()) {
            Q_EMIT over();
        }
    });
}
