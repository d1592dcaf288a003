#include "virtualkeyer/window/ScopePainter.h"

#include "virtualkeyer/window/ScopeWords.h"

#include <algorithm>
#include <array>

namespace virtualkeyer {

namespace {

constexpr int margin = 4;
/// Of the text's colour, what the ground of a line and of the time has.
constexpr int faintPercent = 35;
constexpr int faintestPercent = 18;

/// An opaque one: the toolkit paints a tall one that is not by several threads, and waits for them.
QColor mixed(const QColor& ground, const QColor& ink, int percent) {
    const auto mix = [percent](int from, int to) { return from + (to - from) * percent / 100; };
    return {mix(ground.red(), ink.red()), mix(ground.green(), ink.green()),
            mix(ground.blue(), ink.blue())};
}

/// Between two marks of the time, so that their numbers do not touch.
Time tickAtLeast(Time least) {
    Time tick{std::chrono::milliseconds{10}};
    while (tick < least) {
        // 1, 2, 5, 10 and so on.
        const auto first = std::chrono::duration<double>(tick).count();
        double digit = first;
        while (digit >= 10) {
            digit /= 10;
        }
        while (digit < 0.99) {
            digit *= 10;
        }
        tick = digit > 1.5 && digit < 2.5 ? tick * 5 / 2 : tick * 2;
    }
    return tick;
}

template <typename Kept, typename EndOf>
auto firstThatEndsAfter(const Kept& kept, Time from, EndOf endOf) {
    return std::ranges::lower_bound(kept, from, {}, endOf);
}

} // namespace

ScopePainter::ScopePainter(const KeyTrace& trace, const ScopeRange& range, const QRect& place,
                           const QPalette& palette, const QFontMetrics& font)
    : _trace(trace),
      _range(range),
      _place(place),
      _palette(palette),
      _font(font),
      _pixelTime(std::max(Time{1}, range.span() / std::max(1, place.width()))),
      _firstPixel(range.left() / _pixelTime - (range.left() < Time{0} ? 1 : 0)) {}

int ScopePainter::x(Time at) const {
    const std::int64_t pixel = at / _pixelTime - (at < Time{0} ? 1 : 0) - _firstPixel;
    constexpr std::int64_t outside = 1 << 20;
    return _place.left() + static_cast<int>(std::clamp(pixel, -outside, outside));
}

Time ScopePainter::timeAt(int x) const {
    return (_firstPixel + x - _place.left()) * _pixelTime;
}

QColor ScopePainter::faint(int percent) const {
    return mixed(_palette.color(QPalette::Base), _palette.color(QPalette::Text), percent);
}

void ScopePainter::paint(QPainter& painter) const {
    painter.fillRect(_place, _palette.base());
    painter.setClipRect(_place);
    paintTime(painter);
    paintLetters(painter);
    paintKey(painter);
    paintPtt(painter);
    paintCursors(painter);
}

void ScopePainter::paintTime(QPainter& painter) const {
    painter.setPen(_palette.color(QPalette::Text));
    const QColor line = faint(faintestPercent);
    const Time tick =
        tickAtLeast(_pixelTime * _font.horizontalAdvance(QStringLiteral("00000.00__")));
    const int decimals = tick < std::chrono::milliseconds{100} ? 2 : 1;
    const int bottom = _place.bottom() - margin;
    for (Time at = tick * (std::max(Time{0}, _range.left()) / tick); at <= _range.right();
         at += tick) {
        const int place = x(at);
        painter.fillRect(place, _place.top(), 1, _place.height(), line);
        painter.drawText(place + margin, bottom - _font.descent(),
                         QString::number(std::chrono::duration<double>(at).count(), 'f', decimals));
    }
}

void ScopePainter::paintLetters(QPainter& painter) const {
    painter.setPen(_palette.color(QPalette::Text));
    const int baseline = _place.top() + margin + _font.ascent();
    const auto& letters = _trace.letters();
    int free = _place.left() - _place.width();
    for (auto letter = firstThatEndsAfter(letters, _range.left(),
                                          [](const TraceLetter& each) { return each.stretch.to; });
         letter != letters.end() && letter->stretch.from <= _range.right(); ++letter) {
        const QString text(QLatin1Char(letter->character));
        const int width = _font.horizontalAdvance(text);
        const int left = (x(letter->stretch.from) + x(letter->stretch.to) - width) / 2;
        // Where there is no room for all, some stand for them.
        if (left >= free) {
            painter.drawText(left, baseline, text);
            free = left + width + 1;
        }
    }
}

void ScopePainter::addBar(QList<QRect>& bars, const Row& row, const Stretch& stretch) const {
    const int left = std::max(x(stretch.from), _place.left() - 1);
    const int right = std::min(x(stretch.to), _place.right() + 1);
    if (right >= left) {
        bars.append(QRect(left, row.top, std::max(1, right - left), row.height));
    }
}

void ScopePainter::paintRow(QPainter& painter, const Row& row, const QList<QRect>& bars,
                            const QBrush& brush) const {
    painter.fillRect(_place.left(), row.top + row.height, _place.width(), 1, faint(faintPercent));
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRects(bars);
}

void ScopePainter::paintKey(QPainter& painter) const {
    const int top = _place.top() + 2 * margin + _font.height();
    const int below = 3 * _font.height() + 2 * margin; // PTT with its name, and the time
    const Row row{top, std::max(4, _place.bottom() - top - below)};
    QList<QRect> bars;
    const auto& elements = _trace.elements();
    for (auto element = firstThatEndsAfter(
             elements, _range.left(), [](const TraceElement& each) { return each.stretch.to; });
         element != elements.end() && element->stretch.from <= _range.right(); ++element) {
        if (element->isMark()) {
            addBar(bars, row, element->stretch);
        }
    }
    if (const auto since = _trace.downSince()) {
        addBar(bars, row, {*since, _range.newest()});
    }
    paintRow(painter, row, bars, _palette.text());
}

void ScopePainter::paintPtt(QPainter& painter) const {
    const int height = std::max(3, _font.height() / 3);
    const Row row{_place.bottom() - 2 * margin - _font.height() - height, height};
    QList<QRect> bars;
    const auto& all = _trace.transmissions();
    for (auto each = firstThatEndsAfter(all, _range.left(), &Stretch::to);
         each != all.end() && each->from <= _range.right(); ++each) {
        addBar(bars, row, *each);
    }
    if (const auto since = _trace.onSince()) {
        addBar(bars, row, {*since, _range.newest()});
    }
    paintRow(painter, row, bars, _palette.highlight());
    painter.setPen(_palette.color(QPalette::Text));
    painter.drawText(_place.left() + margin, row.top - margin, ScopeWords::tr("PTT"));
}

void ScopePainter::paintCursors(QPainter& painter) const {
    for (int index = 0; index < ScopeRange::cursorCount; ++index) {
        const auto at = _range.cursor(index);
        if (!at || *at < _range.left() || *at > _range.right()) {
            continue;
        }
        const QColor colour = _palette.color(index == 0 ? QPalette::Highlight : QPalette::Link);
        painter.fillRect(x(*at), _place.top(), 2, _place.height(), colour);
        // By their numbers, so that it takes no eye for colours to tell them.
        const QString name = QString::number(index + 1);
        const int width = _font.horizontalAdvance(name) + 2 * margin;
        const QRect flag(x(*at), _place.bottom() - _font.height(), width, _font.height());
        painter.fillRect(flag, colour);
        painter.setPen(_palette.color(QPalette::HighlightedText));
        painter.drawText(flag, Qt::AlignCenter, name);
    }
}

} // namespace virtualkeyer
