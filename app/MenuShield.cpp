#include "app/MenuShield.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>

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

bool choosesActiveItem(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Space:
    case Qt::Key_Select:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return true;
    default:
        return false;
    }
}

bool hasLetter(const QAction& item, const QString& typed) {
    return !typed.isEmpty() &&
           QKeySequence::mnemonic(item.text()) ==
               QKeySequence(Qt::ALT | static_cast<Qt::Key>(typed.front().toUpper().unicode()));
}

bool choosesWhatSends(const QMenu& menu, const QKeyEvent& event) {
    const auto items = menu.actions();
    return std::any_of(items.begin(), items.end(), [&](const QAction* item) {
        return item->property("sends").toBool() &&
               (choosesActiveItem(event) ? item == menu.activeAction()
                                         : hasLetter(*item, event.text()));
    });
}

} // namespace

MenuShield::MenuShield(QObject* parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool MenuShield::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        _isMouseInUse = true;
        _isTakenOver = false;
        break;
    case QEvent::KeyPress:
        if (QApplication::activePopupWidget() == nullptr) {
            _isMouseInUse = false;
            _isTakenOver = false;
        } else if (const auto* menu = qobject_cast<QMenu*>(watched)) {
            return !takesKey(*menu, *static_cast<QKeyEvent*>(event));
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool MenuShield::takesKey(const QMenu& menu, const QKeyEvent& event) {
    _isTakenOver = _isTakenOver || walksThroughMenus(event);
    if (_isTakenOver) {
        return true;
    }
    return _isMouseInUse ? !typesText(event) : !choosesWhatSends(menu, event);
}
