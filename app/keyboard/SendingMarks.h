#pragma once

#include <QColor>
#include <QPalette>
#include <QPointF>
#include <QRectF>
#include <QTextBlock>

#include <algorithm>

class QPainter;

/// How far a text has been sent, drawn over it: sent text is plain, what is on its way stands in
/// an inverse box, what waits is underlined with dots, and what goes nowhere, because no keyer is
/// connected, is struck out. Shapes, not colours, tell them apart, also
/// where the text is selected.
class SendingMarks {
  public:
    /// Half-open ranges of the text: on its way is [inFlight, waiting), and the rest waits.
    struct State {
        qsizetype inFlight = 0;
        qsizetype waiting = 0;
        bool isLinked = true;

        [[nodiscard]] bool operator==(const State&) const = default;
    };

    /// A stretch of the text.
    struct Range {
        qsizetype begin = 0;
        qsizetype end = 0;

        [[nodiscard]] bool isEmpty() const { return begin >= end; }
        [[nodiscard]] Range within(Range other) const {
            return {std::max(begin, other.begin), std::min(end, other.end)};
        }
    };

    /// A paragraph, and where it was drawn.
    struct Paragraph {
        QTextBlock block;
        QPointF origin;
    };

    /// Only lines that touch `visible` are drawn on.
    SendingMarks(const State& state, Range selection, const QPalette& palette,
                 const QRectF& visible)
        : _state(state), _selection(selection), _palette(palette), _visible(visible) {}

    /// Draws the marks over a paragraph. What is being composed with an input method gets none.
    void paint(QPainter& painter, const Paragraph& paragraph) const;

    /// Where the marks of a stretch of the text are, as far as it is in the paragraph; empty where
    /// none of it is.
    [[nodiscard]] static QRectF area(const Paragraph& paragraph, Range range);

  private:
    [[nodiscard]] QRectF inSight(const QRectF& where) const;
    void paintHiddenLetter(QPainter& painter, const Paragraph& paragraph) const;
    void paintPart(QPainter& painter, const Paragraph& paragraph, Range part,
                   const QColor& ink) const;

    State _state;
    Range _selection;
    QPalette _palette;
    QRectF _visible;
};
