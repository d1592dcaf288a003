// How much of the text is keyed: what the keyer's answers say of the characters on their way to it.

#include "keyer/GeneralSettings.h"
#include "keyer/KeyerCommand.h"
#include "keyer/KeyerSettings.h"
#include "keyer/ReceivedByte.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"

#include <algorithm>
#include <utility>

namespace {

/// There and back, and the keyer's lead-in: what it was given before it fell silent for so long, it
/// has begun to key.
constexpr Clock::Duration longestAnswer = std::chrono::seconds(2);

} // namespace

/// What was deleted is on its way all the same, and its places are where the text ends.
void WinKeyerUsb::restrictToText() {
    _text.restrictToText();
    _onTheirWay.restrictPlaces(_text.index());
    _unheard.restrictPlaces(_text.index());
    _unitBegin = std::min(_unitBegin, _text.index());
}

/// Takes note of what is keyed by now.
void WinKeyerUsb::followEchoes() {
    _onTheirWay.setLimit(SettingsStore::standardUserDefaults().integerForKey(CharactersAhead.key));
    const auto oldest = _onTheirWay.isOneAtATime() ? std::nullopt : _onTheirWay.oldestPlace();
    if (oldest) {
        _text.keepInFlight(*oldest);
    } else {
        _text.acknowledge();
        _unitBegin = _text.inFlightIndex();
    }
    if (_sentCall && oldest.value_or(_text.index()) > _sentCall->first) {
        tellSentCall();
    }
}

void WinKeyerUsb::tellSentCall() {
    if (const auto sent = std::exchange(_sentCall, std::nullopt)) {
        Q_EMIT callsignSent(sent->first, sent->second);
    }
}

/// The last letters of it may be on their way yet.
void WinKeyerUsb::endCallsign() {
    tellSentCall();
    _sentCall.emplace(_text.index() - 1, _text.takenOfCallsign());
    _unitBegin = _text.index();
    followEchoes();
}

qsizetype WinKeyerUsb::unheardIndex() const {
    return std::min(inFlightIndex(), _unheard.oldestPlace().value_or(inFlightIndex()));
}

qsizetype WinKeyerUsb::unheardAtOldest() const {
    return _onTheirWay.isOneAtATime() ? _unheard.countAtOldest() : _onTheirWay.countAtOldest();
}

/// With more than one on their way those themselves say what is heard.
void WinKeyerUsb::noteUnheard(char character, bool isJoined) {
    const bool isEchoed = SettingsStore::standardUserDefaults().boolForKey(WKSerialEchoback);
    if (!_onTheirWay.isOneAtATime() || !isEchoed) {
        return;
    }
    if (isJoined) {
        _unheard.addJoined(character, _unitBegin);
    } else {
        _unheard.add(character, _unitBegin);
    }
}

void WinKeyerUsb::takeBackUnheard() {
    if (isAwaitingEcho()) {
        _text.takeBack();
        forgetOnTheirWay();
        _sendingState = false;
        Q_EMIT sendingProgressed();
    }
}

void WinKeyerUsb::forgetOnTheirWay() {
    _onTheirWay.clear();
    _unheard.clear();
    _sentCall.reset();
    endSilence();
}

void WinKeyerUsb::takeEcho(std::uint8_t echo) {
    _onTheirWay.takeEcho(echo);
    _unheard.takeEcho(echo);
    send();
    awaitSilence();
}

/// A paddle far away may be at rest again before the keyer hears that it is to drop what it was
/// given meanwhile: that would be keyed behind it.
void WinKeyerUsb::handleBreakIn() {
    if (_onTheirWay.holdCommandsBack()) {
        putToWinKeyer(KeyerCommand::clearBuffer());
    }
    clearSending();
}

/// What a keyer tells of being idle may be older than what is on its way to it. Only when nothing
/// comes behind it were echoes lost. A keyer that is paused says nothing in any case.
void WinKeyerUsb::awaitSilence() {
    endSilence();
    const bool isIdle = (_lastStatus.value_or(0) & KeyerStatus::anything) == 0;
    const bool isFar = !_onTheirWay.isOneAtATime();
    const bool isOpen =
        _unheard.areThere() || (isFar && (_mayBeKeying || _onTheirWay.oldestPlace().has_value()));
    if (isIdle && isOpen && _pauseState == 0) {
        _silenceTimer = Platform::current().clock().scheduleTimer(longestAnswer, this,
                                                                  [this] { countAsKeyed(); });
    }
}

void WinKeyerUsb::endSilence() {
    if (_silenceTimer) {
        std::exchange(_silenceTimer, nullptr)->invalidate();
    }
}

/// One that is near is given the next character by its own answers alone.
void WinKeyerUsb::countAsKeyed() {
    _silenceTimer.reset();
    _unheard.clear();
    if (_onTheirWay.isOneAtATime()) {
        Q_EMIT sendingProgressed();
    } else {
        _onTheirWay.clear();
        _mayBeKeying = false;
        send();
    }
    Q_EMIT countedAsKeyed();
}
