#include "loggers/LoggerQueue.h"

#include "keyer/ChosenSpeed.h"
#include "keyer/KeyerCommand.h"
#include "keyer/ReceivedByte.h"
#include "keyer/StoredSettings.h"
#include "keyer/TextSourceScope.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int wpmOfStep = 2;
constexpr auto broken = "break\r\n";
/// What all of the keyer's parameters at once count as; see RequestRate.
constexpr int costOfReset = 8;

} // namespace

LoggerQueue::LoggerQueue(WinKeyerUsb& engine, ChosenSpeed& speed, QObject* parent)
    : QObject(parent), _engine(engine), _speed(speed), _engineText(engine.keyboardBuffer()) {
    _tuneSwitch.setProperty("state", 1);
    QObject::connect(&_engine, &WinKeyerUsb::heard, this, &LoggerQueue::advance);
    QObject::connect(&_engine, &WinKeyerUsb::countedAsKeyed, this, &LoggerQueue::advance);
    QObject::connect(&_engine, &WinKeyerUsb::keyboardBufferChanged, this, &LoggerQueue::followText);
    QObject::connect(&_engine, &WinKeyerUsb::tuneStateChanged, this, &LoggerQueue::followTune);
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this, &LoggerQueue::followKeyer);
    QObject::connect(&_engine, &WinKeyerUsb::pauseStateChanged, this, &LoggerQueue::followPause);
    QObject::connect(&_engine, &WinKeyerUsb::messageSendingStopped, this, &LoggerQueue::dropAll);
    QObject::connect(&_engine, &WinKeyerUsb::sendingCutShort, this, &LoggerQueue::dropAll);
    QObject::connect(&_engine, &WinKeyerUsb::statusReceived, this, [this](std::uint8_t status) {
        if ((status & KeyerStatus::breakIn) != 0) {
            dropAll();
        }
    });
}

LoggerQueue::~LoggerQueue() {
    endTune();
}

void LoggerQueue::take(const LoggerRequest::Request& request, const LoggerAddress& from) {
    std::visit([&](const auto& each) { take(each, from); }, request);
}

void LoggerQueue::take(const LoggerRequest::Text& text, const LoggerAddress& from) {
    Entry entry{from, text.text, takeAskedBy(from)};
    if (!text.echo.isEmpty()) {
        entry.replies.append(text.echo);
    }
    if (!mayTake() || _waiting.size() >= mostWaiting || !_rate.take()) {
        drop(entry);
        return;
    }
    _waiting.push_back(std::move(entry));
    advance();
}

/// Nobody is to find the key down who has sent something else meanwhile.
void LoggerQueue::take(const LoggerRequest::Tune& tune, const LoggerAddress& from) {
    const bool isOperatorSending = !_current && !isEngineFree();
    if (mayTake() && !isOperatorSending && !_engine.isLoadingMemory() &&
        _waiting.size() < mostWaiting && _rate.take()) {
        _waiting.push_back(Entry{from, {}, {}, tune.seconds});
        advance();
    }
}

void LoggerQueue::take(const LoggerRequest::Reply& reply, const LoggerAddress& from) {
    if (_asked.size() >= mostWaiting) {
        _asked.pop_front();
    }
    _asked.push_back({from, reply.text});
}

/// Whatever the rate: what there is to stop has been counted.
void LoggerQueue::take(const LoggerRequest::Abort&, const LoggerAddress&) {
    if (!_isWordMode) {
        stop();
    }
}

void LoggerQueue::take(const LoggerRequest::WordMode&, const LoggerAddress&) {
    _isWordMode = true;
}

void LoggerQueue::take(const LoggerRequest::Reset&, const LoggerAddress&) {
    reset();
    if (_askedSpeed && _askedSpeed == _speed.wpm() && _rate.take()) {
        _speed.backToKnob();
    }
    _askedSpeed.reset();
    if (_hasChangedKeyer && _rate.take(costOfReset)) {
        _hasChangedKeyer = false;
        if (_engine.activity() != KeyerActivity::NotConnected) {
            _engine.loadDefaults();
        }
    }
}

void LoggerQueue::take(const LoggerRequest::Speed& speed, const LoggerAddress&) {
    if (_rate.take()) {
        _speed.choose(speed.wpm);
        _askedSpeed = speed.wpm;
    }
}

/// The nearest of those that the keyer has.
void LoggerQueue::take(const LoggerRequest::Sidetone& sidetone, const LoggerAddress&) {
    constexpr int highest = 4000;
    constexpr int paddleOnly = 0x80;
    const int code = std::clamp((highest + sidetone.hertz / 2) / sidetone.hertz, 1, 10);
    const int flags = KeyerEncoding::sidetone(StoredSettings()) & paddleOnly;
    tell(KeyerCommand::sidetoneControl(static_cast<std::uint8_t>(flags | code)));
}

