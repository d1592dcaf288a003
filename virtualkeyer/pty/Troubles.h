#pragma once

#include "virtualkeyer/core/Event.h"

#include <optional>

namespace virtualkeyer {

/// What is wrong with a serial line and what is at its ends; by default nothing is. Shares are from
/// 0 to 1, of all bytes in either direction.
struct Troubles {
    double lost = 0;
    double doubled = 0;
    /// Have another value.
    double noise = 0;
    /// Each byte is up to so much later than the line makes it, by chance; none overtakes another.
    Time late{0};
    /// Each byte is so much later, as over a network.
    Time delay{0};
    /// The adapter hands over what has come from the keyer as often as this, and all of it at once;
    /// 0 for at once and each byte apart.
    Time joined{0};
    /// No character from the keyer arrives, whatever it is the answer to.
    bool losesEchoes = false;
    /// Nobody takes what the host sends.
    bool isNotRead = false;
    /// The keyer starts anew so long after the port was opened.
    std::optional<Time> reset{};
    /// The line is hung up so long after the port was opened, and there again.
    std::optional<Time> hangUp{};

    bool operator==(const Troubles&) const = default;
};

} // namespace virtualkeyer
