#include "app/keyboard/EditHistory.h"

#include <algorithm>

namespace {

/// Makes one change of two, the second of which continues the first.
void join(TextChange& first, const TextChange& second) {
    first.removed = second.position < first.position ? second.removed + first.removed
                                                     : first.removed + second.removed;
    first.inserted += second.inserted;
    first.position = std::min(first.position, second.position);
}

} // namespace

void EditHistory::dropHandedOver(QList<Entry>& entries, qsizetype handedOver) {
    const auto last = std::find_if(entries.crbegin(), entries.crend(), [=](const auto& entry) {
        return entry.change.position < handedOver;
    });
    entries.erase(entries.cbegin(), last.base());
}

void EditHistory::record(const TextChange& change, qsizetype handedOver, Kind kind, Mark mark) {
    _undone.clear();
    if (change.position < handedOver) {
        clear();
        return;
    }
    if (kind == Kind::Typed && continuesLast(change)) {
        join(_done.last().change, change);
        _done.last().mark.after = mark.after;
    } else {
        _done.append({change, mark});
    }
    _isLastOpen = kind == Kind::Typed;
}

bool EditHistory::continuesLast(const TextChange& change) const {
    if (!_isLastOpen || _done.isEmpty()) {
        return false;
    }
    const auto& last = _done.constLast().change;
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

std::optional<EditHistory::Step> EditHistory::undo() {
    if (!canUndo()) {
        return std::nullopt;
    }
    _isLastOpen = false;
    _undone.append(_done.takeLast());
    const auto& [change, mark] = _undone.constLast();
    return Step{change.reversed(), mark.before};
}

std::optional<EditHistory::Step> EditHistory::redo() {
    if (!canRedo()) {
        return std::nullopt;
    }
    _isLastOpen = false;
    _done.append(_undone.takeLast());
    const auto& [change, mark] = _done.constLast();
    return Step{change, mark.after};
}

void EditHistory::clear() {
    _done.clear();
    _undone.clear();
    _isLastOpen = false;
}
