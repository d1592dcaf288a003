#include "app/keyboard/SendingMarks.h"

#include "app/keyboard/KeyboardText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace {

using Range = SendingMarks::Range;

/// The range of the text, in the layout's own counting: there, what is being composed counts too.
Range inLayout(const QTextBlock& block, Range range) {
    const auto composed = block.layout()->preeditAreaText().size();
    const auto position = block.layout()->preeditAreaPosition();
    const auto begin = range.begin - block.position();
    const auto end = range.end - block.position();
    return {begin + (composed > 0 && begin >= position ? composed : 0),
            end + (composed > 0 && end > position ? composed : 0)};
}

/// The stretch of the line that `range` takes; an empty one when it takes none.
QRectF extent(const QTextLine& line, Range range) {
    const Range onLine{line.textStart(), line.textStart() + line.textLength()};
    const auto part = range.within(onLine);
    if (part.isEmpty()) {
        return {};
    }
    const auto from = line.cursorToX(static_cast<int>(part.begin));
    const auto to = line.cursorToX(static_cast<int>(part.end));
    return QRectF(std::min(from, to), line.y(), std::abs(to - from), line.height());
}

/// The dots keep their places whatever part of the line is drawn anew.
void underline(QPainter& painter, const QTextLine& line, const QRectF& extent,
               const QColor& color) {
    const auto width = std::max(2.0, std::round(line.height() / 12));
    const auto y = extent.top() + line.ascent() + std::max(width, line.descent() / 2);
    QPen pen(color, width, Qt::DotLine, Qt::FlatCap);
    pen.setDashOffset(extent.left() / width);
    painter.setPen(pen);
    painter.drawLine(QPointF(extent.left(), y), QPointF(extent.right(), y));
}

void strikeOut(QPainter& painter, const QTextLine& line, const QRectF& extent,
               const QColor& color) {
    const auto y = extent.top() + line.ascent() * 0.68;
    painter.setPen(QPen(color, std::max(1.0, std::round(line.height() / 16))));
    painter.drawLine(QPointF(extent.left(), y), QPointF(extent.right(), y));
}

void invert(QPainter& painter, const QTextLine& line, const QRectF& extent, QPointF origin,
            const QPalette& palette) {
    painter.save();
    painter.setClipRect(extent.translated(origin), Qt::IntersectClip);
    painter.fillRect(extent.translated(origin), palette.color(QPalette::Text));
    painter.setPen(palette.color(QPalette::Base));
    line.draw(&painter, origin);
    painter.restore();
}

/// The letter behind the last line that the paragraph's end stands for, and its place there.
struct HiddenLetter {
    QChar letter;
    QTextLine line;
    QRectF place;
};

HiddenLetter hiddenLetter(const QTextBlock& block) {
    const auto& layout = *block.layout();
    const auto letter = KeyboardText::hiddenLetter(block);
    if (letter.isNull() || layout.lineCount() == 0) {
        return {};
    }
    const auto line = layout.lineAt(layout.lineCount() - 1);
    const auto width = QFontMetricsF(block.document()->defaultFont()).horizontalAdvance(letter);
    const auto behind = line.cursorToX(line.textStart() + line.textLength());
    const auto last = line.rect().right() + block.document()->documentMargin() - width;
    return {letter, line, QRectF(std::min(behind, last), line.y(), width, line.height())};
}

} // namespace

QRectF SendingMarks::area(const Paragraph& paragraph, Range range) {
    const auto& block = paragraph.block;
    const auto& layout = *block.layout();
    const qsizetype end = block.position() + block.length() - 1;
    const auto part = inLayout(block, range.within({block.position(), end}));
    QRectF area;
    for (int i = 0; i < layout.lineCount(); ++i) {
        area |= extent(layout.lineAt(i), part);
    }
    if (range.begin <= end && end < range.end) {
        area |= hiddenLetter(block).place;
    }
    return area.translated(paragraph.origin);
}

void SendingMarks::paint(QPainter& painter, const Paragraph& paragraph) const {
    const auto plain = _palette.color(QPalette::Text);
    const auto selected = _palette.color(QPalette::HighlightedText);
    const qsizetype start = paragraph.block.position();
    const auto end = start + paragraph.block.length() - 1;
    paintPart(painter, paragraph, {start, std::min(end, _selection.begin)}, plain);
    paintPart(painter, paragraph, _selection.within({start, end}), selected);
    paintPart(painter, paragraph, {std::max(start, _selection.end), end}, plain);
    paintHiddenLetter(painter, paragraph);
}

void SendingMarks::paintHiddenLetter(QPainter& painter, const Paragraph& paragraph) const {
    const auto [letter, line, place] = hiddenLetter(paragraph.block);
    const auto where = place.translated(paragraph.origin);
    if (letter.isNull() || !where.intersects(_visible)) {
        return;
    }
    const qsizetype index = paragraph.block.position() + paragraph.block.length() - 1;
    const bool isSelected = index >= _selection.begin && index < _selection.end;
    const bool isWaiting = index >= _state.waiting;
    const bool isOnItsWay = _state.isLinked && index >= _state.inFlight && !isWaiting;
    if (isOnItsWay || isSelected) {
        painter.fillRect(where, _palette.color(isOnItsWay ? QPalette::Text : QPalette::Highlight));
    }
    const auto ink = _palette.color(isOnItsWay   ? QPalette::Base
                                    : isSelected ? QPalette::HighlightedText
                                                 : QPalette::Text);
    painter.setPen(ink);
    painter.setFont(paragraph.block.document()->defaultFont());
    painter.drawText(where.topLeft() + QPointF(0, line.ascent()), letter);
    if (!_state.isLinked) {
        strikeOut(painter, line, where, ink);
    } else if (isWaiting) {
        underline(painter, line, where, ink);
    }
}

/// Dots that nobody sees cost as much as those that are seen.
QRectF SendingMarks::inSight(const QRectF& where) const {
    return where & QRectF(_visible.left(), where.top(), _visible.width(), where.height());
}

void SendingMarks::paintPart(QPainter& painter, const Paragraph& paragraph, Range part,
                             const QColor& ink) const {
    const auto onItsWay = part.within({_state.inFlight, _state.waiting});
    const auto waits = part.within({_state.waiting, part.end});
    const auto& layout = *paragraph.block.layout();
    for (int i = 0; i < layout.lineCount(); ++i) {
        const auto line = layout.lineAt(i);
        if (!line.rect().translated(paragraph.origin).intersects(_visible)) {
            continue;
        }
        if (!_state.isLinked) {
            const auto all = extent(line, inLayout(paragraph.block, part));
            if (!all.isEmpty()) {
                strikeOut(painter, line, all.translated(paragraph.origin), ink);
            }
            continue;
        }
        if (const auto where = extent(line, inLayout(paragraph.block, onItsWay));
            !where.isEmpty()) {
            invert(painter, line, where, paragraph.origin, _palette);
        }
        if (const auto where = extent(line, inLayout(paragraph.block, waits)); !where.isEmpty()) {
            underline(painter, line, inSight(where.translated(paragraph.origin)), ink);
        }
    }
}
