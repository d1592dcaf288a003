#pragma once

#include "virtualkeyer/core/KeyTrace.h"
#include "virtualkeyer/window/ScopeRange.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <QRect>

namespace virtualkeyer {

/// Draws a range of a trace: letters over their elements, the key line, PTT, the time, and the
/// cursors. Marks and letters keep their shape from one picture to the next as they move on, since
/// all of them move by whole pixels.
class ScopePainter {
  public:
    /// The trace and the range must outlive the painter.
    ScopePainter(const KeyTrace& trace, const ScopeRange& range, const QRect& place,
                 const QPalette& palette, const QFontMetrics& font);

    void paint(QPainter& painter) const;

    /// How much time a pixel stands for.
    [[nodiscard]] Time pixelTime() const { return _pixelTime; }
    /// Where a time is, which may be outside.
    [[nodiscard]] int x(Time at) const;
    [[nodiscard]] Time timeAt(int x) const;

  private:
    struct Row {
        int top;
        int height;
    };

    [[nodiscard]] QColor faint(int percent) const;
    void paintTime(QPainter& painter) const;
    void paintLetters(QPainter& painter) const;
    void paintKey(QPainter& painter) const;
    void paintPtt(QPainter& painter) const;
    void paintCursors(QPainter& painter) const;
    void addBar(QList<QRect>& bars, const Row& row, const Stretch& stretch) const;
    void paintRow(QPainter& painter, const Row& row, const QList<QRect>& bars,
                  const QBrush& brush) const;

    const KeyTrace& _trace;
    const ScopeRange& _range;
    QRect _place;
    QPalette _palette;
    QFontMetrics _font;
    Time _pixelTime;
    std::int64_t _firstPixel;
};

} // namespace virtualkeyer
