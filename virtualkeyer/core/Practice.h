#pragma once

#include "virtualkeyer/core/KeyLineDecoder.h"
#include "virtualkeyer/core/KeyTrace.h"
#include "virtualkeyer/core/PracticeScore.h"

#include <optional>
#include <string>
#include <vector>

namespace virtualkeyer {

/// Follows somebody who sends a text, with the paddle or otherwise, and scores it. Times come in
/// order. Not thread-safe.
class Practice {
  public:
    /// Begins anew, with a text that is to be sent.
    void start(std::string text);

    /// The key line goes down or up; `timing` is the ideal.
    void key(bool isDown, const Timing& timing, Time at);
    /// Lets time pass without an edge.
    void advance(Time now);
    /// When advance() next completes a letter or a word.
    [[nodiscard]] std::optional<Time> nextEvent() const { return _decoder.nextEvent(); }

    /// What has been sent.
    [[nodiscard]] const std::string& sent() const { return _sent; }
    /// The text as far as it has come, and what was sent in its place.
    [[nodiscard]] std::vector<PracticeScore::Mark> marks() const;
    [[nodiscard]] const PracticeScore& score() const { return _score; }

  private:
    std::string _text;
    std::string _sent;
    KeyLineDecoder _decoder;
    KeyTrace _trace;
    PracticeScore _score;
};

} // namespace virtualkeyer
