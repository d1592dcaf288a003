#include "app/window/SwitchButton.h"

#include "app/window/ButtonHeight.h"

#include <QEvent>
#include <QStyleOptionButton>

using namespace Qt::StringLiterals;

SwitchButton::SwitchButton(QWidget* parent) : QPushButton(parent) {
    setCheckable(true);
}

void SwitchButton::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    option->text = withLamp();
    if (width() >= sizeWith(_detail).width()) {
        option->text += _detail;
    }
}

QString SwitchButton::withLamp() const {
    return (isChecked() ? u"●\u2009"_s : u"○\u2009"_s) + text();
}

QSize SwitchButton::sizeWith(const QString& detail) const {
    QStyleOptionButton option;
    QPushButton::initStyleOption(&option);
    const auto text = fontMetrics().size(Qt::TextShowMnemonic, withLamp() + detail);
    return style()
        ->sizeFromContents(QStyle::CT_PushButton, &option, text, this)
        .expandedTo(QSize(0, leastButtonHeight));
}

void SwitchButton::setDetail(const QString& detail) {
    if (_detail != detail) {
        _detail = detail;
        update();
    }
}

void SwitchButton::reserveDetail(const QString& widest) {
    _widestDetail = widest;
    updateGeometry();
}

void SwitchButton::changeEvent(QEvent* event) {
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        Q_EMIT enabledChanged(isEnabled());
    }
}
