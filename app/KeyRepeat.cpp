#include "app/KeyRepeat.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace {

void handOnAsRepeat(QKeyEvent& press, QObject& receiver) {
    QKeyEvent repeat(press.type(), press.key(), press.modifiers(), press.nativeScanCode(),
                     press.nativeVirtualKey(), press.nativeModifiers(), press.text(), true,
                     static_cast<quint16>(press.count()));
    repeat.setTimestamp(press.timestamp());
    QCoreApplication::sendEvent(&receiver, &repeat);
    press.setAccepted(repeat.isAccepted());
}

} // namespace

KeyRepeat::KeyRepeat(QObject* parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

/// A key reaches the native window first, and is asked there whether it may be a shortcut.
bool KeyRepeat::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWindowType()) {
        return QObject::eventFilter(watched, event);
    }
    if (event->type() == QEvent::KeyRelease) {
        const auto& release = *static_cast<QKeyEvent*>(event);
        _releasedKey = release.key();
        _releasedCode = release.nativeScanCode();
        _releasedAt = release.timestamp();
    } else if (event->type() == QEvent::ShortcutOverride &&
               isRepeat(*static_cast<QKeyEvent*>(event))) {
        event->accept(); // so it is none
        return true;
    } else if (event->type() == QEvent::KeyPress && isRepeat(*static_cast<QKeyEvent*>(event))) {
        handOnAsRepeat(*static_cast<QKeyEvent*>(event), *watched);
        return true;
    }
    return QObject::eventFilter(watched, event);
}

bool KeyRepeat::isRepeat(const QKeyEvent& press) const {
    return !press.isAutoRepeat() && press.timestamp() != 0 && press.timestamp() == _releasedAt &&
           press.key() == _releasedKey && press.nativeScanCode() == _releasedCode;
}
