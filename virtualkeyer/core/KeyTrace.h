#pragma once

#include "virtualkeyer/core/KeyLineDecoder.h"
#include "virtualkeyer/core/Timing.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>

namespace virtualkeyer {

/// A stretch of time in which a line did not move.
struct Stretch {
    Time from;
    Time to;
    [[nodiscard]] Time length() const { return to - from; }
    bool operator==(const Stretch&) const = default;
};

/// A mark, or the space between two.
struct TraceElement {
    enum class Kind : std::uint8_t { Dit, Dah, Space, LetterSpace, WordSpace, Pause };
    Stretch stretch;
    Kind kind;
    [[nodiscard]] bool isMark() const { return kind <= Kind::Dah; }
    bool operator==(const TraceElement&) const = default;
};

/// A letter, from its first mark's beginning to its last one's end.
struct TraceLetter {
    Stretch stretch;
    char character;
    bool operator==(const TraceLetter&) const = default;
};

/// What the key and PTT lines did of late: elements, the letters that they make, transmissions.
/// Edges and times come in order. Not thread-safe.
class KeyTrace {
  public:
    static constexpr Time kept = std::chrono::minutes{10};
    /// At an uncommon speed there are more elements in that time; the oldest go.
    static constexpr std::size_t mostElements = 200'000;

    /// The key line goes down or up; `timing` is what its lengths are compared with.
    void key(bool isDown, const Timing& timing, Time at);
    void ptt(bool isOn, Time at);
    /// Lets time pass without an edge.
    void advance(Time now);
    /// When advance() next completes a letter.
    [[nodiscard]] std::optional<Time> nextEvent() const { return _decoder.nextEvent(); }

    /// What has ended. In order of time, as are the others.
    [[nodiscard]] const std::deque<TraceElement>& elements() const { return _elements; }
    [[nodiscard]] const std::deque<TraceLetter>& letters() const { return _letters; }
    /// While PTT was on.
    [[nodiscard]] const std::deque<Stretch>& transmissions() const { return _transmissions; }
    /// Since when the key has been down; nothing while it is up.
    [[nodiscard]] std::optional<Time> downSince() const { return _downSince; }
    [[nodiscard]] std::optional<Time> onSince() const { return _onSince; }
    /// The last edge of either line; nothing before the first.
    [[nodiscard]] std::optional<Time> lastEdge() const { return _lastEdge; }

  private:
    void noteLetters();
    void forget(Time now);

    KeyLineDecoder _decoder;
    std::deque<TraceElement> _elements;
    std::deque<TraceLetter> _letters;
    std::deque<Stretch> _transmissions;
    std::optional<Time> _downSince;
    std::optional<Time> _upSince;
    std::optional<Time> _onSince;
    std::optional<Time> _lastEdge;
    std::optional<Time> _letterStart;
};

} // namespace virtualkeyer
