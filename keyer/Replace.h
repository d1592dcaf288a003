#pragma once

#include <QString>

/// Stores `value` and tells whether that changed anything.
template <typename Value>
bool replace(Value& stored, const Value& value) {
    if (stored == value) {
        return false;
    }
    stored = value;
    return true;
}

/// nil is not the empty text, though the two compare equal.
inline bool replace(QString& stored, const QString& value) {
    if (stored == value && stored.isNull() == value.isNull()) {
        return false;
    }
    stored = value;
    return true;
}
