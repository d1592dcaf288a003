#pragma once

#include "virtualkeyer/core/Timing.h"
#include "virtualkeyer/pty/KeyerListener.h"

#include <QObject>

#include <chrono>
#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>
#include <vector>

namespace virtualkeyer {

/// An edge of the key line or of PTT.
struct ScopeEdge {
    enum class Line : std::uint8_t { Key, Ptt };
    Line line;
    bool isOn;
    Time at;
    Timing timing; ///< in force
};

/// Notes the edges on the keyer's thread, and hands them to a window on another.
class ScopeTap : public QObject, public KeyerListener {
    Q_OBJECT
  public:
    /// Edges that wait for a window that does not come; older ones go.
    static constexpr std::size_t mostWaiting = 100'000;

    /// The edges since the last call. The window's thread.
    [[nodiscard]] std::vector<ScopeEdge> takeEdges();
    /// The keyer's time now, by the clock; 0 before it has begun. The window's thread.
    [[nodiscard]] Time now();

    void keyerDid(const Event& event, const Registers& registers) override;
    void timePassed(Time now) override;

  Q_SIGNALS:
    /// There are edges. Not again before they were taken; from the keyer's thread.
    void moved();

  private:
    using Clock = std::chrono::steady_clock;

    std::mutex _mutex;
    std::deque<ScopeEdge> _waiting;
    bool _isAnnounced = false;
    /// When the keyer began, by the clock.
    std::optional<Clock::time_point> _start;
};

} // namespace virtualkeyer
