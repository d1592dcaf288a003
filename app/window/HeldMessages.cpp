#include "app/window/HeldMessages.h"

#include "app/keyboard/KeyboardView.h"
#include "keyer/Action.h"
#include "keyer/MessageSettings.h"
#include "keyer/TextSourceScope.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/SettingsStore.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace {

/// Adds what is apart from what is ahead of it by a space at least.
void addWords(QString& all, const QString& words) {
    const bool isApart = all.isEmpty() || all.endsWith(u' ') || words.startsWith(u' ');
    all += isApart || words.isEmpty() ? words : u' ' + words;
}

} // namespace

HeldMessages::HeldMessages(WinKeyerUsb& engine, KeyboardView& view, QObject* parent)
    : QObject(parent), _engine(engine), _view(view) {
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this, &HeldMessages::followKeyer);
    QObject::connect(&_engine, &WinKeyerUsb::messageSendingStopped, this, &HeldMessages::drop);
    QObject::connect(&_view, &KeyboardView::waitingCountChanged, this, &HeldMessages::followView);
}

void HeldMessages::send(const QObject* control) {
    // Behind something that waits a message waits, too, or they would change places.
    if (isEmpty() && _engine.activity() != KeyerActivity::BreakIn) {
        _engine.sendMessage(control);
    } else if (!isHeld(control)) {
        _waiting.append(Waiting{control, messageOf(*control), _view.endHeldWord()});
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

bool HeldMessages::isEmpty() const {
    return _waiting.isEmpty() && !_view.isHoldingText();
}

void HeldMessages::bindCallsign(const QString& call) {
    const auto text = _view.heldText();
    for (auto& each : _waiting) {
        each.message.replace(u'~', call);
        each.textAhead +=
            text.first(std::min(each.textAhead, text.size())).count(u'~') * (call.size() - 1);
    }
    _view.putCallIntoHeldText(call);
    _view.setHeldElsewhere(waitingCount());
}

void HeldMessages::followView() {
    if (_isHandingOver) {
        return; // there is more to come
    }
    _view.setHeldElsewhere(waitingCount());
    if (std::exchange(_isViewHolding, _view.isHoldingText()) != _view.isHoldingText()) {
        Q_EMIT changed();
    }
}

void HeldMessages::followKeyer() {
    if (_engine.activity() == KeyerActivity::NotConnected) {
        drop();
    }
    if (!isEmpty() && _engine.activity() == KeyerActivity::Idle && !_isHandingOver) {
        handOver();
        _isViewHolding = _view.isHoldingText();
        announce();
    }
}

void HeldMessages::handOver() {
    const QScopedValueRollback guard(_isHandingOver, true);
    _view.setHeldElsewhere(0); // nothing is in front of the first
    qsizetype handedOver = 0;
    while (!_waiting.isEmpty()) { // a stop meanwhile drops the rest
        const auto next = _waiting.takeFirst();
        if (next.textAhead > handedOver) {
            _view.handOverHeldText(next.textAhead - handedOver);
            handedOver = next.textAhead;
        }
        const TextSourceScope source(_engine,
                                     {TextSource::Kind::Message, Action::tag(next.control) + 1});
        _engine.appendMessage(next.message);
    }
    if (_view.isHoldingText()) {
        _view.handOverHeldText();
    }
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
    if (_waiting.isEmpty()) {
        return 0;
    }
    const auto text = _view.heldText();
    QString all;
    qsizetype ahead = 0;
    for (const auto& each : _waiting) {
        const auto end = std::clamp(each.textAhead, ahead, std::max(ahead, text.size()));
        addWords(all, text.mid(ahead, end - ahead));
        addWords(all, each.message);
        ahead = end;
    }
    addWords(all, text.mid(ahead));
    return all.size() - text.size();
}
