#include "record/TextOrigins.h"

#include <algorithm>

namespace {

using Kind = TextSource::Kind;
using Origin = TextOrigins::Origin;

/// Whether more of the same sender is the same text.
bool isContinued(const TextSource& source) {
    return source.kind == Kind::Keyboard || source.kind == Kind::Logger;
}

bool canGain(const Origin& origin, const TextSource& source) {
    return origin && !origin->hasEnded && origin->takenOut.isEmpty() && origin->source == source &&
           isContinued(source);
}

qsizetype commonBegin(const QString& one, const QString& other) {
    if (other.startsWith(one)) {
        return one.size(); // as nearly always
    }
    return std::mismatch(one.begin(), one.end(), other.begin(), other.end()).first - one.begin();
}

qsizetype commonEnd(const QString& one, const QString& other, qsizetype begin) {
    const auto most = std::min(one.size(), other.size()) - begin;
    qsizetype common = 0;
    while (common < most &&
           one.at(one.size() - 1 - common) == other.at(other.size() - 1 - common)) {
        ++common;
    }
    return common;
}

} // namespace

TextOrigins::TextOrigins() : _nobody(std::make_shared<Details>()) {
    _nobody->hasEnded = true;
}

void TextOrigins::follow(const QString& text, qsizetype next, const TextSource& source,
                         const QString& name) {
    auto begin = commonBegin(_text, text);
    const auto common = commonEnd(_text, text, begin);
    auto end = _text.size() - common;
    const auto gained = text.size() - common - begin;
    if (begin == end) {
        begin = end = placeBetweenTexts(text, begin, gained);
    }
    if (gained == 0) {
        noteTakenOut(std::max(begin, next), end);
    }
    const auto left = begin > 0 ? at(begin - 1) : nullptr;
    const auto right = end < _text.size() ? at(end) : nullptr;
    replaceSpan(begin, end, gained,
                gained > 0 ? originBetween(left, right, source, name) : nullptr);
    _text = text;
}

/// A word that is put in front of another text may as well, by its letters, have been put behind
/// the space that text begins with.
qsizetype TextOrigins::placeBetweenTexts(const QString& text, qsizetype place,
                                         qsizetype gained) const {
    for (auto each = place; each > 0 && each < _text.size(); --each) {
        if (at(each - 1) != at(each)) {
            return each;
        }
        if (gained == 0 || text.at(each - 1) != text.at(each - 1 + gained)) {
            break;
        }
    }
    return place;
}

TextOrigins::Origin TextOrigins::originBetween(const Origin& left, const Origin& right,
                                               const TextSource& source,
                                               const QString& name) const {
    const bool isWithin = left && left == right && !left->hasEnded;
    if (isWithin || canGain(left, source)) {
        return left;
    }
    return canGain(right, source) ? right
                                  : std::make_shared<Details>(Details{source, name, false, {}});
}

/// The operator's own text may well lose some of it again.
void TextOrigins::noteTakenOut(qsizetype begin, qsizetype end) {
    for (auto position = begin; position < end; ++position) {
        const auto origin = at(position);
        if (origin->source.kind != Kind::Keyboard && !origin->hasEnded) {
            origin->takenOut += _text.at(position);
        }
    }
}

/// Puts `gained` characters of that origin in place of [begin, end).
void TextOrigins::replaceSpan(qsizetype begin, qsizetype end, qsizetype gained,
                              const Origin& origin) {
    std::vector<Span> spans;
    spans.reserve(_spans.size() + 2);
    const auto add = [&spans](qsizetype spanEnd, const Origin& of) {
        const auto last = spans.empty() ? 0 : spans.back().end;
        if (spanEnd <= last) {
            return;
        }
        if (!spans.empty() && spans.back().origin == of) {
            spans.back().end = spanEnd;
        } else {
            spans.push_back({spanEnd, of});
        }
    };
    for (const auto& each : _spans) {
        add(std::min(each.end, begin), each.origin);
    }
    add(begin + gained, origin);
    for (const auto& each : _spans) {
        if (each.end > end) {
            add(each.end + gained - (end - begin), each.origin);
        }
    }
    _spans = std::move(spans);
}

std::size_t TextOrigins::spanAt(qsizetype position) const {
    const auto found =
        std::upper_bound(_spans.begin(), _spans.end(), position,
                         [](qsizetype value, const Span& span) { return value < span.end; });
    return static_cast<std::size_t>(found - _spans.begin());
}

TextOrigins::Origin TextOrigins::at(qsizetype position) const {
    const auto span = spanAt(position);
    return span < _spans.size() ? _spans[span].origin : _nobody;
}

TextOrigins::Origin TextOrigins::take(qsizetype position) {
    const auto origin = at(position);
    if (!origin->hasEnded) {
        return origin;
    }
    const auto renewed =
        std::make_shared<Details>(Details{origin->source, origin->name, false, {}});
    const auto first = spanAt(position);
    const auto end = first < _spans.size() ? _spans[first].end : position + 1;
    for (auto i = first + 1; i < _spans.size(); ++i) {
        if (_spans[i].origin == origin) {
            _spans[i].origin = renewed;
        }
    }
    replaceSpan(position, end, end - position, renewed);
    return renewed;
}

QString TextOrigins::textFrom(qsizetype position, const Origin& origin) const {
    QString found;
    qsizetype begin = 0;
    for (const auto& each : _spans) {
        if (each.origin == origin && each.end > position) {
            const auto first = std::max(begin, position);
            found += QStringView(_text).mid(first, each.end - first);
        }
        begin = each.end;
    }
    return found;
}

/// Called for each character that is sent: nothing is copied, however long the text.
bool TextOrigins::hasWordsFrom(qsizetype position, const Origin& origin) const {
    const auto isWord = [](QChar each) { return each != u' '; };
    for (auto i = spanAt(position); i < _spans.size(); ++i) {
        const auto begin = std::max(i > 0 ? _spans[i - 1].end : 0, position);
        if (_spans[i].origin == origin &&
            std::any_of(_text.begin() + begin, _text.begin() + _spans[i].end, isWord)) {
            return true;
        }
    }
    return false;
}

void TextOrigins::settle() {
    const auto firstInUse = std::find_if(_spans.begin(), _spans.end(),
                                         [](const Span& span) { return !span.origin->hasEnded; });
    // The last of them may be taken up again, with what is left of it.
    if (firstInUse - _spans.begin() > 2) {
        const auto last = std::prev(firstInUse, 2);
        last->origin = _nobody;
        _spans.erase(_spans.begin(), last);
    }
}
