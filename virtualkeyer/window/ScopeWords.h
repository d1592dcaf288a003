#pragma once

#include "virtualkeyer/core/KeyTrace.h"
#include "virtualkeyer/window/ScopeRange.h"

#include <QCoreApplication>
#include <QString>

namespace virtualkeyer {

/// What a scope's cursors measure, in words.
struct ScopeWords {
    Q_DECLARE_TR_FUNCTIONS(ScopeWords)

  public:
    /// Such as "121.8 ms: dit 60.0, space 61.8": the elements between the cursors, or the one that
    /// both, or the only one, stand in.
    [[nodiscard]] static QString of(const KeyTrace& trace, const ScopeRange& range);

    /// Where the next edge of any line is, after `from` or before it; nothing without one.
    [[nodiscard]] static std::optional<Time> nextEdge(const KeyTrace& trace, Time from,
                                                      bool isForward);
};

} // namespace virtualkeyer
