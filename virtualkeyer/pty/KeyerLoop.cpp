#include "virtualkeyer/pty/KeyerLoop.h"

#include "virtualkeyer/pty/SystemFailure.h"

#include <algorithm>
#include <array>
#include <poll.h>
#include <unistd.h>

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

KeyerLoop::KeyerLoop(SerialKeyer& keyer, PseudoTerminal& terminal, int paddle)
    : _keyer(keyer), _terminal(terminal), _paddle(paddle), _start(Clock::now()) {}

void KeyerLoop::run(int stopDescriptor) {
    while (waitForWork(stopDescriptor)) {
        noticeOpenings();
        workPaddle();
        receiveFromHost();
        advance();
    }
}

/// False when it is time to stop.
bool KeyerLoop::waitForWork(int stopDescriptor) {
    // A negative descriptor is not waited for: bytes that find no room stay in the terminal.
    std::array<pollfd, 4> descriptors{{{stopDescriptor, POLLIN, 0},
                                       {_terminal.watch(), POLLIN, 0},
                                       {_keyer.hasRoom() ? _terminal.master() : -1, POLLIN, 0},
                                       {_paddle, POLLIN, 0}}};
    timespec timeout{};
    auto due = _keyer.nextEvent();
    if (_terminal.watch() < 0) {
        const Time look = now() + timeBetweenLooks;
        due = due ? std::min(*due, look) : look;
    }
    if (due) {
        timeout = timeoutOf(*due - now());
    }
    if (::ppoll(descriptors.data(), descriptors.size(), due ? &timeout : nullptr, nullptr) < 0 &&
        errno != EINTR) {
        throwSystemFailure("cannot wait for the host");
    }
    _isPaddleToBeWorked = descriptors.back().revents != 0;
    return descriptors.front().revents == 0;
}

void KeyerLoop::noticeOpenings() {
    for (int openings = _terminal.takeOpenings(); openings > 0; --openings) {
        _keyer.portOpened(now());
    }
}

void KeyerLoop::workPaddle() {
    if (!_isPaddleToBeWorked) {
        return;
    }
    char contact = ' ';
    if (::read(_paddle, &contact, 1) <= 0) {
        _paddle = -1;
    }
    _keyer.setPaddle(contact == '.', contact == '-', now());
}

void KeyerLoop::receiveFromHost() {
    std::array<std::uint8_t, 1> byte{};
    while (_keyer.hasRoom() && _terminal.read(byte) > 0) {
        _keyer.send(byte.front(), now());
    }
}

void KeyerLoop::advance() {
    _keyer.advance(now());
    for (const std::uint8_t byte : _keyer.takeArrived()) {
        _terminal.write(byte);
    }
}

} // namespace virtualkeyer
