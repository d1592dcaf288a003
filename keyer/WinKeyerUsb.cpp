#include "keyer/WinKeyerUsb.h"

#include "keyer/MorseKeyboardCharacterSet.h"
#include "keyer/Replace.h"
#include "platform/Platform.h"

#include <QPointer>

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

QString WinKeyerUsb::speedString() const {
    return _speedOfPot ? tr("%1 WPM").arg(*_speedOfPot) : QString();
}

void WinKeyerUsb::setSpeedOfPot(std::optional<qint64> wpm) {
    if (replace(_speedOfPot, wpm)) {
        Q_EMIT speedStringChanged();
    }
}

void WinKeyerUsb::setVersionString(const QString& version) {
    if (replace(_versionString, version)) {
        Q_EMIT versionStringChanged();
    }
}

void WinKeyerUsb::setKeyboardBuffer(const QString& text) {
    if (_text.setText(text)) {
        Q_EMIT keyboardBufferChanged();
    }
}

void WinKeyerUsb::setHisCallsign(const QString& callsign) {
    if (_text.setCallsign(callsign)) {
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