void LoggerQueue::take(const LoggerRequest::Weighting& weighting, const LoggerAddress&) {
    constexpr int neutral = 50;
    const int value = std::clamp(neutral + weighting.percent, 10, 90);
    tell(KeyerCommand::setWeighting(static_cast<std::uint8_t>(value)));
}

void LoggerQueue::take(const LoggerRequest::PttLead& lead, const LoggerAddress&) {
    constexpr int unit = 10;
    tell(KeyerCommand::setPttLeadTail(static_cast<std::uint8_t>(lead.milliseconds / unit),
                                      KeyerEncoding::pttTailTime(StoredSettings())));
}

void LoggerQueue::take(std::monostate, const LoggerAddress&) {}

/// A parameter of the keyer's own, which it forgets with the link.
void LoggerQueue::tell(const QByteArray& command) {
    if (_rate.take()) {
        _hasChangedKeyer = true;
        _engine.putToWinKeyer(command);
    }
}

QList<QByteArray> LoggerQueue::takeAskedBy(const LoggerAddress& from) {
    QList<QByteArray> replies;
    std::erase_if(_asked, [&](const Asked& each) {
        const bool isHis = each.from == from;
        if (isHis) {
            replies.append(each.reply);
        }
        return isHis;
    });
    return replies;
}

bool LoggerQueue::mayTake() const {
    if (!_isWatched || isHeldBack() || (_engine.tuneState() != 0 && !isTuning())) {
        return false;
    }
    switch (_engine.activity()) {
    case KeyerActivity::NotConnected:
    case KeyerActivity::Silent:
    case KeyerActivity::BreakIn:
        return false;
    default:
        return true;
    }
}

/// By the operator: the keyer's own wish, while its buffer is full, passes by itself.
bool LoggerQueue::isHeldBack() const {
    return _engine.pauseState() != 0 && !_isKeyersPause;
}

/// Whether all that was sent is keyed. While the keyer keys something else, such as a message of
/// its own, it is not free either.
bool LoggerQueue::isEngineFree() const {
    const auto size = _engine.keyboardBuffer().size();
    return _engine.inFlightIndex() >= size && !_engine.isAwaitingEcho() &&
           (size > 0 || _engine.activity() == KeyerActivity::Idle);
}

/// Called at the end of a byte's handling, or of a request's: in the midst of a stop nothing may be
/// handed over.
void LoggerQueue::advance() {
    while (advanceOneStep()) {
    }
}

bool LoggerQueue::advanceOneStep() {
    if (!_current) {
        return begin();
    }
    if (isTuning() || !isPieceKeyed()) {
        return false;
    }
    if (_pieces == _current->text.pieces.size()) {
        finish();
        return true;
    }
    if (!isEngineFree()) {
        return false; // the operator has sent something meanwhile
    }
    handOverNextPiece();
    return true;
}

bool LoggerQueue::begin() {
    if (_waiting.empty() || !mayTake() || !isEngineFree()) {
        return false;
    }
    const bool isTune = _waiting.front().tuneSeconds != 0;
    if (isTune && (_engine.activity() != KeyerActivity::Idle || _engine.mayBeKeying())) {
        return false;
    }
    _current = std::move(_waiting.front());
    _waiting.pop_front();
    _pieces = 0;
    _end = 0;
    _isJoined = false;
    Q_EMIT began(_current->from);
    if (isTune) {
        beginTune();
    }
    return true;
}

void LoggerQueue::beginTune() {
    _tuneTimer = Platform::current().clock().scheduleTimer(
        std::chrono::seconds(_current->tuneSeconds), this, [this] {
            endTune();
            advance(); // many a keyer tells nothing of the end
        });
    _engine.setTuneState(1);
    _engine.tune(&_tuneSwitch);
}

void LoggerQueue::endTune() {
    if (isTuning()) {
        _engine.setTuneState(0); // on which it is over here, too
        _engine.keyUp();
    }
}

void LoggerQueue::followTune() {
    const bool isOn = _engine.tuneState() != 0;
    if (isTuning() && !isOn) {
        _tuneTimer->invalidate();
        _current.reset();
    } else if (!isTuning() && isOn) {
        dropAll();
    }
}

void LoggerQueue::handOverNextPiece() {
    const auto& piece = _current->text.pieces[_pieces];
    ++_pieces;
    _isJoined = piece.endsJoined;
    if (piece.speedSteps != 0) {
        stepSpeed(piece.speedSteps);
    }
    if (!piece.text.isEmpty()) {
        handOver(piece.text);
    }
}

