#include "app/window/TuneSwitch.h"

#include "keyer/WinKeyerUsb.h"

#include <QAbstractButton>

TuneSwitch::TuneSwitch(WinKeyerUsb& engine, QAbstractButton& button, QObject* parent)
    : QObject(parent), _engine(engine), _button(button) {
    QObject::connect(&_button, &QAbstractButton::toggled, this, [this](bool isOn) {
        if (isOn != (_engine.tuneState() != 0)) {
            _engine.setTuneState(isOn ? 1 : 0);
            _engine.tune(&_button);
        }
    });
    QObject::connect(&_engine, &WinKeyerUsb::tuneStateChanged, this,
                     [this] { _button.setChecked(_engine.tuneState() != 0); });
    QObject::connect(&_engine, &WinKeyerUsb::messageSendingStopped, this, &TuneSwitch::letGo);
    QObject::connect(&_engine, &WinKeyerUsb::silenced, this, [this] { _engine.setTuneState(0); });
    QObject::connect(&_engine, &WinKeyerUsb::willLoadMemory, this, &TuneSwitch::letGo);
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this, &TuneSwitch::followLink);
    QObject::connect(&_engine, &WinKeyerUsb::isLoadingMemoryChanged, this,
                     &TuneSwitch::followLink);
    _button.setChecked(_engine.tuneState() != 0);
    followLink();
}

void TuneSwitch::letGo() {
    if (_engine.tuneState() != 0) {
        _engine.setTuneState(0);
        _engine.tune(&_button);
    }
}

void TuneSwitch::followLink() {
    const bool isConnected = _engine.activity() != KeyerActivity::NotConnected;
    if (!isConnected) {
        letGo();
    }
    const bool isLoading = _engine.isLoadingMemory();
    _button.setEnabled(isConnected && !isLoading);
    _button.setToolTip(!isConnected ? tr("Tune needs a keyer, and none is connected")
                       : isLoading  ? tr("The keyer's memory is being loaded")
                                    : tr("Key the transmitter steadily (Ctrl+T)"));
}
