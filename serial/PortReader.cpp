#include "serial/PortReader.h"

#include "platform/MainQueue.h"
#include "serial/ORSSerialPort.h"
#include "serial/WorkerThread.h"

#include <algorithm>
#include <array>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr auto passTime = 100ms;

} // namespace

PortReader::PortReader(int descriptor, int wakeUp, std::weak_ptr<const void> opening,
                       std::shared_ptr<ORSSerialPort> port, std::shared_ptr<MainQueue> mainQueue)
    : _descriptor(descriptor),
      _opening(std::move(opening)),
      _port(std::move(port)),
      _mainQueue(std::move(mainQueue)),
      _wakeUp(wakeUp),
      _thread(startWorker("port reader", [this](const std::stop_token& stop) { run(stop); })) {}

// A pulled adapter reports readable for ever and yields nothing, and a wait may fail for ever:
// neither pass may follow the one before at once.
void PortReader::run(const std::stop_token& stop) {
    eventfd_t left = 0;
    ::eventfd_read(_wakeUp, &left);
    const std::stop_callback wake(stop, [this] { ::eventfd_write(_wakeUp, 1); });
    while (!stop.stop_requested()) {
        const auto passEnd = std::chrono::steady_clock::now() + passTime;
        const auto result = waitForData();
        if (stop.stop_requested()) {
            return;
        }
        if (result == Wait::Failed) {
            reportError(stop);
            _pause.until(passEnd, stop);
        } else if (result == Wait::Readable && !readOnce()) {
            _pause.until(passEnd, stop);
        }
    }
}

PortReader::Wait PortReader::waitForData() {
    std::array waited{pollfd{_descriptor, POLLIN, 0}, pollfd{_wakeUp, POLLIN, 0}};
    const int count =
        ::poll(waited.data(), waited.size(), std::chrono::milliseconds(passTime).count());
    if (count < 0 || (waited[0].revents & POLLNVAL) != 0) {
        return Wait::Failed;
    }
    return waited[0].revents != 0 ? Wait::Readable : Wait::TimedOut;
}

// Only as much is read as is known to be there: the descriptor blocks, and a reader that waited
// for a byte which somebody else took could not be ended.
bool PortReader::readOnce() {
    int available = 0;
    if (::ioctl(_descriptor, FIONREAD, &available) != 0 || available <= 0) {
        return false;
    }
    QByteArray data(std::min(available, _port->maximumBlockSize()), Qt::Uninitialized);
    const auto count = ::read(_descriptor, data.data(), static_cast<size_t>(data.size()));
    if (count <= 0) {
        return false;
    }
    data.truncate(count);
    _mainQueue->async([port = _port, opening = _opening, data = std::move(data)] {
        if (!opening.expired()) {
            port->receiveData(data);
        }
    });
    return true;
}

void PortReader::reportError(const std::stop_token& stop) {
    _mainQueue->sync([port = _port] { port->notifyDelegateOfPosixError(); }, stop);
}
