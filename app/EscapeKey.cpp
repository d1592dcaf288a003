#include "app/EscapeKey.h"

#include <QCoreApplication>
#include <QKeyEvent>

EscapeKey::EscapeKey(QObject* parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

/// A key reaches the native window first, once, and then one widget after the other.
bool EscapeKey::eventFilter(QObject* watched, QEvent* event) {
    if (watched->isWindowType() && event->type() == QEvent::KeyPress) {
        const auto& press = *static_cast<QKeyEvent*>(event);
        if (press.key() == Qt::Key_Escape && !press.isAutoRepeat()) {
            Q_EMIT pressed();
        }
    }
    return QObject::eventFilter(watched, event);
}
