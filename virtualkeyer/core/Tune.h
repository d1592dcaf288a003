#pragma once

#include "virtualkeyer/core/Board.h"

#include <optional>

namespace virtualkeyer {

/// Key immediate: the host holds the key down, to tune a transmitter.
class Tune {
  public:
    explicit Tune(Board& board) : _board(board) {}

    void start(Time now);
    /// Lets go of the key; the host is told by reportEnd().
    void release(Time now);
    void reportEnd(Time now);

    [[nodiscard]] bool isOn() const { return _isOn; }

    [[nodiscard]] std::optional<Time> due() const;
    void run(Time now);

  private:
    void press(Time now);

    Board& _board;
    bool _isOn = false;
    std::optional<Time> _pressAt;
    std::optional<Time> _limitAt;
};

} // namespace virtualkeyer
