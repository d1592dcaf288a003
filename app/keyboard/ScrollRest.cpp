#include "app/keyboard/ScrollRest.h"

#include "platform/Platform.h"

void ScrollRest::noteUse() {
    _end = Platform::current().clock().now() + length;
    if (!_timer) {
        waitForEnd();
    }
}

bool ScrollRest::isOver() const {
    return Platform::current().clock().now() >= _end;
}

void ScrollRest::waitForEnd() {
    auto& clock = Platform::current().clock();
    _timer = clock.scheduleTimer(_end - clock.now(), this, [this] {
        _timer.reset();
        if (isOver()) {
            Q_EMIT over();
        } else {
            waitForEnd();
        }
    });
}
