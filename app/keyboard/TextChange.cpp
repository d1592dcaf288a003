#include "app/keyboard/TextChange.h"

#include <algorithm>

TextChange TextChange::between(const QString& before, const QString& after) {
    const auto [beforeEnd, afterEnd] =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto prefix = beforeEnd - before.begin();
    const auto shortest = std::min(before.size(), after.size()) - prefix;
    const auto suffix =
        std::mismatch(before.rbegin(), before.rbegin() + shortest, after.rbegin()).first -
        before.rbegin();
    return {prefix, before.mid(prefix, before.size() - suffix - prefix),
            after.mid(prefix, after.size() - suffix - prefix)};
}

QString TextChange::appliedTo(QString text) const {
    return text.replace(position, removed.size(), inserted);
}

qsizetype TextChange::movedStart(qsizetype index) const {
    if (index >= position + removed.size()) {
        return index + inserted.size() - removed.size();
    }
    return std::min(index, position);
}

qsizetype TextChange::movedEnd(qsizetype index) const {
    return index <= position ? index : movedStart(index);
}