/// Behind what another has sent it is a word of its own.
void LoggerQueue::handOver(const QString& text) {
    const auto before = _engine.keyboardBuffer();
    const bool isInWord = before.isEmpty() || before.endsWith(u' ') || text.startsWith(u' ') ||
                          _lastSender == _current->from;
    {
        const QScopedValueRollback guard(_isHandingOver, true);
        const TextSourceScope source(_engine, {TextSource::Kind::Logger, _current->from.port});
        _engine.setKeyboardBuffer(before + (isInWord ? u""_s : u" "_s) + text);
    }
    _end = _engine.keyboardBuffer().size();
    _lastSender = _current->from;
    _engine.send();
}

/// Of joined letters the engine hears twice. A byte other than an echo may have it take for sent
/// what it waits for yet.
bool LoggerQueue::isPieceKeyed() const {
    const bool isLastAwaited = _engine.outputBufferIndex() <= _end && _engine.isAwaitingEcho();
    return _engine.unheardIndex() >= _end && !isLastAwaited &&
           (!_isJoined || _engine.activity() == KeyerActivity::Idle);
}

void LoggerQueue::finish() {
    const auto entry = *std::exchange(_current, std::nullopt);
    settleSpeed();
    for (const auto& reply : entry.replies) {
        Q_EMIT replied(reply, entry.from);
    }
}

/// High-speed CW goes on.
void LoggerQueue::stepSpeed(int steps) {
    _speedSteps += steps;
    const auto speed = _speed.inForce();
    if (speed && _engine.hscwState() == 0) {
        const int wpm = std::clamp(*speed + _speedSteps * wpmOfStep, ChosenSpeed::slowest,
                                   ChosenSpeed::fastest);
        _hasStepped = true;
        _engine.putToWinKeyer(KeyerCommand::bufferedSpeedChange(static_cast<std::uint8_t>(wpm)));
    }
}

/// What a text has not taken back of its steps holds from then on, and is to be seen.
void LoggerQueue::settleSpeed() {
    const int steps = std::exchange(_speedSteps, 0);
    if (steps == 0) {
        cancelSteps();
    } else {
        _hasStepped = false;
        _speed.change(steps * wpmOfStep);
        _askedSpeed = _speed.wpm();
    }
}

void LoggerQueue::cancelSteps() {
    _speedSteps = 0;
    if (std::exchange(_hasStepped, false)) {
        _engine.putToWinKeyer(KeyerCommand::cancelBufferedSpeedChange());
    }
}

/// What the operator adds behind a logger's text leaves that as it is. Any other change has the
/// engine skip some of it, or send some twice.
void LoggerQueue::followText() {
    const auto text = _engine.keyboardBuffer();
    const auto before = std::exchange(_engineText, text);
    if (_isHandingOver) {
        return;
    }
    _lastSender.reset();
    if (text.isEmpty()) {
        dropAll();
        return;
    }
    if (_current && text.first(std::min(_end, text.size())) != before.first(_end)) {
        dropCurrent();
    }
}

void LoggerQueue::followKeyer() {
    if (_engine.activity() == KeyerActivity::NotConnected) {
        dropAll();
    }
}

void LoggerQueue::followPause() {
    _isKeyersPause = _engine.pauseState() != 0 && _engine.activity() == KeyerActivity::BufferFull;
    if (isHeldBack()) {
        dropWaiting();
    }
}

void LoggerQueue::setWatched(bool isWatched) {
    _isWatched = isWatched;
    if (!isWatched) {
        stop();
    }
}

void LoggerQueue::reset() {
    stop();
    _isWordMode = false;
}

/// Of what the operator has sent nothing is stopped.
void LoggerQueue::stop() {
    const bool hasText = _current && !isTuning();
    if (hasText && _end == _engine.keyboardBuffer().size()) {
        _engine.stopMessageSending(nullptr);
    } else if (hasText) {
        takeOutRest();
    }
    dropAll();
    for (const auto& each : std::exchange(_asked, {})) {
        Q_EMIT replied(broken, each.from);
    }
}

/// What is with the keyer already is keyed: the operator's text follows it.
void LoggerQueue::takeOutRest() {
    auto text = _engine.keyboardBuffer();
    const auto next = _engine.outputBufferIndex();
    if (next < _end) {
        const QScopedValueRollback guard(_isHandingOver, true);
        _engine.setKeyboardBuffer(text.remove(next, _end - next));
    }
}

void LoggerQueue::dropAll() {
    dropCurrent();
    dropWaiting();
}

void LoggerQueue::dropCurrent() {
    endTune();
    if (_current) {
        const auto entry = *std::exchange(_current, std::nullopt);
        cancelSteps();
        drop(entry);
    }
}

void LoggerQueue::dropWaiting() {
    for (const auto& entry : std::exchange(_waiting, {})) {
        drop(entry);
    }
}

void LoggerQueue::drop(const Entry& entry) {
    if (!entry.replies.isEmpty()) {
        Q_EMIT replied(broken, entry.from);
    }
}
