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
    option->text = (isChecked() ? u"●\u2009"_s : u"○\u2009"_s) + option->text + _detail;
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

QSize SwitchButton::sizeHint() const {
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.chop(_detail.size());
    const auto text = fontMetrics().size(Qt::TextShowMnemonic, option.text + _widestDetail);
    return style()
        ->sizeFromContents(QStyle::CT_PushButton, &option, text, this)
        .expandedTo(QSize(0, leastButtonHeight));
}
