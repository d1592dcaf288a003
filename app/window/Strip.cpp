#include "app/window/Strip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

Strip::Strip(QWidget* parent) : QFrame(parent), _label(new QLabel(this)) {
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    _label->setForegroundRole(QPalette::ToolTipText);
    _label->setWordWrap(true);
    _label->setTextFormat(Qt::PlainText);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 4, 4);
    row->addWidget(_label, 1);
    hide();
}

void Strip::setText(const QString& text) {
    _label->setText(text);
    setAccessibleName(text);
}

QPushButton& Strip::addButton(const QString& text, const QString& name) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAccessibleName(text);
    button->setFocusPolicy(Qt::TabFocus);
    qobject_cast<QHBoxLayout*>(layout())->insertWidget(1, button);
    return *button;
}

void Strip::append(QAbstractButton& button) {
    button.setFocusPolicy(Qt::TabFocus);
    qobject_cast<QHBoxLayout*>(layout())->addWidget(&button, 0, Qt::AlignTop);
}
