#include "app/window/ContactFields.h"

#include "app/window/HeldMessages.h"
#include "keyer/WinKeyerUsb.h"

#include <QLineEdit>
#include <QSpinBox>

#include <algorithm>

ContactFields::ContactFields(WinKeyerUsb& engine, const HeldMessages& held, QLineEdit& callsign,
                             QSpinBox& number, QObject* parent)
    : QObject(parent), _engine(engine), _held(held), _callsign(callsign), _number(number) {
    QObject::connect(&_callsign, &QLineEdit::textChanged, &_engine, &WinKeyerUsb::setHisCallsign);
    QObject::connect(&_callsign, &QLineEdit::textChanged, this, [this] { _isWipeDue = false; });
    QObject::connect(&_engine, &WinKeyerUsb::hisCallsignChanged, this,
                     &ContactFields::followCallsign);
    QObject::connect(&_engine, &WinKeyerUsb::sendingProgressed, this, &ContactFields::wipeIfDue);
    QObject::connect(&_held, &HeldMessages::changed, this, &ContactFields::wipeIfDue);
    QObject::connect(&_number, &QSpinBox::valueChanged, &_engine, &WinKeyerUsb::setSerialNumber);
    QObject::connect(&_engine, &WinKeyerUsb::serialNumberChanged, this,
                     &ContactFields::followNumber);
    followNumber();
}

void ContactFields::followCallsign() {
    if (_callsign.text() != _engine.hisCallsign()) {
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
    _isWipeDue = true;
    wipeIfDue();
}

void ContactFields::goToNextContact() {
    _engine.incrementSerialNumber(this);
    wipeCallsign();
}

void ContactFields::wipeIfDue() {
    if (_isWipeDue && !isCallsignToBeSent()) {
        _isWipeDue = false;
        _callsign.clear();
    }
}

bool ContactFields::isCallsignToBeSent() const {
    return _held.needsCallsign() ||
           _engine.keyboardBuffer().indexOf(u'~', _engine.inFlightIndex()) >= 0;
}
