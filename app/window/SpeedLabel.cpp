#include "app/window/SpeedLabel.h"

#include "keyer/ChosenSpeed.h"
#include "keyer/KeyerSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/SettingsStore.h"

#include <QMouseEvent>

void SpeedLabel::follow(const WinKeyerUsb& engine, ChosenSpeed& speed, QLabel& source) {
    _engine = &engine;
    _speed = &speed;
    _source = &source;
    QObject::connect(_engine, &WinKeyerUsb::speedStringChanged, this, &SpeedLabel::show);
    QObject::connect(_engine, &WinKeyerUsb::hscwStateChanged, this, &SpeedLabel::noteHighSpeed);
    QObject::connect(_speed, &ChosenSpeed::changed, this, &SpeedLabel::show);
    show();
}

/// As the keyer was told: in hundreds of letters a minute.
void SpeedLabel::noteHighSpeed() {
    const auto rate = SettingsStore::standardUserDefaults().integerForKey(WKHSCWSpeed) / 100 * 100;
    _highSpeed = _engine->hscwState() != 0 ? tr("%1 LPM").arg(rate) : QString();
    show();
}

void SpeedLabel::show() {
    const auto chosen = _speed->wpm();
    const auto knobs = _engine->speedString();
    const auto speed = chosen ? tr("%1 WPM").arg(*chosen) : knobs.isNull() ? tr("– WPM") : knobs;
    setText(_highSpeed.isEmpty() ? speed : _highSpeed);
    const bool isChosen = chosen && _highSpeed.isEmpty();
    _source->setText(isChosen ? tr("set here") : _highSpeed.isEmpty() ? tr("knob") : QString());
    // A screen reader reads the label's name in place of its text.
    setAccessibleDescription(isChosen ? tr("%1, set here").arg(text()) : text());
}

void SpeedLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        _speed->backToKnob();
    }
    QLabel::mouseReleaseEvent(event);
}
