#include "virtualkeyer/script/ScriptPlayer.h"

#include "virtualkeyer/core/Registers.h"
#include "virtualkeyer/pty/SerialKeyer.h"
#include "virtualkeyer/script/ScriptLine.h"

#include <algorithm>
#include <utility>

namespace virtualkeyer {

namespace {

/// How long a button is held that is only pressed.
constexpr Time pressTime = std::chrono::milliseconds{100};

} // namespace

ScriptPlayer::ScriptPlayer(ProfileByName profileByName, Disappointment disappointment)
    : _hand(std::move(profileByName)), _disappointment(std::move(disappointment)) {}

bool ScriptPlayer::add(const ScriptStep& step, int line, Time notBefore) {
    if (!_hand.knows(step.what)) {
        return false;
    }
    if (const auto* move = std::get_if<MoveButton>(&step.what); move != nullptr && !move->isDown) {
        _steps.push_back({{step.at, step.after, MoveButton{move->number, true}}, line, notBefore});
        _steps.push_back(
            {{std::nullopt, pressTime, MoveButton{move->number, false}}, line, notBefore});
        return true;
    }
    _steps.push_back({step, line, notBefore});
    return true;
}

std::optional<int> ScriptPlayer::nextLine() const {
    return _steps.empty() ? std::nullopt : std::optional{_steps.front().line};
}

void ScriptPlayer::work(SerialKeyer& keyer, bool /*isReadable*/, Time now) {
    while (!_steps.empty() && dueTime() <= now) {
        if (!carryOut(keyer, dueTime(), now)) {
            return;
        }
        _steps.pop_front();
    }
}

std::optional<Time> ScriptPlayer::nextWish() const {
    if (_steps.empty()) {
        return std::nullopt;
    }
    if (!_isWaiting) {
        return dueTime();
    }
    if (_hasChanged) {
        return _now;
    }
    const Time end = dueTime() + std::get<Expect>(_steps.front().step.what).within;
    return std::min(end, _decoder.nextEvent().value_or(end));
}

void ScriptPlayer::keyerDid(const Event& event, const Registers& registers) {
    _hasChanged = true;
    if (const auto* line = std::get_if<KeyLine>(&event.what)) {
        _isKeyDown = line->isDown;
        _decoder.setTiming(timingOf(registers));
        _decoder.key(line->isDown, event.at);
        _keyed += _decoder.takeText();
    } else if (const auto* ptt = std::get_if<PttLine>(&event.what)) {
        _isPttOn = ptt->isOn;
    } else if (const auto* byte = std::get_if<HostByte>(&event.what)) {
        _replies.push_back(byte->value);
    }
}

void ScriptPlayer::timePassed(Time now) {
    _now = now;
    _decoder.advance(now);
    const std::string text = _decoder.takeText();
    _hasChanged = _hasChanged || !text.empty();
    _keyed += text;
}

/// A step that waited long for the one before it is due at once. The one that is being waited for
/// keeps its time.
Time ScriptPlayer::dueTime() const {
    const auto& [step, line, notBefore] = _steps.front();
    const Time planned = std::max(step.at.value_or(Time{0}), _last + step.after);
    return std::max(planned, notBefore);
}

/// False while an expectation may still be met.
bool ScriptPlayer::carryOut(SerialKeyer& keyer, Time due, Time now) {
    const auto& what = _steps.front().step.what;
    // Another may have moved the keyer on in the meantime.
    const Time moment = std::max(due, _now);
    const auto* expect = std::get_if<Expect>(&what);
    if (expect == nullptr) {
        _hand.act(what, keyer, moment);
        _last = moment;
        return true;
    }
    keyer.advance(moment);
    if (!isMet(expect->what)) {
        keyer.advance(now);
    }
    return meet(*expect, due, _now);
}

bool ScriptPlayer::meet(const Expect& expect, Time due, Time now) {
    const bool isDone = isMet(expect.what);
    _hasChanged = false;
    _isWaiting = !isDone && now < due + expect.within;
    if (_isWaiting) {
        return false;
    }
    if (!isDone) {
        _isContent = false;
        _disappointment(_steps.front().line, scriptWords(expect.what), found(expect.what));
    }
    forget(expect.what);
    _last = now;
    return true;
}

bool ScriptPlayer::isMet(const Expectation& expectation) const {
    return found(expectation) == scriptWords(expectation);
}

/// What is there in place of what is expected, in the same words.
QString ScriptPlayer::found(const Expectation& expectation) const {
    struct Reality {
        const ScriptPlayer& script;
        Expectation operator()(const ExpectKeyed& /*keyed*/) const {
            return ExpectKeyed{QString::fromStdString(script._keyed).trimmed()};
        }
        Expectation operator()(const ExpectReply& /*reply*/) const {
            return ExpectReply{script._replies};
        }
        Expectation operator()(const ExpectKey& /*key*/) const {
            return ExpectKey{script._isKeyDown};
        }
        Expectation operator()(const ExpectPtt& /*ptt*/) const {
            return ExpectPtt{script._isPttOn};
        }
    };
    return scriptWords(std::visit(Reality{*this}, expectation));
}

void ScriptPlayer::forget(const Expectation& expectation) {
    if (std::holds_alternative<ExpectKeyed>(expectation)) {
        _keyed.clear();
    } else if (std::holds_alternative<ExpectReply>(expectation)) {
        _replies.clear();
    }
}

} // namespace virtualkeyer
