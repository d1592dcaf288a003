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
    option->text = (isChecked() ? u"●\u2009"_s : u"○\u2009"_s) + option->text;
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
    const auto text = fontMetrics().size(Qt::TextShowMnemonic, option.text);
    return style()
        ->sizeFromContents(QStyle::CT_PushButton, &option, text, this)
        .expandedTo(QSize(0, leastButtonHeight));
}
