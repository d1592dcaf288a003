// The text to be sent, the loop that feeds it to the keyer, and the stored messages.

#include "keyer/Action.h"
#include "keyer/GeneralSettings.h"
#include "keyer/KeyerCommand.h"
#include "keyer/KeyerSettings.h"
#include "keyer/LineTime.h"
#include "keyer/MessageSettings.h"
#include "keyer/ReceivedByte.h"
#include "keyer/TextSourceScope.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Log.h"
#include "platform/Platform.h"

#include <algorithm>
#include <string_view>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Which message each button bit of a status byte stands for. A later one wins over an earlier.
struct ButtonBit {
    std::uint8_t mask;
    std::size_t message;
};

constexpr auto buttonBits = std::to_array<ButtonBit>({{0x01, 0}, {0x02, 1}, {0x04, 2}, {0x10, 3}});

/// What acts in the keyer behind the text before it, or is read when its turn comes. A half space
/// is text.
constexpr std::string_view commandSigns = "%^{~";

constexpr auto callToken = u'`';
constexpr auto numberToken = u'#';

/// A call sign with the token of itself in it, which only the settings file can hold, is
/// substituted anew at every change of the text: that may double each time. Such a text ends here,
/// at well over an hour of keying, while the keyboard view is still quick with it.
constexpr qsizetype longestTextThatFeedsItself = 10'000;
/// What tokens may add to any other text, whose substitutions are not substituted again. Nobody
/// sends that much; a pasted text and a call sign as long as a book could ask for it.
constexpr qsizetype mostThatTokensAdd = 1'000'000;

/// Whether substitution would make more of the text than the two bounds allow.
bool growsBeyondBounds(const QString& text, const QString& call, const QString& number) {
    const auto calls = text.count(callToken);
    const auto numbers = text.count(numberToken) + calls * call.count(numberToken);
    const auto added = calls * (call.size() - 1) + numbers * (number.size() - 1);
    const auto most =
        call.contains(callToken) ? longestTextThatFeedsItself - text.size() : mostThatTokensAdd;
    return added > 0 && added > most;
}

} // namespace

void WinKeyerUsb::sendMessage(const QObject* sender) {
    const auto tag = static_cast<std::size_t>(Action::tag(sender));
    if (tag >= messageSettings.size()) {
        return;
    }
    const auto text =
        SettingsStore::standardUserDefaults().stringForKey(messageSettings[tag].textKey);
    if (!text.isNull()) {
        const TextSourceScope source(*this, {TextSource::Kind::Message, static_cast<int>(tag) + 1});
        appendMessage(substituteTokens(text));
    }
}

void WinKeyerUsb::handleButtonPressed() {
    QString text;
    TextSource pressed{TextSource::Kind::PushButton};
    for (const auto& button : buttonBits) {
        if ((_wkStatus & button.mask) != 0) {
            text = SettingsStore::standardUserDefaults().stringForKey(
                messageSettings[button.message].textKey);
            pressed.number = static_cast<int>(button.message) + 1;
        }
    }
    if (!text.isNull()) {
        const TextSourceScope source(*this, pressed);
        appendMessage(substituteTokens(text));
    }
}

void WinKeyerUsb::appendMessage(const QString& message) {
    appendSendableText(message.toUpper());
    send();
    if (beaconState() != 0) {
        _beaconMessage = message;
    }
}

void WinKeyerUsb::repeatMessage() {
    if (beaconState() != 0 && !_beaconMessage.isNull()) {
        const TextSourceScope source(*this, {TextSource::Kind::Beacon});
        appendMessage(_beaconMessage);
    }
}

void WinKeyerUsb::send() {
    if (isRunUnderWay()) {
        return; // it goes on by itself, up to the next character
    }
    followEchoes();
    _runIsOut = {};
    continueRun();
}

/// Up to the next character whose echo is waited for, or until so much is written that the line has
/// to send it first. It goes on before the line is through, which stays busy so.
void WinKeyerUsb::continueRun() {
    while (sendNext() == Step::GoOn) {
        if (_runLimit > 0 && runAhead() > lineTime(_runLimit - 1)) {
            _runTimer = Platform::current().clock().scheduleTimer(runAhead() / 2, this,
                                                                  [this] { continueRun(); });
            break;
        }
    }
    Q_EMIT sendingProgressed();
}

/// How long the line has to send what was written of the run.
Clock::Duration WinKeyerUsb::runAhead() const {
    return std::max(_runIsOut - Platform::current().clock().now(), Clock::Duration(0));
}

bool WinKeyerUsb::isRunUnderWay() const {
    return _runTimer && _runTimer->isValid();
}

WinKeyerUsb::Step WinKeyerUsb::sendNext() {
    if (pauseState() != 0) {
        return Step::WaitForEcho;
    }
    if (isLoadingMemory()) {
        _sendIsDue = true;
        return Step::WaitForEcho;
    }
    if (!_onTheirWay.hasRoom()) {
        return Step::WaitForEcho;
    }
    if (_text.isReadingCallsign()) {
        return sendNextOfHisCallsign();
    }
    if (isNextHeldBack()) {
        _sendingState = true;
        return Step::WaitForEcho;
    }
    const auto character = _text.next();
    _sendingState = character.has_value();
    return character ? sendCharacter(*character) : Step::WaitForEcho;
}

