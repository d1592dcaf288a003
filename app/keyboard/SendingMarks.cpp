#include "app/keyboard/SendingMarks.h"

#include <QPainter>
#include <QPen>
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

void underline(QPainter& painter, const QTextLine& line, const QRectF& extent,
               const QColor& color) {
    const auto width = std::max(2.0, std::round(line.height() / 12));
    const auto y = extent.top() + line.ascent() + std::max(width, line.descent() / 2);
    painter.setPen(QPen(color, width, Qt::DotLine, Qt::FlatCap));
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

} // namespace

void SendingMarks::paint(QPainter& painter, const Paragraph& paragraph) const {
    const auto plain = _palette.color(QPalette::Text);
    const auto selected = _palette.color(QPalette::HighlightedText);
    const qsizetype start = paragraph.block.position();
    const auto end = start + paragraph.block.length() - 1;
    paintPart(painter, paragraph, {start, std::min(end, _selection.begin)}, plain);
    paintPart(painter, paragraph, _selection.within({start, end}), selected);
    paintPart(painter, paragraph, {std::max(start, _selection.end), end}, plain);
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
            underline(painter, line, where.translated(paragraph.origin), ink);
        }
    }
}
