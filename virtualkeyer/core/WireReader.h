#pragma once

#include "virtualkeyer/core/Parser.h"
#include "virtualkeyer/core/Registers.h"
#include "virtualkeyer/core/WireLine.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <vector>

namespace virtualkeyer {

/// Reads what host and keyer say to each other, by following the line as the keyer does: it knows
/// whether the keyer is open, its status mode, and what was asked. Times come in order. Not
/// thread-safe.
class WireReader {
  public:
    /// How long a command may stand still in its middle before it is told as unfinished.
    static constexpr Time patience = std::chrono::seconds{2};

    /// A byte of the host has come to the keyer; it goes unheard if `isLost`.
    void fromHost(std::uint8_t byte, bool isLost, Time at);
    /// The keyer says something; `registers` are the ones in force.
    void fromKeyer(std::uint8_t byte, const Registers& registers, Time at);
    /// The keyer starts anew, and forgets its host.
    void restart(Time at);
    /// Lets time pass without a byte.
    void advance(Time now);
    /// When advance() has something to tell; nothing while it waits for bytes.
    [[nodiscard]] std::optional<Time> nextEvent() const;

    /// What was read since the last call.
    [[nodiscard]] std::vector<WireLine> takeLines();

  private:
    struct Question {
        AdminCommand command;
        std::size_t answerBytes;
        Time since;
    };

    void tell(WireLine::Kind kind, std::vector<std::uint8_t> bytes, Time at);
    void breakOff(Time at);
    void follow(const Command& command, Time at);
    void followAdmin(AdminCommand command, Time at);
    bool takeAnswer(std::uint8_t byte, Time at);

    Parser _parser;
    bool _isOpen = false;
    bool _isVersion2 = false;
    std::vector<std::uint8_t> _begun; // a command's bytes so far
    Time _lastOfBegun{0};
    bool _isToldUnfinished = false;
    std::deque<Question> _questions;
    std::vector<std::uint8_t> _answer;
    std::vector<WireLine> _lines;
};

} // namespace virtualkeyer
