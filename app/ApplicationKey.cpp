#include "app/ApplicationKey.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace {

bool isPressOf(QKeyCombination key, const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& press = static_cast<const QKeyEvent&>(event);
    const auto wanted = key.keyboardModifiers();
    return press.key() == key.key() && !press.isAutoRepeat() &&
           (press.modifiers() & wanted) == wanted;
}

} // namespace

ApplicationKey::ApplicationKey(QKeyCombination key, QObject* parent) : QObject(parent), _key(key) {
    QCoreApplication::instance()->installEventFilter(this);
}

/// A key reaches the native window first, once, and then one widget after the other.
bool ApplicationKey::eventFilter(QObject* watched, QEvent* event) {
    if (watched->isWindowType() && isPressOf(_key, *event)) {
        Q_EMIT pressed();
    }
    return QObject::eventFilter(watched, event);
}
