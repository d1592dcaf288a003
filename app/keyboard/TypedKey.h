#pragma once

#include <QKeyEvent>

/// What a pressed key is to a text.
namespace TypedKey {

/// Held with a letter, they make a command of it.
inline constexpr auto commandKeys = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

[[nodiscard]] inline bool isText(const QKeyEvent& event) {
    return (event.modifiers() & Qt::ControlModifier) == 0 && !event.text().isEmpty() &&
           event.text().front().isPrint();
}

[[nodiscard]] inline bool isLineEnd(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

[[nodiscard]] inline bool isModifier(const QKeyEvent& event) {
    return event.key() >= Qt::Key_Shift && event.key() <= Qt::Key_ScrollLock;
}

} // namespace TypedKey
