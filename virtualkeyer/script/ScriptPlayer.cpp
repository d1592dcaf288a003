#include "virtualkeyer/script/ScriptPlayer.h"

#include "virtualkeyer/core/Registers.h"
#include "virtualkeyer/pty/SerialKeyer.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace virtualkeyer {

namespace {

/// How long a button is held that is only pressed.
constexpr Time pressTime = std::chrono::milliseconds{100};
constexpr std::array<std::uint8_t, 4> buttonBits{0x01, 0x02, 0x04, 0x10};

QString hexOf(const std::vector<std::uint8_t>& bytes) {
    const QByteArray all(reinterpret_cast<const char*>(bytes.data()),
                         static_cast<qsizetype>(bytes.size()));
    return QString::fromLatin1(all.toHex(' ').toUpper());
}

/// An expectation in the words of a script.
struct Wording {
    QString operator()(const ExpectKeyed& keyed) const { return u"keyed \"%1\""_s.arg(keyed.text); }
    QString operator()(const ExpectReply& reply) const { return u"reply "_s + hexOf(reply.bytes); }
    QString operator()(const ExpectKey& key) const {
        return key.isDown ? u"key down"_s : u"key up"_s;
    }
    QString operator()(const ExpectPtt& ptt) const { return ptt.isOn ? u"ptt on"_s : u"ptt off"_s; }
};

} // namespace

struct ScriptPlayer::Hand {
    ScriptPlayer& script;
    SerialKeyer& keyer;
    Time due;

    void operator()(const std::monostate& /*nothing*/) const {}
    void operator()(const MovePaddle& move) const {
        script._dit = move.dit.value_or(script._dit);
        script._dah = move.dah.value_or(script._dah);
        keyer.setPaddle(script._dit, script._dah, due);
    }
    void operator()(const TurnKnob& turn) const { keyer.setPot(turn.wpm, due); }
    void operator()(const MoveButton& move) const {
        const std::uint8_t bit = buttonBits.at(static_cast<std::size_t>(move.number - 1));
        const int buttons = *move.isDown ? script._buttons | bit : script._buttons & ~bit;
        script._buttons = static_cast<std::uint8_t>(buttons);
        keyer.setPushButtons(script._buttons, due);
    }
    void operator()(const PlayMessage& play) const { keyer.playMessage(play.number, due); }
    void operator()(const MovePlug& move) const {
        if (move.isIn) {
            keyer.plugIn(due);
        } else {
            keyer.pull(due);
        }
    }
    void operator()(const ChangeProfile& change) const {
        keyer.setProfile(script._profileByName(change.names.toStdString()).value(), due);
    }
    void operator()(const SendBytes& send) const {
        for (const std::uint8_t byte : send.bytes) {
            keyer.send(byte, due);
        }
    }
    void operator()(const Expect& /*met elsewhere*/) const {}
};

ScriptPlayer::ScriptPlayer(ProfileByName profileByName, Disappointment disappointment)
    : _profileByName(std::move(profileByName)), _disappointment(std::move(disappointment)) {}

bool ScriptPlayer::add(const ScriptStep& step, int line, Time notBefore) {
    if (const auto* change = std::get_if<ChangeProfile>(&step.what);
        change != nullptr && !_profileByName(change->names.toStdString())) {
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
        std::visit(Hand{*this, keyer, moment}, what);
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
        _disappointment(_steps.front().line, std::visit(Wording{}, expect.what),
                        found(expect.what));
    }
    forget(expect.what);
    _last = now;
    return true;
}

bool ScriptPlayer::isMet(const Expectation& expectation) const {
    return found(expectation) == std::visit(Wording{}, expectation);
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
    return std::visit(Wording{}, std::visit(Reality{*this}, expectation));
}

void ScriptPlayer::forget(const Expectation& expectation) {
    if (std::holds_alternative<ExpectKeyed>(expectation)) {
        _keyed.clear();
    } else if (std::holds_alternative<ExpectReply>(expectation)) {
        _replies.clear();
    }
}

} // namespace virtualkeyer
