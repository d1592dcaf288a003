#include "app/window/HeldMessages.h"

#include "app/keyboard/KeyboardView.h"
#include "keyer/WinKeyerUsb.h"

#include <utility>

HeldMessages::HeldMessages(WinKeyerUsb& engine, KeyboardView& view, QObject* parent)
    : QObject(parent), _engine(engine), _view(view) {
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this, &HeldMessages::followKeyer);
    QObject::connect(&_engine, &WinKeyerUsb::messageSendingStopped, this, &HeldMessages::drop);
    QObject::connect(&_view, &KeyboardView::waitingCountChanged, this, &HeldMessages::followView);
}

void HeldMessages::send(const QObject* control) {
    // Behind something that waits a message waits, too, or they would change places.
    if (_waiting.isEmpty() && _engine.activity() != KeyerActivity::BreakIn) {
        _engine.sendMessage(control);
    } else if (!_waiting.contains(control)) {
        _waiting.append(control);
        Q_EMIT changed();
    }
}

void HeldMessages::followView() {
    if (_view.isHoldingText() == _waiting.contains(&_view)) {
        return;
    }
    if (_view.isHoldingText()) {
        _waiting.append(&_view);
    } else {
        _waiting.removeOne(&_view);
    }
    Q_EMIT changed();
}

void HeldMessages::followKeyer() {
    if (_engine.activity() == KeyerActivity::NotConnected) {
        drop();
    }
    if (_waiting.isEmpty() || _engine.activity() != KeyerActivity::Idle) {
        return;
    }
    for (const auto* each : std::exchange(_waiting, {})) {
        if (each == &_view) {
            _view.handOverHeldText();
        } else {
            _engine.sendMessage(each);
        }
    }
    Q_EMIT changed();
}

void HeldMessages::drop() {
    _view.dropHeldText();
    if (!std::exchange(_waiting, {}).isEmpty()) {
        Q_EMIT changed();
    }
}
