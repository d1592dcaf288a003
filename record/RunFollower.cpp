#include "record/RunFollower.h"

#include "keyer/ChosenSpeed.h"
#include "keyer/MessageSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

using Kind = TextSource::Kind;

constexpr auto callToken = u'~';
constexpr auto mergeSign = u'{';
/// A sign of merged letters and the two that it merges.
constexpr qsizetype lengthOfMerge = 3;
/// More than there are loggers; a flood of them is not remembered.
constexpr qsizetype mostLoggers = 64;

/// Signs that the keyer is told of, and that it sends no echo for.
bool isSilent(QChar character) {
    return character == u'%' || character == u'^' || character == u'|';
}

} // namespace

RunFollower::RunFollower(WinKeyerUsb& engine, const ChosenSpeed& speed, WallClock wallClock,
                         QObject* parent)
    : QObject(parent), _engine(engine), _speed(speed), _wallClock(std::move(wallClock)) {
    QObject::connect(&_engine, &WinKeyerUsb::keyboardBufferChanged, this, &RunFollower::followText);
    QObject::connect(&_engine, &WinKeyerUsb::sendingProgressed, this, &RunFollower::followProgress);
    QObject::connect(&_engine, &WinKeyerUsb::callsignSent, this, &RunFollower::followProgress);
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this, &RunFollower::followKeyer);
    QObject::connect(&_engine, &WinKeyerUsb::sendingCutShort, this,
                     [this] { _isLinkEnding = true; });
}

void RunFollower::nameLogger(quint16 port, const QString& name) {
    if (_loggers.size() >= mostLoggers) {
        _loggers.clear();
    }
    _loggers.insert(port, name);
}

void RunFollower::followText() {
    const auto text = _engine.keyboardBuffer();
    const auto next = _engine.outputBufferIndex();
    if (text.isEmpty() && next == 0 && _taken > 0 && !_origins.text().isEmpty()) {
        // No edit: those leave the place that the sending has come to for the moment, and when it
        // is told the text is known to be empty.
        const bool isBreakIn = _engine.activity() == KeyerActivity::BreakIn;
        cutShort(_isLinkEnding ? Ending::LinkLost : isBreakIn ? Ending::BrokenIn : Ending::Stopped);
        _taken = 0;
    }
    if (text.constData() == _origins.text().constData()) {
        return; // there is much of it, and this is called for each character
    }
    const auto& source = _engine.textSource();
    _origins.follow(text, _taken, source, nameOf(source));
}

void RunFollower::followProgress() {
    followText(); // another who follows the text may have had it sent before it was heard of here
    const auto index = std::min(_engine.outputBufferIndex(), _origins.text().size());
    if (index < _taken) {
        // Text that was deleted has been sent all the same; else it is to be sent once more.
        if (_taken <= _origins.text().size()) {
            takeBack(_taken - index);
        }
        _taken = index;
    }
    takeUpTo(index);
    for (auto& each : _inFlight) {
        if (each.isCall) {
            each.text = _engine.takenOfCallsign();
            each.unheard = _engine.unheardAtOldest();
        }
    }
    confirm(index - _engine.unheardIndex());
    endFinishedRuns();
}

void RunFollower::followKeyer() {
    _isLinkEnding = false;
    if (_engine.activity() == KeyerActivity::NotConnected) {
        cutShort(Ending::LinkLost);
    }
}

void RunFollower::takeUpTo(qsizetype index) {
    while (_taken < index) {
        auto unit = unitAt(_taken);
        unit.length = std::min(unit.length, index - _taken);
        // The engine knows the letters of the last call sign alone.
        for (auto& each : _inFlight) {
            each.isCall = each.isCall && !unit.isCall;
        }
        _taken += unit.length;
        _inFlight.push_back(std::move(unit));
    }
}

RunFollower::Unit RunFollower::unitAt(qsizetype position) {
    const auto character = _origins.text().at(position);
    Unit unit{.run = runOf(_origins.take(position)), .text = character};
    unit.hasEcho = !isSilent(character);
    if (character == callToken) {
        unit.isCall = true;
        unit.text.clear();
    } else if (character == mergeSign && position + lengthOfMerge <= _origins.text().size()) {
        unit.text = _origins.text().mid(position, lengthOfMerge);
        unit.length = lengthOfMerge;
    }
    return unit;
}

void RunFollower::takeBack(qsizetype length) {
    while (length > 0 && !_inFlight.empty()) {
        length -= _inFlight.back().length;
        _inFlight.pop_back();
    }
}

void RunFollower::confirm(qsizetype inFlight) {
    const auto add = [](qsizetype sum, const Unit& each) { return sum + each.length; };
    auto length = std::accumulate(_inFlight.begin(), _inFlight.end(), qsizetype(0), add);
    while (length > inFlight && !_inFlight.empty()) {
        length -= _inFlight.front().length;
        confirmFirst();
    }
}

void RunFollower::confirmFirst() {
    const auto unit = std::move(_inFlight.front());
    _inFlight.pop_front();
    auto& text = unit.run->recorded.text;
    if (!text.isEmpty() || unit.text != u' ') {
        text += unit.text;
    }
}

/// The keyer finishes the letter that it is at, whatever stops it.
void RunFollower::takeWhatIsUnderWay() {
    while (!_inFlight.empty()) {
        const bool isKeyed = _inFlight.front().hasEcho;
        confirmFirst();
        if (isKeyed) {
            break;
        }
    }
}

