#include "app/keyboard/EditHistory.h"

#include <algorithm>

namespace {

/// Drops the last change that concerns handed-over text, and all that come before it in the list
/// and so could be reached only past it.
void dropHandedOver(QList<TextChange>& changes, qsizetype handedOver) {
    const auto last = std::find_if(changes.crbegin(), changes.crend(), [=](const auto& change) {
        return change.position < handedOver;
    });
    changes.erase(changes.cbegin(), last.base());
}

/// Makes one change of two, the second of which continues the first.
void join(TextChange& first, const TextChange& second) {
    first.removed = second.position < first.position ? second.removed + first.removed
                                                     : first.removed + second.removed;
    first.inserted += second.inserted;
    first.position = std::min(first.position, second.position);
}

} // namespace

void EditHistory::record(const TextChange& change, qsizetype handedOver, Kind kind) {
    _undone.clear();
    if (change.position < handedOver) {
        clear();
        return;
    }
    if (kind == Kind::Typed && continuesLast(change)) {
        join(_done.last(), change);
    } else {
        _done.append(change);
    }
    _isLastOpen = kind == Kind::Typed;
}

bool EditHistory::continuesLast(const TextChange& change) const {
    if (!_isLastOpen || _done.isEmpty()) {
        return false;
    }
    const auto& last = _done.constLast();
    if (change.removed.isEmpty() && last.removed.isEmpty()) {
        const auto beginsWord = last.inserted.endsWith(u' ') && !change.inserted.startsWith(u' ');
        return change.position == last.position + last.inserted.size() && !beginsWord;
    }
    if (change.inserted.isEmpty() && last.inserted.isEmpty()) {
        return change.position == last.position ||
               change.position + change.removed.size() == last.position;
    }
    return false;
}

void EditHistory::handOver(qsizetype handedOver) {
    dropHandedOver(_done, handedOver);
    dropHandedOver(_undone, handedOver);
}

std::optional<TextChange> EditHistory::undo() {
    if (!canUndo()) {
        return std::nullopt;
    }
    _isLastOpen = false;
    _undone.append(_done.takeLast());
    return _undone.constLast().reversed();
}

std::optional<TextChange> EditHistory::redo() {
    if (!canRedo()) {
        return std::nullopt;
    }
    _isLastOpen = false;
    _done.append(_undone.takeLast());
    return _done.constLast();
}

void EditHistory::clear() {
    _done.clear();
    _undone.clear();
    _isLastOpen = false;
}