bool WinKeyerUsb::isNextHeldBack() const {
    const auto next = _text.peek();
    return next && commandSigns.find(*next) != std::string_view::npos &&
           _onTheirWay.holdCommandsBack();
}

WinKeyerUsb::Step WinKeyerUsb::sendNextOfHisCallsign() {
    const auto character = _text.nextOfCallsign();
    if (!character) {
        endCallsign();
        return Step::GoOn;
    }
    _sendingState = true;
    return sendPlain(*character);
}

WinKeyerUsb::Step WinKeyerUsb::sendCharacter(char character) {
    switch (character) {
    case '%':
        return beginHSCW();
    case '^':
        return endHSCW();
    case '{':
        return mergeLetters();
    case '|':
        sendText(QByteArray(1, character));
        return Step::GoOn;
    case '~':
        _text.beginCallsign();
        return Step::GoOn;
    default:
        return sendPlain(character);
    }
}

WinKeyerUsb::Step WinKeyerUsb::sendPlain(char character) {
    _onTheirWay.addPlain(character, _unitBegin);
    noteUnheard(character, false);
    if (!_text.isReadingCallsign()) {
        _unitBegin = _text.index();
    }
    if (_silenceTimer) {
        awaitSilence();
    }
    sendText(QByteArray(1, character));
    return _onTheirWay.isOneAtATime() ? Step::WaitForEcho : Step::GoOn;
}

WinKeyerUsb::Step WinKeyerUsb::beginHSCW() {
    logLine(u"Begin HSCW"_s);
    const auto speed = hscwSpeed();
    logLine(u"HSCW Speed = %1"_s.arg(speed));
    const auto command = KeyerCommand::hscwSpeedChange(KeyerEncoding::lowByte(speed));
    logLine(u"HSCW command = <%1>"_s.arg(QLatin1StringView(command.toHex())));
    writeAhead(command);
    noteHighSpeed(speed);
    return Step::GoOn;
}

WinKeyerUsb::Step WinKeyerUsb::endHSCW() {
    logLine(u"End HSCW"_s);
    setHscwState(0);
    writeAhead(KeyerCommand::cancelBufferedSpeedChange());
    return Step::GoOn;
}

WinKeyerUsb::Step WinKeyerUsb::mergeLetters() {
    logLine(u"Merge letters"_s);
    const auto letters = _text.nextTwo();
    if (!letters) {
        // Two letters do not follow yet. The sign is used up, and whatever calls send() next
        // sends what then follows it as plain characters.
        return Step::WaitForEcho;
    }
    for (const char each : {letters->first, letters->second}) {
        _onTheirWay.addJoined(each, _unitBegin);
        noteUnheard(each, true);
    }
    sendText(KeyerCommand::mergeLetters(letters->first, letters->second));
    return Step::GoOn;
}

void WinKeyerUsb::sendText(const QByteArray& bytes) {
    _mayBeKeying = true;
    writeAhead(bytes);
}

void WinKeyerUsb::writeAhead(const QByteArray& bytes) {
    Q_EMIT willSend();
    _runIsOut = Platform::current().clock().now() + runAhead() + lineTime(bytes.size());
    putToWinKeyer(bytes);
}

qint64 WinKeyerUsb::hscwSpeed() const {
    return SettingsStore::standardUserDefaults().integerForKey(WKHSCWSpeed) / 100;
}

void WinKeyerUsb::clearSending() {
    _text.rewind();
    _sendingState = false;
    _sendIsDue = false;
    _onTheirWay.abandon();
    _unheard.abandon();
    _sentCall.reset();
    awaitSilence();
    if (_runTimer) {
        _runTimer->invalidate();
    }
    setKeyboardBuffer(u""_s);
    Q_EMIT sendingProgressed();
    setBeaconState(0);
}

void WinKeyerUsb::clearKeyer() {
    _isKeyerPlaying = false;
    putToWinKeyer(KeyerCommand::clearBuffer());
}

void WinKeyerUsb::stopMessageSending(const QObject*) {
    if (isConnected() && _winKeyerSerialPort->isOpen()) {
        makeWay();
        clearKeyer();
    }
    clearSending();
    Q_EMIT messageSendingStopped();
}

QString WinKeyerUsb::substituteTokens(const QString& text) const {
    const auto call = myCall();
    const auto number = cutifiedSerialNumber();
    auto substituted = text;
    if (growsBeyondBounds(text, call, number)) {
        // Cut off, it would be sent with half a call sign at its end.
        logLine(u"Text too long with the call sign and serial number in it: they are left out"_s);
        substituted.removeIf([](QChar each) { return each == callToken || each == numberToken; });
        return substituted;
    }
    substituted.replace(callToken, call);
    substituted.replace(numberToken, number);
    return substituted;
}

QString WinKeyerUsb::myCall() const {
    return SettingsStore::standardUserDefaults().stringForKey(MyCall);
}

QString WinKeyerUsb::cutifiedSerialNumber() const {
    auto digits = QString::asprintf("%.3lld", serialNumber());
    return digits.replace(u'0', u'T');
}

void WinKeyerUsb::incrementSerialNumber(const QObject*) {
    setSerialNumber(serialNumber() + 1);
}

void WinKeyerUsb::decrementSerialNumber(const QObject*) {
    if (serialNumber() > 1) {
        setSerialNumber(serialNumber() - 1);
    }
}
