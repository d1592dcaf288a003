#pragma once

#include "virtualkeyer/core/KeyTrace.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace virtualkeyer {

/// How a paddle's sending compares with the text that was to be sent.
class PracticeScore {
  public:
    /// A character of the text, or one too many.
    struct Mark {
        enum class Kind : std::uint8_t { Right, Wrong, Missing, TooMany };
        Kind kind;
        char wanted; ///< 0 for one too many
        char sent;   ///< 0 for a missing one
        bool operator==(const Mark&) const = default;
    };

    /// Lengths of one kind of element, in dit lengths.
    struct Lengths {
        double ideal;
        std::size_t count = 0;
        double mean = 0;
        /// Of each bin how many; the first begins at half the ideal, the last ends at one and a
        /// half of it, and what is shorter or longer is in those.
        std::vector<std::size_t> bins;
    };

    /// Odd, so that the ideal is in the middle of one.
    static constexpr std::size_t binCount = 21;
    static constexpr int kindCount = 5; ///< those of TraceElement, but for the pause

    /// Compares letters and, where both have words, the spaces between them with the fewest
    /// mistakes. Lower case is as upper case; spaces at the ends and repeated ones count for
    /// nothing. What was sent beyond the end of the text is too many; what of the text is still to
    /// come is not compared.
    [[nodiscard]] static std::vector<Mark> compare(std::string_view wanted, std::string_view sent);

    /// Takes an element, whose ideal is of dits of this length.
    void add(const TraceElement& element, Time dit);

    [[nodiscard]] const Lengths& lengths(TraceElement::Kind kind) const;

  private:
    std::vector<Lengths> _lengths =
        std::vector<Lengths>{{.ideal = 1, .bins = std::vector<std::size_t>(binCount)},
                             {.ideal = 3, .bins = std::vector<std::size_t>(binCount)},
                             {.ideal = 1, .bins = std::vector<std::size_t>(binCount)},
                             {.ideal = 3, .bins = std::vector<std::size_t>(binCount)},
                             {.ideal = 7, .bins = std::vector<std::size_t>(binCount)}};
};

} // namespace virtualkeyer
