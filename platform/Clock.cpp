#include "platform/Clock.h"

#include <utility>

void Timer::invalidate() {
    _action = nullptr;
}

void Timer::fire() {
    if (const auto action = std::exchange(_action, nullptr)) {
        action();
    }
}
