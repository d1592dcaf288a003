#include "virtualkeyer/pty/KeyerLoop.h"

#include "virtualkeyer/pty/SystemFailure.h"

#include <algorithm>
#include <array>
#include <poll.h>
#include <utility>

namespace virtualkeyer {

namespace {

/// Where nobody tells of openings of the port.
constexpr Time timeBetweenLooks = std::chrono::milliseconds(100);

/// What is due in the past is due now.
timespec timeoutOf(Time wait) {
    const Time rest = std::max(wait, Time::zero());
    const auto seconds = std::chrono::floor<std::chrono::seconds>(rest);
    return {.tv_sec = seconds.count(), .tv_nsec = (rest - seconds).count()};
}

} // namespace

KeyerLoop::KeyerLoop(SerialKeyer& keyer, KeyerPort& port, std::vector<Operator*> operators)
    : _keyer(keyer),
      _port(port),
      _operators(std::move(operators)),
      _isReadable(_operators.size()),
      _start(Clock::now()) {}

void KeyerLoop::run(int stopDescriptor) {
    while (!hasEnded() && waitForWork(stopDescriptor)) {
        // What an operator does is due at a time that may lie before this moment, and so comes
        // first.
        letOperatorsWork();
        followPlug();
        noticeOpenings();
        receiveFromHost();
        advance();
    }
    // Whoever writes down what was keyed writes it to its end.
    advance();
}

/// False when it is time to stop.
bool KeyerLoop::waitForWork(int stopDescriptor) {
    const bool isPluggedIn = _port.isPluggedIn();
    // A negative descriptor is not waited for: bytes that find no room stay in the terminal.
    std::vector<pollfd> descriptors{
        {stopDescriptor, POLLIN, 0},
        {isPluggedIn ? _port.terminal().watch() : -1, POLLIN, 0},
        {isPluggedIn && _keyer.hasRoom() ? _port.terminal().master() : -1, POLLIN, 0}};
    const std::size_t fixed = descriptors.size();
    for (const Operator* each : _operators) {
        descriptors.push_back({each->descriptor(), POLLIN, 0});
    }
    timespec timeout{};
    const auto due = nextDue();
    if (due) {
        timeout = timeoutOf(*due - now());
    }
    if (::ppoll(descriptors.data(), descriptors.size(), due ? &timeout : nullptr, nullptr) < 0 &&
        errno != EINTR) {
        throwSystemFailure("cannot wait for the host");
    }
    for (std::size_t i = 0; i < _operators.size(); ++i) {
        _isReadable[i] = descriptors[fixed + i].revents != 0;
    }
    return descriptors.front().revents == 0;
}

std::optional<Time> KeyerLoop::nextDue() const {
    auto next = _keyer.nextEvent();
    const auto consider = [&next](std::optional<Time> due) {
        if (due && (!next || *due < *next)) {
            next = due;
        }
    };
    for (const Operator* each : _operators) {
        consider(each->nextWish());
    }
    if (_port.isPluggedIn() && _port.terminal().watch() < 0) {
        consider(now() + timeBetweenLooks);
    }
    return next;
}

bool KeyerLoop::hasEnded() const {
    return std::ranges::any_of(_operators, &Operator::hasEnded);
}

void KeyerLoop::letOperatorsWork() {
    for (std::size_t i = 0; i < _operators.size(); ++i) {
        _operators[i]->work(_keyer, _isReadable[i], now());
    }
}

void KeyerLoop::followPlug() {
    // One that is there again is another terminal all the same.
    if (_keyer.takeHangUp()) {
        _port.pull();
    }
    if (_keyer.isPluggedIn()) {
        _port.plugIn();
    }
}

void KeyerLoop::noticeOpenings() {
    if (!_port.isPluggedIn()) {
        return;
    }
    for (int openings = _port.terminal().takeOpenings(); openings > 0; --openings) {
        _keyer.portOpened(now());
    }
}

void KeyerLoop::receiveFromHost() {
    std::array<std::uint8_t, 1> byte{};
    while (_port.isPluggedIn() && _keyer.hasRoom() && _port.terminal().read(byte) > 0) {
        _keyer.send(byte.front(), now());
    }
}

void KeyerLoop::advance() {
    _keyer.advance(now());
    const auto arrived = _keyer.takeArrived();
    if (_port.isPluggedIn() && !arrived.empty()) {
        _port.terminal().write(arrived);
    }
    followPlug();
}

} // namespace virtualkeyer
