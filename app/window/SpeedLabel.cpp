#include "app/window/SpeedLabel.h"

#include "keyer/ChosenSpeed.h"
#include "keyer/WinKeyerUsb.h"

#include <QMouseEvent>

void SpeedLabel::follow(const WinKeyerUsb& engine, ChosenSpeed& speed, QLabel& source) {
    _engine = &engine;
    _speed = &speed;
    _source = &source;
    QObject::connect(_engine, &WinKeyerUsb::speedStringChanged, this, &SpeedLabel::show);
    QObject::connect(_engine, &WinKeyerUsb::hscwStateChanged, this, &SpeedLabel::show);
    QObject::connect(_engine, &WinKeyerUsb::highSpeedChanged, this, &SpeedLabel::show);
    QObject::connect(_speed, &ChosenSpeed::changed, this, &SpeedLabel::show);
    show();
}

/// What the keyer was told, which counts hundreds of letters a minute; empty at any other speed.
QString SpeedLabel::highSpeed() const {
    const auto rate = _engine->highSpeed();
    return _engine->hscwState() != 0 && rate ? tr("%1 LPM").arg(*rate * 100) : QString();
}

void SpeedLabel::show() {
    const auto chosen = _speed->wpm();
    const auto knobs = _engine->speedString();
    const auto speed = chosen ? tr("%1 WPM").arg(*chosen) : knobs.isNull() ? tr("– WPM") : knobs;
    const auto high = highSpeed();
    setText(high.isEmpty() ? speed : high);
    const bool isChosen = chosen && high.isEmpty();
    _source->setText(isChosen ? tr("set here") : high.isEmpty() ? tr("knob") : QString());
    // A screen reader reads the label's name in place of its text.
    setAccessibleDescription(isChosen ? tr("%1, set here").arg(text()) : text());
}

void SpeedLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        _speed->backToKnob();
    }
    QLabel::mouseReleaseEvent(event);
}
