#include "app/window/HeldMessages.h"

#include "app/keyboard/KeyboardView.h"
#include "keyer/Action.h"
#include "keyer/MessageSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/SettingsStore.h"

#include <algorithm>
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
    } else if (!isHeld(control)) {
        _waiting.append(Waiting{control, messageOf(*control)});
        Q_EMIT changed();
    }
}

QString HeldMessages::messageOf(const QObject& control) const {
    const auto& message = messageSettings.at(static_cast<std::size_t>(Action::tag(&control)));
    return _engine.substituteTokens(
        SettingsStore::standardUserDefaults().stringForKey(message.textKey));
}

bool HeldMessages::isHeld(const QObject* control) const {
    return std::any_of(_waiting.begin(), _waiting.end(),
                       [control](const Waiting& each) { return each.control == control; });
}

bool HeldMessages::needsCallsign() const {
    return _view.heldText().contains(u'~') ||
           std::any_of(_waiting.begin(), _waiting.end(),
                       [](const Waiting& each) { return each.message.contains(u'~'); });
}

void HeldMessages::followView() {
    if (_view.isHoldingText() == isHeld(&_view)) {
        return;
    }
    if (_view.isHoldingText()) {
        _waiting.append(Waiting{&_view, {}});
    } else {
        _waiting.removeIf([this](const Waiting& each) { return each.control == &_view; });
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
    for (const auto& [control, message] : std::exchange(_waiting, {})) {
        if (control == &_view) {
            _view.handOverHeldText();
        } else {
            _engine.appendMessage(message);
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
