#include "loggers/RequestRate.h"

#include "platform/Platform.h"

#include <algorithm>

bool RequestRate::take(int cost) {
    const auto now = Platform::current().clock().now();
    const auto paidUntil = std::max(_paidUntil, now) + cost * each;
    if (paidUntil - now > atOnce * each) {
        return false;
    }
    _paidUntil = paidUntil;
    return true;
}
