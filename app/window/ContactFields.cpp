#include "app/window/ContactFields.h"

#include "app/keyboard/TextChange.h"
#include "app/window/HeldMessages.h"
#include "keyer/WinKeyerUsb.h"

#include <QEvent>
#include <QLineEdit>
#include <QSpinBox>

#include <algorithm>

ContactFields::ContactFields(WinKeyerUsb& engine, HeldMessages& held, QLineEdit& callsign,
                             QSpinBox& number, QObject* parent)
    : QObject(parent), _engine(engine), _held(held), _callsign(callsign), _number(number) {
    QObject::connect(&_callsign, &QLineEdit::textChanged, this, &ContactFields::handOverCallsign);
    QObject::connect(&_engine, &WinKeyerUsb::hisCallsignChanged, this,
                     &ContactFields::followCallsign);
    // Ahead of the next "~", which may follow at once.
    QObject::connect(&_engine, &WinKeyerUsb::callsignSent, this, &ContactFields::followSending);
    QObject::connect(&_engine, &WinKeyerUsb::sendingProgressed, this,
                     &ContactFields::followSending);
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this, &ContactFields::followSending);
    QObject::connect(&_engine, &WinKeyerUsb::keyboardBufferChanged, this,
                     &ContactFields::followText);
    QObject::connect(&_number, &QSpinBox::valueChanged, &_engine, &WinKeyerUsb::setSerialNumber);
    QObject::connect(&_engine, &WinKeyerUsb::serialNumberChanged, this,
                     &ContactFields::followNumber);
    followNumber();
    _number.installEventFilter(this);
}

/// A wheel that turns over the number on its way elsewhere is not meant for it.
bool ContactFields::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &_number && event->type() == QEvent::Wheel && !_number.hasFocus()) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void ContactFields::followCallsign() {
    if (_former.isEmpty() && _callsign.text() != _engine.hisCallsign()) {
        _callsign.setText(_engine.hisCallsign());
    }
}

void ContactFields::followNumber() {
    const auto number = static_cast<int>(_engine.serialNumber());
    _number.setMaximum(std::max(_number.maximum(), number));
    _number.setValue(number);
}

/// By itself the focus selects all only when it was elsewhere before.
void ContactFields::goToCallsign() {
    _callsign.setFocus(Qt::ShortcutFocusReason);
    _callsign.selectAll();
}

/// It is still the same contact. A call that is being keyed is keyed to its end, so that none goes
/// on the air that is half of the one, half of the other.
void ContactFields::wipeCallsign() {
    keepCallsign(_engine.outputBufferIndex());
    emptyCallsign();
}

void ContactFields::goToNextContact() {
    _engine.incrementSerialNumber(this);
    _held.bindCallsign(_callsign.text());
    keepCallsign(_engine.keyboardBuffer().size());
    emptyCallsign();
}

void ContactFields::emptyCallsign() {
    goToCallsign();
    _callsign.clear();
}

/// For the signs ahead of `end` that were put into the text since the contact before. Without a
/// keyer none of them is ever sent.
void ContactFields::keepCallsign(qsizetype end) {
    const auto from = _former.isEmpty() ? _engine.inFlightIndex() : _former.constLast().end;
    const auto lastSign = _engine.keyboardBuffer().left(end).lastIndexOf(u'~');
    if (_engine.isConnected() && lastSign >= from) {
        _text = _engine.keyboardBuffer();
        _former.append({_callsign.text(), lastSign + 1});
    }
}

void ContactFields::handOverCallsign() {
    if (_former.isEmpty()) {
        _engine.setHisCallsign(_callsign.text());
    }
}

/// A "~" is through with the last letter of its call.
bool ContactFields::isThrough() const {
    return !_engine.isConnected() || _engine.inFlightIndex() >= _former.constFirst().end;
}

void ContactFields::followSending() {
    const auto before = _former.size();
    while (!_former.isEmpty() && isThrough()) {
        _former.removeFirst();
    }
    if (_former.size() != before) {
        _engine.setHisCallsign(_former.isEmpty() ? _callsign.text() : _former.constFirst().call);
    }
}

/// What is typed ahead of a sign moves it, and a stop takes it away.
void ContactFields::followText() {
    if (_former.isEmpty()) {
        return;
    }
    const auto change = TextChange::between(_text, _engine.keyboardBuffer());
    for (auto& each : _former) {
        each.end = change.movedEnd(each.end);
    }
    _text = _engine.keyboardBuffer();
}
