#include "app/window/SingleClick.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>

#include <utility>

SingleClick::SingleClick(QAbstractButton& button) : QObject(&button) {
    button.installEventFilter(this);
}

bool SingleClick::eventFilter(QObject* watched, QEvent* event) {
    const bool isSecond = event->type() == QEvent::MouseButtonDblClick;
    if ((isSecond || event->type() == QEvent::MouseButtonPress) &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        const auto now = static_cast<QMouseEvent*>(event)->timestamp();
        const auto last = std::exchange(_lastPress, now);
        const auto interval =
            static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
        // The third of three is no double click to the toolkit.
        if (last && (isSecond || now - *last < interval)) {
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
