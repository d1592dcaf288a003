#include "virtualkeyer/window/LampRow.h"

#include <QHBoxLayout>

namespace virtualkeyer {

namespace {

constexpr std::uint8_t xoffBit = 0x01;
constexpr std::uint8_t breakInBit = 0x02;
constexpr std::uint8_t busyBit = 0x04;
constexpr std::uint8_t waitBit = 0x10;

// Bright on a light ground as on a dark one.
constexpr QColor red(0xE5, 0x39, 0x35);
constexpr QColor amber(0xF9, 0xA8, 0x25);
constexpr QColor green(0x2E, 0xA0, 0x43);

} // namespace

LampRow::LampRow(QWidget* parent)
    : QWidget(parent),
      _key(new Lamp(tr("Key"), red)),
      _ptt(new Lamp(tr("PTT"), red)),
      _busy(new Lamp(tr("Busy"), green)),
      _breakIn(new Lamp(tr("Break-in"), amber)),
      _xoff(new Lamp(tr("XOFF"), amber)),
      _wait(new Lamp(tr("Wait"), green)) {
    _key->setToolTip(tr("The transmitter would be keyed. Nothing here is on the air."));
    _ptt->setToolTip(tr("The transmitter would be switched on."));
    _busy->setToolTip(tr("The host's text, the paddle or the tune command keys."));
    _breakIn->setToolTip(tr("The paddle has the key, and the host's text has gone."));
    _xoff->setToolTip(tr("The buffer is nearly full; the host has to wait."));
    _wait->setToolTip(tr("A wait or a key-down of the host's, with a time of its own, or a tune."));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(14);
    for (Lamp* lamp : {_key, _ptt, _busy, _breakIn, _xoff, _wait}) {
        layout->addWidget(lamp);
    }
    layout->addStretch();
}

void LampRow::show(const KeyerState& state) {
    const auto has = [&state](std::uint8_t bit) { return (state.status & bit) != 0; };
    _key->setOn(state.isKeyDown);
    _ptt->setOn(state.isPttOn);
    _busy->setOn(has(busyBit));
    _breakIn->setOn(has(breakInBit));
    _xoff->setOn(has(xoffBit));
    _wait->setOn(has(waitBit));
}

} // namespace virtualkeyer
