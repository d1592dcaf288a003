#include "serial/PortReader.h"

#include "platform/MainQueue.h"
#include "platform/WorkerThread.h"
#include "serial/ORSSerialPort.h"

#include <algorithm>
#include <array>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr auto passTime = 100ms;
constexpr int bufferSize = 1024;

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
        _backlog->awaitRoom(stop);
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

// Somebody else may have taken by now what there was to be read; this descriptor does not wait
// for more, so that the reader can be ended at any time.
bool PortReader::readOnce() {
    std::array<char, bufferSize> buffer{};
    const auto most = std::min(_port->maximumBlockSize(), bufferSize);
    const auto count = ::read(_descriptor, buffer.data(), static_cast<size_t>(most));
    if (count <= 0) {
        return false;
    }
    _backlog->add();
    _mainQueue->async([port = _port, opening = _opening, backlog = _backlog,
                       data = QByteArray(buffer.data(), count)] {
        backlog->remove();
        if (!opening.expired()) {
            port->receiveData(data);
        }
    });
    return true;
}

void PortReader::reportError(const std::stop_token& stop) {
    _mainQueue->sync([port = _port] { port->notifyDelegateOfPosixError(); }, stop);
}
