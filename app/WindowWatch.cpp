#include "app/WindowWatch.h"

#include <QEvent>
#include <QWidget>

WindowWatch::WindowWatch(QWidget& window, QObject* parent)
    : QObject(parent), _window(window), _isVisible(window.isVisible()) {
    _window.installEventFilter(this);
}

/// A window that the desktop hides stays visible by what it says itself.
bool WindowWatch::eventFilter(QObject* watched, QEvent* event) {
    const bool isOfInterest = event->type() == QEvent::Show || event->type() == QEvent::Hide;
    if (isOfInterest && _isVisible != _window.isVisible()) {
        _isVisible = !_isVisible;
        Q_EMIT visibleChanged(_isVisible);
    }
    return QObject::eventFilter(watched, event);
}
