#include "app/MenuShield.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>

namespace {

bool typesText(const QKeyEvent& event) {
    constexpr auto others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return (event.modifiers() & others) == 0 && event.key() != Qt::Key_Escape &&
           !event.text().isEmpty();
}

bool walksThroughMenus(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

} // namespace

MenuShield::MenuShield(QObject* parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool MenuShield::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        _isMouseInUse = true;
        break;
    case QEvent::KeyPress:
        if (QApplication::activePopupWidget() == nullptr) {
            _isMouseInUse = false;
        } else if (qobject_cast<QMenu*>(watched) != nullptr) {
            return !takesKey(*static_cast<QKeyEvent*>(event));
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool MenuShield::takesKey(const QKeyEvent& event) {
    _isMouseInUse = _isMouseInUse && !walksThroughMenus(event);
    return !_isMouseInUse || !typesText(event);
}
