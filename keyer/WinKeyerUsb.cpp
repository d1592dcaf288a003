#include "keyer/WinKeyerUsb.h"

#include "keyer/MorseKeyboardCharacterSet.h"
#include "platform/Platform.h"

#include <QPointer>

namespace {

/// Stores `value` and tells whether that changed anything.
template <typename Value>
bool replace(Value& stored, const Value& value) {
    if (stored == value) {
        return false;
    }
    stored = value;
    return true;
}

/// nil is not the empty text, though the two compare equal.
bool replace(QString& stored, const QString& value) {
    if (stored == value && stored.isNull() == value.isNull()) {
        return false;
    }
    stored = value;
    return true;
}

} // namespace

WinKeyerUsb& WinKeyerUsb::sharedInstance() {
    static QPointer<WinKeyerUsb> shared;
    if (shared.isNull()) {
        shared = new WinKeyerUsb;
        shared->setParent(&Platform::current());
    }
    return *shared;
}

WinKeyerUsb::WinKeyerUsb() = default;

WinKeyerUsb::~WinKeyerUsb() = default;

const CharacterSet& WinKeyerUsb::morseKeyboardCharacterSet() {
    return morseKeyboardCharacters;
}

void WinKeyerUsb::setSpeedString(const QString& speed) {
    if (replace(_speedString, speed)) {
        Q_EMIT speedStringChanged();
    }
}

void WinKeyerUsb::setVersionString(const QString& version) {
    if (replace(_versionString, version)) {
        Q_EMIT versionStringChanged();
    }
}

void WinKeyerUsb::setKeyboardBuffer(const QString& text) {
    if (replace(_keyboardBuffer, text)) {
        Q_EMIT keyboardBufferChanged();
    }
}

void WinKeyerUsb::setHisCallsign(const QString& callsign) {
    if (replace(_hisCallsign, callsign)) {
        Q_EMIT hisCallsignChanged();
    }
}

void WinKeyerUsb::setSerialNumber(qint64 number) {
    if (replace(_serialNumber, number)) {
        Q_EMIT serialNumberChanged();
    }
}

void WinKeyerUsb::setTuneState(int state) {
    if (replace(_tuneState, state)) {
        Q_EMIT tuneStateChanged();
    }
}

void WinKeyerUsb::setHscwState(int state) {
    if (replace(_hscwState, state)) {
        Q_EMIT hscwStateChanged();
    }
}

void WinKeyerUsb::setBeaconState(int state) {
    if (replace(_beaconState, state)) {
        Q_EMIT beaconStateChanged();
    }
}
