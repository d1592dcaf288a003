#include "preferences/MemoryGauge.h"

#include <QPainter>

MemoryGauge::MemoryGauge(QWidget* parent) : QWidget(parent) {
    setAccessibleName(tr("Keyer memory"));
    setShares({});
}

void MemoryGauge::setShares(const MemoryUse::Shares& shares) {
    _shares = shares;
    setAccessibleDescription(text());
    update();
}

QString MemoryGauge::text() const {
    return tr("%1 of %2 bytes used").arg(_shares.usedBytes()).arg(KeyerMemory::messageAreaSize);
}

QSize MemoryGauge::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) * 2, fontMetrics().height() * 2};
}

void MemoryGauge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawText(rect(), Qt::AlignCenter, text());
}
