#include "preferences/GuideButton.h"

#include <QTabWidget>

using namespace Qt::StringLiterals;

GuideButton::GuideButton(QWidget* parent) : QToolButton(parent) {
    setText(u"?"_s);
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(tr("Guide to these settings"));
    setToolTip(tr("Opens the guide where these settings are explained."));
    connect(this, &QToolButton::clicked, this, [this] { Q_EMIT guideRequested(chapter()); });
}

QString GuideButton::chapter() const {
    const QObject* bearer = this;
    if (_pages != nullptr) {
        bearer = _pages->currentWidget();
    }
    return bearer->property("chapter").toString();
}