void RunFollower::cutShort(Ending ending) {
    const auto runs = _runs;
    std::vector<bool> areThrough;
    std::transform(runs.begin(), runs.end(), std::back_inserter(areThrough),
                   [this](const auto& each) { return isThrough(*each); });
    const auto firstCut = static_cast<std::size_t>(
        std::find(areThrough.begin(), areThrough.end(), false) - areThrough.begin());
    leaveOutUnheardOfCall();
    const auto call = restOfCall();
    takeWhatIsUnderWay();
    for (std::size_t i = 0; i < runs.size(); ++i) {
        if (areThrough[i]) {
            end(runs[i], Ending::Sent, {});
        } else {
            // What is in the midst of being sent is the first's.
            end(runs[i], ending, (i == firstCut ? call : QString()) + restOf(*runs[i]));
        }
    }
    _inFlight.clear();
}

/// Of the letters of a call sign that went ahead, the keyer is at the first.
void RunFollower::leaveOutUnheardOfCall() {
    for (auto& each : _inFlight) {
        if (each.isCall && each.unheard > 1) {
            each.text.chop(each.unheard - 1);
        }
    }
}

/// Of the call sign that is being sent first of all, what has not been handed over.
QString RunFollower::restOfCall() const {
    const auto first = std::find_if(_inFlight.begin(), _inFlight.end(),
                                    [](const Unit& each) { return each.hasEcho; });
    const auto call = _engine.hisCallsign().toUpper();
    const bool isInCall = first != _inFlight.end() && first->isCall && call.startsWith(first->text);
    return isInCall ? call.mid(first->text.size()) : QString();
}

/// What has not been keyed of it, with call signs as they are now.
QString RunFollower::restOf(const Run& run) const {
    QString text;
    for (const auto& each : _inFlight) {
        if (each.run.get() == &run) {
            text += each.isCall ? QString(callToken) : each.text;
        }
    }
    text += _origins.textFrom(_taken, run.origin);
    return text.replace(callToken, _engine.hisCallsign().toUpper());
}

bool RunFollower::isThrough(const Run& run) const {
    const bool isOnItsWay = std::any_of(_inFlight.begin(), _inFlight.end(),
                                        [&](const Unit& each) { return each.run.get() == &run; });
    return !isOnItsWay && !_origins.hasWordsFrom(_taken, run.origin);
}

void RunFollower::endFinishedRuns() {
    const auto runs = _runs;
    for (const auto& each : runs) {
        if (!isThrough(*each)) {
            continue;
        }
        const auto& takenOut = each->origin->takenOut;
        const auto kind = each->origin->source.kind;
        const bool mayGoOn = kind == Kind::Keyboard || kind == Kind::Logger;
        if (!takenOut.isEmpty()) {
            end(each, Ending::Stopped, takenOut);
        } else if (mayGoOn && each == runs.back()) {
            waitForMore(each);
        } else {
            end(each, Ending::Sent, {});
        }
    }
}

void RunFollower::waitForMore(const std::shared_ptr<Run>& run) {
    if (_restTimer) {
        _restTimer->invalidate();
    }
    _restTimer =
        Platform::current().clock().scheduleTimer(rest, this, [this, waiting = std::weak_ptr(run)] {
            const auto found = waiting.lock();
            if (found && !found->origin->hasEnded && isThrough(*found)) {
                end(found, Ending::Sent, {});
            }
        });
}

std::shared_ptr<RunFollower::Run> RunFollower::runOf(const Origin& origin) {
    const auto found = std::find_if(_runs.begin(), _runs.end(),
                                    [&](const auto& each) { return each->origin == origin; });
    if (found != _runs.end()) {
        return *found;
    }
    auto run = std::make_shared<Run>(Run{origin, {}});
    run->recorded.begun = _wallClock();
    run->recorded.source = origin->source;
    run->recorded.name = origin->name;
    noteSpeed(run->recorded);
    _runs.push_back(run);
    return run;
}

void RunFollower::noteSpeed(RecordedRun& run) const {
    constexpr int hundreds = 100;
    const auto high = _engine.highSpeed();
    if (_engine.hscwState() != 0 && high) {
        run.lettersPerMinute = static_cast<int>(*high) * hundreds;
    } else {
        run.wordsPerMinute = _speed.inForce();
    }
}

QString RunFollower::nameOf(const TextSource& source) const {
    const bool isMessage = source.kind == Kind::Message || source.kind == Kind::PushButton;
    const auto index = static_cast<std::size_t>(source.number) - 1;
    return isMessage && index < messageSettings.size()
               ? SettingsStore::standardUserDefaults().stringForKey(messageSettings[index].labelKey)
               : QString();
}

void RunFollower::end(const std::shared_ptr<Run>& run, Ending ending, const QString& left) {
    run->origin->hasEnded = true;
    std::erase(_runs, run);
    _origins.settle();
    auto& recorded = run->recorded;
    recorded.text = recorded.text.toUpper();
    recorded.ending = ending;
    recorded.rest = left;
    if (ending == Ending::Sent) {
        recorded.text = recorded.text.trimmed();
    }
    if (recorded.source.kind == Kind::Logger) {
        recorded.name = _loggers.value(recorded.source.number);
    }
    if (!recorded.text.isEmpty()) {
        Q_EMIT ended(recorded);
    }
}
