#include "app/window/HeldMessages.h"

#include "app/keyboard/KeyboardView.h"
#include "keyer/Action.h"
#include "keyer/MessageSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/SettingsStore.h"

#include <algorithm>
#include <numeric>
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
        announce();
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
    announce();
}

void HeldMessages::followKeyer() {
    if (_engine.activity() == KeyerActivity::NotConnected) {
        drop();
    }
    if (_waiting.isEmpty() || _engine.activity() != KeyerActivity::Idle) {
        return;
    }
    while (!_waiting.isEmpty()) {
        _view.setHeldElsewhere(0); // nothing is in front of the next one
        const auto next = _waiting.takeFirst();
        if (next.control == &_view) {
            _view.handOverHeldText();
        } else {
            _engine.appendMessage(next.message);
        }
    }
    announce();
}

void HeldMessages::drop() {
    const auto held = std::exchange(_waiting, {});
    _view.dropHeldText();
    if (!held.isEmpty()) {
        announce();
    }
}

void HeldMessages::announce() {
    _view.setHeldElsewhere(waitingCount());
    Q_EMIT changed();
}

qsizetype HeldMessages::waitingCount() const {
    const auto spaces = std::max<qsizetype>(_waiting.size() - 1, 0);
    return std::accumulate(
        _waiting.begin(), _waiting.end(), spaces,
        [](qsizetype sum, const Waiting& each) { return sum + each.message.size(); });
}
