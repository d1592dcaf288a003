#include "virtualkeyer/core/PracticeScore.h"

#include <algorithm>
#include <cctype>

namespace virtualkeyer {

namespace {

using Mark = PracticeScore::Mark;

/// Upper case, and single spaces between words alone.
std::string plain(std::string_view text) {
    std::string result;
    for (const char each : text) {
        const bool isSpace = std::isspace(static_cast<unsigned char>(each)) != 0;
        if (!isSpace) {
            result += static_cast<char>(std::toupper(static_cast<unsigned char>(each)));
        } else if (!result.empty() && result.back() != ' ') {
            result += ' ';
        }
    }
    if (!result.empty() && result.back() == ' ') {
        result.pop_back();
    }
    return result;
}

/// The fewest mistakes from any two beginnings on.
class Distances {
  public:
    Distances(const std::string& wanted, const std::string& sent)
        : _width(sent.size() + 1), _cells((wanted.size() + 1) * _width) {
        for (std::size_t w = wanted.size() + 1; w-- > 0;) {
            for (std::size_t s = sent.size() + 1; s-- > 0;) {
                at(w, s) = fewest(wanted, sent, w, s);
            }
        }
    }

    [[nodiscard]] std::size_t operator()(std::size_t wanted, std::size_t sent) const {
        return _cells[wanted * _width + sent];
    }

  private:
    std::size_t& at(std::size_t wanted, std::size_t sent) { return _cells[wanted * _width + sent]; }

    [[nodiscard]] std::size_t fewest(const std::string& wanted, const std::string& sent,
                                     std::size_t w, std::size_t s) const {
        const std::size_t wantedLeft = wanted.size() - w;
        const std::size_t sentLeft = sent.size() - s;
        // What is still to come is no mistake.
        if (wantedLeft == 0 || sentLeft == 0) {
            return sentLeft;
        }
        const std::size_t both = (*this)(w + 1, s + 1) + (wanted[w] == sent[s] ? 0 : 1);
        return std::min({both, (*this)(w + 1, s) + 1, (*this)(w, s + 1) + 1});
    }

    std::size_t _width;
    std::vector<std::size_t> _cells;
};

} // namespace

std::vector<Mark> PracticeScore::compare(std::string_view wanted, std::string_view sent) {
    const std::string text = plain(wanted);
    const std::string heard = plain(sent);
    const Distances mistakes(text, heard);
    std::vector<Mark> marks;
    std::size_t w = 0;
    std::size_t s = 0;
    while (s < heard.size()) {
        const std::size_t now = mistakes(w, s);
        const bool isWanted = w < text.size();
        if (isWanted && text[w] == heard[s] && mistakes(w + 1, s + 1) == now) {
            marks.push_back({Mark::Kind::Right, text[w++], heard[s++]});
        } else if (isWanted && mistakes(w + 1, s + 1) + 1 == now) {
            marks.push_back({Mark::Kind::Wrong, text[w++], heard[s++]});
        } else if (isWanted && mistakes(w + 1, s) + 1 == now) {
            marks.push_back({Mark::Kind::Missing, text[w++], 0});
        } else {
            marks.push_back({Mark::Kind::TooMany, 0, heard[s++]});
        }
    }
    return marks;
}

void PracticeScore::add(const TraceElement& element, Time dit) {
    if (element.kind == TraceElement::Kind::Pause || dit <= Time{0}) {
        return;
    }
    Lengths& lengths = _lengths[static_cast<std::size_t>(element.kind)];
    const double length =
        static_cast<double>(element.stretch.length().count()) / static_cast<double>(dit.count());
    const auto before = static_cast<double>(lengths.count);
    lengths.mean = (lengths.mean * before + length) / (before + 1);
    ++lengths.count;
    const double place = (length / lengths.ideal - 0.5) * static_cast<double>(binCount);
    const auto bin =
        static_cast<std::size_t>(std::clamp(place, 0.0, static_cast<double>(binCount) - 1));
    ++lengths.bins[bin];
}

const PracticeScore::Lengths& PracticeScore::lengths(TraceElement::Kind kind) const {
    return _lengths[static_cast<std::size_t>(kind)];
}

} // namespace virtualkeyer
