#include "app/KeyShield.h"

#include "platform/Platform.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace {

/// By how much the end of a wait is noticed late only where the program could not run, which has
/// kept keys from it, too.
constexpr std::chrono::milliseconds lateness{100};

/// Whether the event is a part of the way of a key, or of an input method, to a window.
bool isOfKeyboard(const QEvent& event) {
    switch (event.type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
        return true;
    default:
        return false;
    }
}

} // namespace

KeyShield::KeyShield(QWidget& window) : QObject(&window), _window(window) {
    QCoreApplication::instance()->installEventFilter(this);
    beginAnew();
}

bool KeyShield::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &_window && event->type() == QEvent::WindowActivate) {
        beginAnew();
    }
    if (!isOfKeyboard(*event)) {
        return QObject::eventFilter(watched, event);
    }
    beginAnew();
    if (!isInWindow(watched)) {
        // A native window, too, where a key comes first and the application hears it.
        return QObject::eventFilter(watched, event);
    }
    event->accept(); // so it is no shortcut either
    return true;
}

bool KeyShield::isInWindow(const QObject* object) const {
    return object->isWidgetType() && static_cast<const QWidget*>(object)->window() == &_window;
}

void KeyShield::beginAnew() {
    _end = Platform::current().clock().now() + stillness;
    if (!_isWaiting) {
        wait();
    }
}

void KeyShield::wait() {
    _isWaiting = true;
    auto& clock = Platform::current().clock();
    clock.scheduleTimer(_end - clock.now(), this, [this] { endWaiting(); });
}

void KeyShield::endWaiting() {
    const auto now = Platform::current().clock().now();
    if (now > _end + lateness) {
        _end = now + stillness;
    }
    if (now < _end) {
        wait();
        return;
    }
    _isWaiting = false;
    // Keys for a window that has not got the keyboard yet go to the one behind it, unseen here.
    if (_window.isActiveWindow()) {
        QCoreApplication::instance()->removeEventFilter(this);
        Q_EMIT lifted();
    }
}
