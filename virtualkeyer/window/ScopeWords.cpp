#include "virtualkeyer/window/ScopeWords.h"

#include <QStringList>

#include <algorithm>
#include <vector>

namespace virtualkeyer {

namespace {

/// More are told as a number.
constexpr std::size_t mostToldElements = 8;

QString inMilliseconds(Time time) {
    return QString::number(std::chrono::duration<double, std::milli>(time).count(), 'f', 1);
}

QString words(const TraceElement& element) {
    const QString length = inMilliseconds(element.stretch.length());
    switch (element.kind) {
    case TraceElement::Kind::Dit:
        return ScopeWords::tr("dit %1").arg(length);
    case TraceElement::Kind::Dah:
        return ScopeWords::tr("dah %1").arg(length);
    case TraceElement::Kind::Space:
        return ScopeWords::tr("space %1").arg(length);
    case TraceElement::Kind::LetterSpace:
        return ScopeWords::tr("letter space %1").arg(length);
    case TraceElement::Kind::WordSpace:
        return ScopeWords::tr("word space %1").arg(length);
    case TraceElement::Kind::Pause:
        return ScopeWords::tr("pause %1").arg(length);
    }
    return {};
}

/// Those of which more than a half lies in the stretch, and one that holds all of it.
std::vector<TraceElement> elementsIn(const KeyTrace& trace, const Stretch& stretch) {
    std::vector<TraceElement> found;
    const auto& all = trace.elements();
    auto element = std::ranges::lower_bound(
        all, stretch.from, {}, [](const TraceElement& each) { return each.stretch.to; });
    for (; element != all.end() && element->stretch.from <= stretch.to; ++element) {
        const Time inside = std::min(element->stretch.to, stretch.to) -
                            std::max(element->stretch.from, stretch.from);
        const bool holdsAll =
            element->stretch.from <= stretch.from && element->stretch.to > stretch.to;
        if (holdsAll || inside * 2 > element->stretch.length()) {
            found.push_back(*element);
        }
    }
    return found;
}

QString words(const std::vector<TraceElement>& elements) {
    if (elements.size() > mostToldElements) {
        return ScopeWords::tr("elements and spaces: %1").arg(elements.size());
    }
    QStringList told;
    for (const TraceElement& element : elements) {
        told += words(element);
    }
    return told.join(QStringLiteral(", "));
}

} // namespace

QString ScopeWords::of(const KeyTrace& trace, const ScopeRange& range) {
    const auto first = range.cursor(0);
    const auto second = range.cursor(1);
    if (!first && !second) {
        return tr("Click and drag to measure, or use the arrow keys.");
    }
    const Time from = std::min(first.value_or(*second), second.value_or(*first));
    const Time to = std::max(first.value_or(*second), second.value_or(*first));
    const QString between = words(elementsIn(trace, {from, to}));
    if (!first || !second) {
        return between.isEmpty() ? tr("One cursor is set.") : tr("%1 ms").arg(between);
    }
    return between.isEmpty() ? tr("%1 ms").arg(inMilliseconds(to - from))
                             : tr("%1 ms: %2").arg(inMilliseconds(to - from), between);
}

std::optional<Time> ScopeWords::nextEdge(const KeyTrace& trace, Time from, bool isForward) {
    std::optional<Time> next;
    const auto consider = [&](std::optional<Time> edge) {
        if (!edge || (isForward ? *edge <= from : *edge >= from)) {
            return;
        }
        if (!next || (isForward ? *edge < *next : *edge > *next)) {
            next = edge;
        }
    };
    const auto considerStretch = [&consider](const Stretch& stretch) {
        consider(stretch.from);
        consider(stretch.to);
    };
    for (const TraceElement& element : trace.elements()) {
        considerStretch(element.stretch);
    }
    for (const Stretch& transmission : trace.transmissions()) {
        considerStretch(transmission);
    }
    consider(trace.downSince());
    consider(trace.onSince());
    return next;
}

} // namespace virtualkeyer
