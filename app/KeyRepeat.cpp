#include "app/KeyRepeat.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

/// Those that make a shortcut of a letter.
constexpr auto shortcutModifiers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

/// Pressed and let go of while another key is held, which goes on repeating.
bool isModifier(int key) {
    constexpr std::array modifiers{Qt::Key_Shift,   Qt::Key_Control,   Qt::Key_Alt,
                                   Qt::Key_Meta,    Qt::Key_AltGr,     Qt::Key_CapsLock,
                                   Qt::Key_NumLock, Qt::Key_ScrollLock};
    return std::find(modifiers.begin(), modifiers.end(), key) != modifiers.end();
}

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
    } else if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
        return filterPress(*watched, *static_cast<QKeyEvent*>(event));
    }
    return QObject::eventFilter(watched, event);
}

bool KeyRepeat::filterPress(QObject& receiver, QKeyEvent& press) {
    if (!press.isAutoRepeat() && !isRepeat(press)) {
        if (!isModifier(press.key())) {
            _held = {press.key(), press.nativeScanCode(), press.modifiers() & shortcutModifiers};
        }
        return false;
    }
    const bool isDropped = !isOfHeldKey(press);
    if (press.isAutoRepeat() && !isDropped) {
        return false;
    }
    if (press.type() == QEvent::ShortcutOverride || isDropped) {
        press.accept(); // so it is no shortcut
    } else {
        handOnAsRepeat(press, receiver);
    }
    return true;
}

bool KeyRepeat::isRepeat(const QKeyEvent& press) const {
    return press.timestamp() != 0 && press.timestamp() == _releasedAt &&
           press.key() == _releasedKey && press.nativeScanCode() == _releasedCode;
}

/// Shift may make another key of the same piece of plastic.
bool KeyRepeat::isOfHeldKey(const QKeyEvent& repeat) const {
    const bool isSameKey = repeat.nativeScanCode() != 0 ? repeat.nativeScanCode() == _held.code
                                                        : repeat.key() == _held.key;
    return isSameKey && (repeat.modifiers() & shortcutModifiers) == _held.modifiers;
}
