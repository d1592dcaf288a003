// Any datagrams, in any order, while the keyer echoes: the engine goes on, no key is left down, and
// no more waits than may.

#include "fuzz/FuzzEngine.h"
#include "keyer/ChosenSpeed.h"
#include "loggers/LoggerQueue.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto& fuzz = FuzzEngine::instance();
    fuzz.reset();
    fuzz.receive("\x8C");
    fuzz.receive("\xC0");
    ChosenSpeed speed(fuzz.engine());
    std::optional<LoggerQueue> queue(std::in_place, fuzz.engine(), speed);
    const LoggerAddress from{QHostAddress(QHostAddress::LocalHost), 4001};
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const auto& datagram : input.split('\xFE')) {
        queue->take(LoggerRequest::read(datagram), from);
        fuzz.receive("E");
        fuzz.clock().advance(std::chrono::milliseconds(datagram.size()));
    }
    queue->reset();
    queue.reset();
    if (fuzz.engine().tuneState() != 0 ||
        fuzz.engine().outputBufferIndex() > fuzz.engine().keyboardBuffer().size()) {
        std::abort();
    }
    return 0;
}
