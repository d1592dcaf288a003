#include "serial/PinPoller.h"

#include "platform/MainQueue.h"
#include "platform/WorkerThread.h"
#include "serial/ORSSerialPort.h"

#include <algorithm>
#include <array>
#include <sys/ioctl.h>

using namespace std::chrono_literals;
using std::chrono::steady_clock;

namespace {

constexpr steady_clock::duration interval = 10ms;

struct InputLine {
    int bit;
    bool (ORSSerialPort::*state)() const;
    void (ORSSerialPort::*setState)(bool);
};

constexpr std::array inputLines{
    InputLine{TIOCM_CTS, &ORSSerialPort::CTS, &ORSSerialPort::setCTS},
    InputLine{TIOCM_DSR, &ORSSerialPort::DSR, &ORSSerialPort::setDSR},
    InputLine{TIOCM_CD, &ORSSerialPort::DCD, &ORSSerialPort::setDCD},
};

} // namespace

PinPoller::PinPoller(int descriptor, std::shared_ptr<ORSSerialPort> port,
                     std::shared_ptr<MainQueue> mainQueue)
    : _descriptor(descriptor),
      _port(std::move(port)),
      _mainQueue(std::move(mainQueue)),
      _thread(startWorker("pin poller", [this](const std::stop_token& stop) { run(stop); })) {}

// The beat is kept against the clock, not against the end of the tick before. Beats that a busy
// main thread made the poller miss are left out, not made up for.
void PinPoller::run(const std::stop_token& stop) {
    auto deadline = steady_clock::now();
    while (!stop.stop_requested()) {
        tick(stop);
        const auto missed = std::max(steady_clock::now() - deadline, steady_clock::duration(0));
        deadline += interval * (missed / interval + 1);
        _pause.until(deadline, stop);
    }
}

void PinPoller::tick(const std::stop_token& stop) {
    int word = 0;
    if (::ioctl(_descriptor, TIOCMGET, &word) != 0) {
        if (_port->areErrorsHeard()) {
            _mainQueue->sync([port = _port] { port->notifyDelegateOfPosixError(); }, stop);
        }
        return;
    }
    for (const auto& line : inputLines) {
        const bool state = (word & line.bit) != 0;
        if (((*_port).*line.state)() != state) {
            _mainQueue->sync([port = _port, set = line.setState, state] { ((*port).*set)(state); },
                             stop);
        }
    }
}
