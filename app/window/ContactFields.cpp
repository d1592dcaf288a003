#include "app/window/ContactFields.h"

#include "app/window/HeldMessages.h"
#include "keyer/WinKeyerUsb.h"

#include <QLineEdit>
#include <QSpinBox>

#include <algorithm>

ContactFields::ContactFields(WinKeyerUsb& engine, const HeldMessages& held, QLineEdit& callsign,
                             QSpinBox& number, QObject* parent)
    : QObject(parent), _engine(engine), _held(held), _callsign(callsign), _number(number) {
    QObject::connect(&_callsign, &QLineEdit::textChanged, this, &ContactFields::handOverCallsign);
    QObject::connect(&_engine, &WinKeyerUsb::hisCallsignChanged, this,
                     &ContactFields::followCallsign);
    QObject::connect(&_engine, &WinKeyerUsb::sendingProgressed, this,
                     &ContactFields::beginNextCallsign);
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this,
                     &ContactFields::beginNextCallsign);
    QObject::connect(&_held, &HeldMessages::changed, this, &ContactFields::beginNextCallsign);
    QObject::connect(&_number, &QSpinBox::valueChanged, &_engine, &WinKeyerUsb::setSerialNumber);
    QObject::connect(&_engine, &WinKeyerUsb::serialNumberChanged, this,
                     &ContactFields::followNumber);
    followNumber();
}

void ContactFields::followCallsign() {
    if (!_isNextContacts && _callsign.text() != _engine.hisCallsign()) {
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

void ContactFields::wipeCallsign() {
    goToCallsign();
    if (!_isNextContacts) {
        noteSigns();
        _isNextContacts = isCallsignToBeSent();
    }
    _callsign.clear();
}

void ContactFields::goToNextContact() {
    _engine.incrementSerialNumber(this);
    wipeCallsign();
}

void ContactFields::handOverCallsign() {
    if (!_isNextContacts) {
        _engine.setHisCallsign(_callsign.text());
    }
}

void ContactFields::beginNextCallsign() {
    if (!_isNextContacts) {
        return;
    }
    // What is held comes into the text later; what is typed ahead of a sign moves it, and a stop
    // takes it away.
    if (_held.needsCallsign() || _engine.keyboardBuffer().indexOf(u'~', _lastSign) != _lastSign) {
        noteSigns();
    }
    if (!isCallsignToBeSent()) {
        _isNextContacts = false;
        handOverCallsign();
    }
}

/// What is added behind them is for the next contact.
void ContactFields::noteSigns() {
    _lastSign = _engine.keyboardBuffer().lastIndexOf(u'~');
}

/// A "~" is through with the last letter of its call. Without a keyer none is ever sent.
bool ContactFields::isCallsignToBeSent() const {
    if (!_engine.isConnected()) {
        return false;
    }
    return _held.needsCallsign() || _lastSign >= _engine.inFlightIndex();
}
