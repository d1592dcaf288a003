#include "virtualkeyer/window/KeyerLink.h"

#include "virtualkeyer/NamedProfiles.h"
#include "virtualkeyer/pty/SystemFailure.h"
#include "virtualkeyer/script/ScriptLine.h"

#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace virtualkeyer {

KeyerLink::KeyerLink()
    : _wake(checked(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK), "cannot join window and keyer")),
      _hand(profileNamed) {}

void KeyerLink::order(const ScriptAction& action) {
    const std::lock_guard lock(_mutex);
    _orders.push_back(action);
    wake();
}

void KeyerLink::beginRecording() {
    const std::lock_guard lock(_mutex);
    _recording.clear();
    _records = true;
    // The keyer's thread knows what time it is.
    wake();
}

QString KeyerLink::endRecording() {
    const std::lock_guard lock(_mutex);
    _records = false;
    _recordingStart.reset();
    return std::exchange(_recording, {});
}

void KeyerLink::wake() {
    const std::uint64_t one = 1;
    checked(static_cast<int>(::write(_wake.number(), &one, sizeof one)), "cannot wake the keyer");
}

KeyerState KeyerLink::state() {
    const std::lock_guard lock(_mutex);
    _isAnnounced = false;
    return _shown;
}

QString KeyerLink::takeKeyedText() {
    const std::lock_guard lock(_mutex);
    return QString::fromStdString(std::exchange(_keyed, {}));
}

void KeyerLink::work(SerialKeyer& keyer, bool isReadable, Time now) {
    _keyer = &keyer;
    if (!isReadable) {
        return;
    }
    carryOut(keyer, now);
}

void KeyerLink::carryOut(SerialKeyer& keyer, Time now) {
    std::vector<ScriptAction> orders;
    {
        const std::lock_guard lock(_mutex);
        std::uint64_t count = 0;
        checked(static_cast<int>(::read(_wake.number(), &count, sizeof count)),
                "cannot hear from the window");
        orders.swap(_orders);
        if (_records && !_recordingStart) {
            _recordingStart = now;
        }
        for (const ScriptAction& action : orders) {
            if (_recordingStart) {
                _recording += scriptLine(now - *_recordingStart, action) + u'\n';
            }
        }
    }
    for (const ScriptAction& action : orders) {
        _hand.act(action, keyer, now);
    }
}

/// At once in the beginning, when nothing has happened that could be shown.
std::optional<Time> KeyerLink::nextWish() const {
    return _keyer == nullptr ? std::optional{Time{0}} : _decoder.nextEvent();
}

void KeyerLink::keyerDid(const Event& event, const Registers& registers) {
    if (const auto* line = std::get_if<KeyLine>(&event.what)) {
        _isKeyDown = line->isDown;
        _decoder.setTiming(timingOf(registers));
        _decoder.key(line->isDown, event.at);
    } else if (const auto* ptt = std::get_if<PttLine>(&event.what)) {
        _isPttOn = ptt->isOn;
    }
    // A dit may be over before time is said to have passed, and its lamp has lit all the same.
    keepUp();
}

void KeyerLink::timePassed(Time now) {
    _decoder.advance(now);
    keepUp();
}

void KeyerLink::keepUp() {
    if (_keyer == nullptr) {
        return;
    }
    const Keyer& keyer = _keyer->keyer();
    const KeyerState state{_keyer->isPluggedIn(), _isKeyDown,        _isPttOn,
                           keyer.status(),        keyer.registers(), keyer.memory()};
    const std::string text = _decoder.takeText();
    const std::lock_guard lock(_mutex);
    if (state == _shown && text.empty()) {
        return;
    }
    _shown = state;
    _keyed += text;
    if (!std::exchange(_isAnnounced, true)) {
        Q_EMIT changed();
    }
}

} // namespace virtualkeyer
