#include "keyer/Action.h"

#include <QVariant>

namespace Action {

int tag(const QObject* sender) {
    return sender != nullptr ? sender->property("tag").toInt() : 0;
}

int state(const QObject* sender) {
    if (sender == nullptr) {
        return 0;
    }
    if (const auto state = sender->property("state"); state.isValid()) {
        return state.toInt();
    }
    if (sender->property("checkState").toInt() == Qt::PartiallyChecked) {
        return -1;
    }
    return sender->property("checked").toBool() ? 1 : 0;
}

} // namespace Action
