#pragma once

#include "platform/Clock.h"

/// How many requests are heeded: 30 in a second, and 40 at once. What they have the keyer told,
/// three bytes each, the line takes in that time. Main thread only.
class RequestRate {
  public:
    /// False when there were too many of late. One may count as several.
    [[nodiscard]] bool take(int cost = 1);

  private:
    static constexpr Clock::Duration each = Clock::Duration(std::chrono::seconds(1)) / 30;
    static constexpr int atOnce = 40;

    /// When all that were heeded have had their time.
    Clock::Duration _paidUntil{0};
};
