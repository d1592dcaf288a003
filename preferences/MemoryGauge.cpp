#include "preferences/MemoryGauge.h"

#include <QLocale>
#include <QPainter>
#include <QStringList>
#include <QStyle>

namespace {

constexpr int spacing = 3;

/// Two neighbours of one colour would look like one message.
QColor segmentColor(const QPalette& palette, bool isDarker) {
    const auto color = palette.color(QPalette::Highlight);
    return isDarker ? color.darker(130) : color;
}

} // namespace

MemoryGauge::MemoryGauge(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Keyer memory"));
    setToolTip(tr("How the six messages share the keyer's memory, a byte a character. One byte "
                  "always stays free."));
    setMemory({});
}

void MemoryGauge::setMemory(const KeyerMemory::Layout& memory) {
    _memory = memory;
    setAccessibleDescription(text());
    update();
}

QString MemoryGauge::text() const {
    const auto figures =
        tr("%1 of %2 bytes used").arg(_memory.usedBytes()).arg(KeyerMemory::messageAreaSize);
    QStringList leftOut;
    for (std::size_t i = 0; i < _memory.messages.size(); ++i) {
        if (_memory.messages[i].isLeftOut()) {
            leftOut.append(locale().toString(static_cast<int>(i) + 1));
        }
    }
    return leftOut.isEmpty() ? figures
                             : tr("%1; left out: %2").arg(figures, leftOut.join(tr(", ")));
}

QSize MemoryGauge::sizeHint() const {
    const auto line = fontMetrics().height();
    return {fontMetrics().horizontalAdvance(text()), 2 * line + spacing};
}

QRect MemoryGauge::bar() const {
    return {0, 0, width(), fontMetrics().height()};
}

void MemoryGauge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(bar(), palette().base());
    paintSegments(painter);
    auto outline = palette().color(QPalette::WindowText);
    outline.setAlphaF(0.5F);
    painter.setPen(outline);
    painter.drawRect(bar().adjusted(0, 0, -1, -1));

    painter.setPen(palette().color(QPalette::WindowText));
    const auto below = rect().adjusted(0, bar().height() + spacing, 0, 0);
    painter.drawText(below, Qt::AlignLeading | Qt::AlignTop, text());
}

void MemoryGauge::paintSegments(QPainter& painter) const {
    const auto inside = bar().adjusted(1, 1, -1, -1);
    const auto left = [&inside](int bytes) {
        return inside.left() + inside.width() * bytes / KeyerMemory::messageAreaSize;
    };
    int begin = 0;
    bool isDarker = false;
    for (std::size_t i = 0; i < _memory.messages.size(); ++i) {
        const int end = begin + _memory.messages[i].bytes();
        if (end == begin) {
            continue;
        }
        const QRect place(left(begin), inside.top(), left(end) - left(begin), inside.height());
        const auto segment = QStyle::visualRect(layoutDirection(), inside, place);
        painter.fillRect(segment, segmentColor(palette(), isDarker));
        const auto number = locale().toString(static_cast<int>(i) + 1);
        if (segment.width() > fontMetrics().horizontalAdvance(number)) {
            painter.setPen(palette().color(QPalette::HighlightedText));
            painter.drawText(segment, Qt::AlignCenter, number);
        }
        begin = end;
        isDarker = !isDarker;
    }
}
