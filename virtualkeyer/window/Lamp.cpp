#include "virtualkeyer/window/Lamp.h"

#include <QPainter>

namespace virtualkeyer {

namespace {

constexpr int gap = 5;

} // namespace

Lamp::Lamp(const QString& name, const QColor& colour, QWidget* parent)
    : QWidget(parent), _name(name), _colour(colour) {
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    say();
}

void Lamp::setOn(bool isOn) {
    if (isOn == _isOn) {
        return;
    }
    _isOn = isOn;
    say();
    update();
}

QSize Lamp::sizeHint() const {
    return {diameter() + gap + fontMetrics().horizontalAdvance(_name) + 2,
            fontMetrics().height() + 4};
}

void Lamp::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF disc(0, 0, diameter(), diameter());
    disc.moveCenter({diameter() / 2.0 + 1, height() / 2.0});
    // A lamp that is off is a ring, so that it takes no eye for colours to tell.
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1));
    painter.setBrush(_isOn ? QBrush(_colour) : Qt::NoBrush);
    painter.drawEllipse(disc.adjusted(0.5, 0.5, -0.5, -0.5));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect().adjusted(diameter() + gap, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     _name);
}

void Lamp::say() {
    setAccessibleName((_isOn ? tr("%1: on") : tr("%1: off")).arg(_name));
}

int Lamp::diameter() const {
    return fontMetrics().ascent();
}

} // namespace virtualkeyer
