#include "app/window/MessageButton.h"

#include "app/window/ButtonHeight.h"

#include <QStyleOptionButton>
#include <QStylePainter>

using namespace Qt::StringLiterals;

namespace {
constexpr int wantedCharacters = 16;
constexpr int leastCharacters = 8;
constexpr double smallerBy = 0.85;
} // namespace

void MessageButton::setPreview(const QString& preview) {
    if (_preview != preview) {
        _preview = preview;
        update();
    }
}

void MessageButton::setHeld(bool isHeld) {
    if (_isHeld != isHeld) {
        _isHeld = isHeld;
        update();
    }
}

QFont MessageButton::smallFont() const {
    auto smaller = font();
    smaller.setPointSizeF(smaller.pointSizeF() * smallerBy);
    return smaller;
}

QSize MessageButton::sizeHint() const {
    return sizeFor(wantedCharacters, fontMetrics().height() + QFontMetrics(smallFont()).height());
}

QSize MessageButton::minimumSizeHint() const {
    return sizeFor(leastCharacters, fontMetrics().height());
}

QSize MessageButton::sizeFor(int characters, int height) const {
    QStyleOptionButton option;
    initStyleOption(&option);
    const QSize text(characters * fontMetrics().averageCharWidth(), height);
    return style()
        ->sizeFromContents(QStyle::CT_PushButton, &option, text, this)
        .expandedTo(QSize(0, leastButtonHeight));
}

void MessageButton::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const auto label = (_isHeld ? u"◷ "_s : QString()) + text().replace(u"&&"_s, u"&"_s);
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);

    const auto room = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    const auto first = fontMetrics().height();
    const auto second = QFontMetrics(smallFont()).height();
    const bool hasRoomForBoth = room.height() >= first + second;
    const auto top = room.center().y() - (hasRoomForBoth ? first + second : first) / 2;
    drawLine(painter, {room.left(), top, room.width(), first}, label);
    if (hasRoomForBoth) {
        painter.setFont(smallFont());
        drawLine(painter, {room.left(), top + first, room.width(), second},
                 _isHeld ? tr("waits for the paddle") : _preview);
    }
}

/// Cut short, and read from left to right, whatever way the window does: a key, a label, Morse.
void MessageButton::drawLine(QPainter& painter, QRect rect, const QString& text) const {
    const auto shown = painter.fontMetrics().elidedText(text, Qt::ElideRight, rect.width());
    style()->drawItemText(&painter, rect, Qt::AlignCenter, palette(), isEnabled(),
                          u'\u2066' + shown + u'\u2069', QPalette::ButtonText);
}
