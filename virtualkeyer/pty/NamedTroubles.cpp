#include "virtualkeyer/pty/NamedTroubles.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <charconv>

namespace virtualkeyer {

namespace {

constexpr double longestSeconds = 3600;

Time seconds(double number) {
    return std::chrono::duration_cast<Time>(std::chrono::duration<double>(number));
}

constexpr std::array kinds{
    NamedTrouble{"lost", QT_TRANSLATE_NOOP("NamedTrouble", "bytes that do not arrive"),
                 TroubleNumber::Share, 0.01,
                 [](Troubles& troubles, double number) { troubles.lost = number; }},
    NamedTrouble{"doubled", QT_TRANSLATE_NOOP("NamedTrouble", "bytes that arrive twice"),
                 TroubleNumber::Share, 0.01,
                 [](Troubles& troubles, double number) { troubles.doubled = number; }},
    NamedTrouble{"noise", QT_TRANSLATE_NOOP("NamedTrouble", "bytes of which a bit is wrong"),
                 TroubleNumber::Share, 0.01,
                 [](Troubles& troubles, double number) { troubles.noise = number; }},
    NamedTrouble{"late",
                 QT_TRANSLATE_NOOP("NamedTrouble", "each byte is up to so much late, by chance"),
                 TroubleNumber::Seconds, 0.3,
                 [](Troubles& troubles, double number) { troubles.late = seconds(number); }},
    NamedTrouble{"delay",
                 QT_TRANSLATE_NOOP("NamedTrouble", "each byte is so much late, as over a network"),
                 TroubleNumber::Seconds, 0.1,
                 [](Troubles& troubles, double number) { troubles.delay = seconds(number); }},
    NamedTrouble{"joined",
                 QT_TRANSLATE_NOOP("NamedTrouble",
                                   "the host gets what has come as often as this, in one read"),
                 TroubleNumber::Seconds, 0.016,
                 [](Troubles& troubles, double number) { troubles.joined = seconds(number); }},
    NamedTrouble{
        "no-echo", QT_TRANSLATE_NOOP("NamedTrouble", "no character from the keyer arrives"),
        TroubleNumber::None, 0, [](Troubles& troubles, double) { troubles.losesEchoes = true; }},
    NamedTrouble{"not-read", QT_TRANSLATE_NOOP("NamedTrouble", "nobody takes what the host sends"),
                 TroubleNumber::None, 0,
                 [](Troubles& troubles, double) { troubles.isNotRead = true; }},
    NamedTrouble{"reset",
                 QT_TRANSLATE_NOOP("NamedTrouble",
                                   "the keyer starts anew so long after the port was opened"),
                 TroubleNumber::Seconds, 0,
                 [](Troubles& troubles, double number) { troubles.reset = seconds(number); }},
    NamedTrouble{"hang-up",
                 QT_TRANSLATE_NOOP("NamedTrouble", "the port goes so long after it was opened, and "
                                                   "comes back; the keyer keeps its power"),
                 TroubleNumber::Seconds, 0,
                 [](Troubles& troubles, double number) { troubles.hangUp = seconds(number); }},
};

/// Nothing where `text` is no number from 0 to `most`.
std::optional<double> numberIn(std::string_view text, double most) {
    double number = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole && number >= 0 && number <= most ? std::optional{number} : std::nullopt;
}

/// False when `text` names no trouble.
bool begin(std::string_view text, Troubles& wanted) {
    const std::size_t colon = std::min(text.find(':'), text.size());
    const auto found = std::ranges::find(kinds, text.substr(0, colon), &NamedTrouble::name);
    if (found == kinds.end()) {
        return false;
    }
    std::optional<double> number = found->usual;
    if (colon < text.size()) {
        const bool isShare = found->number == TroubleNumber::Share;
        number = found->number == TroubleNumber::None
                     ? std::nullopt
                     : numberIn(text.substr(colon + 1), isShare ? 1 : longestSeconds);
    }
    if (number) {
        found->begin(wanted, *number);
    }
    return number.has_value();
}

} // namespace

std::span<const NamedTrouble> namedTroubles() {
    return kinds;
}

std::optional<Troubles> troublesNamed(std::string_view names) {
    Troubles wanted;
    if (names == noTroubles) {
        return wanted;
    }
    for (std::size_t at = 0; at <= names.size();) {
        const std::size_t end = std::min(names.find(',', at), names.size());
        if (!begin(names.substr(at, end - at), wanted)) {
            return std::nullopt;
        }
        at = end + 1;
    }
    return wanted;
}

} // namespace virtualkeyer
