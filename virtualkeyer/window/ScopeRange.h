#pragma once

#include "virtualkeyer/core/Event.h"

#include <array>
#include <cstddef>
#include <optional>

namespace virtualkeyer {

/// What part of the time a scope shows, and where its two cursors are. It ends with the present,
/// unless it is paused.
class ScopeRange {
  public:
    static constexpr int cursorCount = 2;

    /// The oldest time and the newest that there is to be seen.
    void setBounds(Time oldest, Time newest);

    [[nodiscard]] Time left() const { return _right - _span; }
    [[nodiscard]] Time right() const { return _right; }
    [[nodiscard]] Time span() const { return _span; }
    [[nodiscard]] Time oldest() const { return _oldest; }
    [[nodiscard]] Time newest() const { return _newest; }

    [[nodiscard]] bool isPaused() const { return _isPaused; }
    /// Going on, it goes to the newest.
    void setPaused(bool isPaused);

    /// Half as much time, or twice as much, around what is in the middle; around the present while
    /// it is not paused.
    void zoomIn() { zoom(-1); }
    void zoomOut() { zoom(1); }
    /// To another end, within the bounds; pauses.
    void moveTo(Time right);
    void moveToOldest() { moveTo(_oldest + _span); }
    void moveToNewest() { moveTo(_newest); }

    /// Cursor 0 or 1; nothing before it was set.
    [[nodiscard]] std::optional<Time> cursor(int index) const;
    /// Pauses, so that what is measured stays, and brings it into sight.
    void setCursor(int index, Time at);
    /// By so much; one that was not set comes into the middle.
    void moveCursor(int index, Time by);
    /// From the one cursor to the other; nothing without both.
    [[nodiscard]] std::optional<Time> measured() const;

  private:
    void zoom(int steps);

    Time _oldest{0};
    Time _newest{0};
    Time _right{0};
    Time _span{std::chrono::seconds{4}};
    bool _isPaused = false;
    std::array<std::optional<Time>, cursorCount> _cursors;
};

} // namespace virtualkeyer
