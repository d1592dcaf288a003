#pragma once

#include "virtualkeyer/core/Timing.h"

#include <optional>
#include <string>

namespace virtualkeyer {

/// Reads text from the edges of a key line whose nominal timing is known.
///
/// A letter is delivered as soon as the line has been up for longer than the middle between a gap
/// and a letter space, a space likewise. Edges and times come in order. Not thread-safe.
class KeyLineDecoder {
  public:
    /// Stands in the text for elements that make no character.
    static constexpr char unknown = '*';

    /// Starts with the timing of 20 wpm.
    KeyLineDecoder();

    /// The timing of the elements from now on; take it before each edge if the speed may change.
    void setTiming(const Timing& timing);

    /// The key line goes down or up at `at`. Repeated edges are passed over.
    void key(bool isDown, Time at);

    /// Lets time pass without an edge.
    void advance(Time now);

    /// When advance() next completes a letter or a word; nothing while the line is down or read.
    [[nodiscard]] std::optional<Time> nextEvent() const;

    /// What was read since the last call: upper-case characters and single spaces.
    [[nodiscard]] std::string takeText();

  private:
    Timing _timing;
    bool _isDown = false;
    Time _lastEdge{0};
    bool _awaitsWord = false;
    std::string _pattern;
    std::string _text;
};

} // namespace virtualkeyer
