#include "app/window/TuneSwitch.h"

#include "app/window/EngineSwitch.h"
#include "keyer/ReceivedByte.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"

#include <QAbstractButton>

namespace {

/// What the keyer told before it was told to tune has arrived by then.
constexpr Clock::Duration longestReport = std::chrono::milliseconds(250);

} // namespace

TuneSwitch::TuneSwitch(WinKeyerUsb& engine, QAbstractButton& button, QObject* parent)
    : QObject(parent), _engine(engine), _button(button), _toolTip(button.toolTip()) {
    QObject::connect(&_engine, &WinKeyerUsb::tuneStateChanged, this, &TuneSwitch::noteBegin);
    QObject::connect(&_engine, &WinKeyerUsb::willSend, this, &TuneSwitch::letGo);
    QObject::connect(&_engine, &WinKeyerUsb::statusReceived, this, &TuneSwitch::followStatus);
    QObject::connect(&_engine, &WinKeyerUsb::messageSendingStopped, this, &TuneSwitch::letGo);
    QObject::connect(&_engine, &WinKeyerUsb::silenced, this, [this] { _engine.setTuneState(0); });
    QObject::connect(&_engine, &WinKeyerUsb::willLoadMemory, this, &TuneSwitch::letGo);
    // One that was greeted again may have started anew, its key up.
    QObject::connect(&_engine, &WinKeyerUsb::greeted, this, &TuneSwitch::letGo);
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this, &TuneSwitch::followLink);
    QObject::connect(&_engine, &WinKeyerUsb::isLoadingMemoryChanged, this, &TuneSwitch::followLink);
    new EngineSwitch(
        _engine, _button, {&WinKeyerUsb::tuneState, &WinKeyerUsb::tuneStateChanged},
        [this](bool isOn) {
            if (isOn) {
                keyDown();
            } else {
                letGo();
            }
        },
        this);
    noteBegin();
    followLink();
}

void TuneSwitch::noteBegin() {
    _since = Platform::current().clock().now();
    _isReported = false;
}

void TuneSwitch::keyDown() {
    if (_engine.isLoadingMemory()) {
        return; // key up would queue behind it
    }
    if (_engine.isSending()) {
        _engine.stopMessageSending(&_button);
    }
    _engine.setTuneState(1);
    _engine.tune(&_button);
}

void TuneSwitch::letGo() {
    if (_engine.tuneState() != 0) {
        _engine.setTuneState(0);
        _engine.keyUp();
    }
}

/// That the keyer is idle may have been on its way already when tune was switched on. The key up
/// that is written in any case does nothing to a keyer whose key is up.
void TuneSwitch::followStatus(std::uint8_t status) {
    const bool isIdle = (status & KeyerStatus::anything) == 0;
    const auto age = Platform::current().clock().now() - _since;
    const bool isEnd = isIdle && (_isReported || age > longestReport);
    _isReported = _isReported || !isIdle;
    if (isEnd || (status & KeyerStatus::breakIn) != 0) {
        letGo();
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
                                    : _toolTip);
}
