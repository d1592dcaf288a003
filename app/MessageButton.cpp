#include "app/MessageButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace {
constexpr int shownCharacters = 16;
}

QSize MessageButton::sizeHint() const {
    QStyleOptionButton option;
    initStyleOption(&option);
    const auto metrics = fontMetrics();
    const QSize text(shownCharacters * metrics.averageCharWidth(), metrics.height());
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, text, this);
}

void MessageButton::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const auto room = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this).width();
    option.text = fontMetrics().elidedText(option.text, Qt::ElideRight, room, Qt::TextShowMnemonic);
    painter.drawControl(QStyle::CE_PushButton, option);
}
