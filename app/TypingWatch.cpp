#include "app/TypingWatch.h"

#include "app/KeyShield.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace {

bool isTyped(const QKeyEvent& event) {
    return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
}

} // namespace

TypingWatch::TypingWatch(QObject* parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool TypingWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && isTyped(*static_cast<QKeyEvent*>(event))) {
        _lastKey = Platform::current().clock().now();
    } else if (event->type() == QEvent::MouseButtonPress) {
        _lastKey.reset();
    } else if (event->type() == QEvent::Show && watched->isWidgetType() && isTyping()) {
        auto& widget = *static_cast<QWidget*>(watched);
        if (widget.isModal() && widget.findChild<KeyShield*>() == nullptr) {
            shield(widget);
        }
    }
    return QObject::eventFilter(watched, event);
}

void TypingWatch::shield(QWidget& window) {
    const auto* shield = new KeyShield(window);
    const auto title = window.windowTitle();
    const auto hint = tr("%1 – takes keys when you have stopped typing").arg(title);
    window.setWindowTitle(hint);
    connect(shield, &KeyShield::lifted, &window, [&window, title, hint] {
        if (window.windowTitle() == hint) {
            window.setWindowTitle(title);
        }
    });
}

bool TypingWatch::isTyping() const {
    return _lastKey && Platform::current().clock().now() - *_lastKey < KeyShield::stillness;
}
