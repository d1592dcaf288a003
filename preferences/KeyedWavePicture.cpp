#include "preferences/KeyedWavePicture.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>

using KeyedWave::KeyDown;
using KeyedWave::Milliseconds;

namespace {

/// The plain wave stands out behind the keyed one.
constexpr double keyedHeight = 0.70;
constexpr double plainHeight = 0.97;
constexpr double tickLength = 4;

QColor faint(const QPalette& palette, float alpha) {
    auto color = palette.color(QPalette::WindowText);
    color.setAlphaF(alpha);
    return color;
}

Milliseconds endOf(const std::vector<KeyDown>& wave) {
    return wave.empty() ? Milliseconds(0) : wave.back().end;
}

} // namespace

KeyedWavePicture::KeyedWavePicture(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void KeyedWavePicture::setWord(const QString& word, const KeyedWave::Timing& timing) {
    _keyed = KeyedWave::keyDownsOf(word, timing);
    _plain = KeyedWave::keyDownsOf(word, {.wpm = timing.wpm});
    _dit = KeyedWave::ditLength(timing.wpm);
    _end = std::max({endOf(_keyed), endOf(_plain), _dit});
    update();
}

QSize KeyedWavePicture::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 70, fontMetrics().height() * 7};
}

QSize KeyedWavePicture::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 30, fontMetrics().height() * 5};
}

/// Where the waves are painted: above the scale, and with room for half a number at either end.
QRectF KeyedWavePicture::waves() const {
    const double margin = fontMetrics().horizontalAdvance(tr("%1 ms").arg(0)) / 2.0;
    return QRectF(rect()).adjusted(margin, 1, -margin, -tickLength - fontMetrics().height());
}

double KeyedWavePicture::xOf(Milliseconds time) const {
    return waves().left() + waves().width() * (time / _end);
}

void KeyedWavePicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(waves(), palette().base());
    paintGrid(painter);
    paintWave(painter, _plain, plainHeight, faint(palette(), 0.22F));
    paintWave(painter, _keyed, keyedHeight, palette().color(QPalette::Highlight));
    paintName(painter, _plain, plainHeight, keyedHeight, tr("plain"), QPalette::WindowText);
    paintName(painter, _keyed, keyedHeight, 0, tr("as set"), QPalette::HighlightedText);
    paintScale(painter);
}

void KeyedWavePicture::paintGrid(QPainter& painter) const {
    painter.setPen(QPen(faint(palette(), 0.3F), 1, Qt::DotLine));
    for (auto time = Milliseconds(0); time <= _end; time += _dit) {
        const auto x = xOf(time);
        painter.drawLine(QPointF(x, waves().top()), QPointF(x, waves().bottom()));
    }
}

void KeyedWavePicture::paintWave(QPainter& painter, const std::vector<KeyDown>& wave, double height,
                                 const QColor& color) const {
    const auto area = waves();
    for (const auto& keyDown : wave) {
        const QRectF element(QPointF(xOf(keyDown.begin), area.bottom() - area.height() * height),
                             QPointF(xOf(keyDown.end), area.bottom()));
        painter.fillRect(element, color);
    }
}

/// Writes into the longest element, between two heights, what the wave is; not where it is narrow.
void KeyedWavePicture::paintName(QPainter& painter, const std::vector<KeyDown>& wave, double top,
                                 double bottom, const QString& name,
                                 QPalette::ColorRole role) const {
    const auto length = [](const KeyDown& each) { return each.end - each.begin; };
    const auto longest = std::ranges::max_element(wave, {}, length);
    if (longest == wave.end()) {
        return;
    }
    const auto area = waves();
    const QRectF place(QPointF(xOf(longest->begin), area.bottom() - area.height() * top),
                       QPointF(xOf(longest->end), area.bottom() - area.height() * bottom));
    const auto size = fontMetrics().size(Qt::TextSingleLine, name);
    if (size.width() <= place.width() && size.height() <= place.height()) {
        painter.setPen(palette().color(role));
        painter.drawText(place, Qt::AlignCenter, name);
    }
}

void KeyedWavePicture::paintScale(QPainter& painter) const {
    painter.setPen(palette().color(QPalette::WindowText));
    const auto bottom = waves().bottom();
    painter.drawLine(QPointF(waves().left(), bottom), QPointF(waves().right(), bottom));

    const auto widest = fontMetrics().horizontalAdvance(tr("%1 ms").arg(locale().toString(10000)));
    const auto ticks = std::max(1, static_cast<int>(waves().width() / (1.5 * widest)));
    const auto step = KeyedWave::roundStep(_end, ticks);
    for (auto time = Milliseconds(0); time <= _end; time += step) {
        const auto x = xOf(time);
        painter.drawLine(QPointF(x, bottom), QPointF(x, bottom + tickLength));
        const auto number = tr("%1 ms").arg(locale().toString(time.count(), 'g', 6));
        const QRectF place(x - widest, bottom + tickLength, 2 * widest, fontMetrics().height());
        painter.drawText(place, Qt::AlignHCenter | Qt::AlignTop | Qt::TextDontClip, number);
    }
}
