#include "app/window/MessageButton.h"

#include "app/window/ButtonHeight.h"

#include <QStyleOptionButton>
#include <QStylePainter>

using namespace Qt::StringLiterals;

namespace {
constexpr int wantedCharacters = 16;
constexpr int leastCharacters = 8;
} // namespace

void MessageButton::setHeld(bool isHeld) {
    if (_isHeld != isHeld) {
        _isHeld = isHeld;
        update();
    }
}

QSize MessageButton::sizeHint() const {
    return sizeFor(wantedCharacters);
}

QSize MessageButton::minimumSizeHint() const {
    return sizeFor(leastCharacters);
}

QSize MessageButton::sizeFor(int characters) const {
    QStyleOptionButton option;
    initStyleOption(&option);
    const auto metrics = fontMetrics();
    const QSize text(characters * metrics.averageCharWidth(), metrics.height());
    return style()
        ->sizeFromContents(QStyle::CT_PushButton, &option, text, this)
        .expandedTo(QSize(0, leastButtonHeight));
}

void MessageButton::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    if (_isHeld) {
        option.text = u"◷ "_s + option.text;
    }
    const auto room = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this).width();
    option.text = fontMetrics().elidedText(option.text, Qt::ElideRight, room, Qt::TextShowMnemonic);
    // A key and a label read from left to right, whatever way the window does.
    option.text = u'\u2066' + option.text + u'\u2069';
    painter.drawControl(QStyle::CE_PushButton, option);
}
