// Lives of serial ports in random order: they arrive, are opened, carry data, are closed, hang up
// and are removed, several at a time. In the end nothing may be left of them.
//
// QUORVEL_SOAK_CYCLES is the number of lives, QUORVEL_SOAK_SEED repeats a run.

#include "serial/ORSSerialPortManager.h"
#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/RecordingDelegate.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QDir>
#include <QTest>

#include <array>
#include <malloc.h>
#include <memory>
#include <optional>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int usualCycles = 300;
/// What the heap may have grown by after the first tenth of all lives: what the allocator keeps for
/// later, and for each life half of the smallest block that could have been left behind.
constexpr size_t heapSlack = 65536;
constexpr size_t heapSlackOfEach = 16;

qsizetype entryCount(const QString& directory) {
    return QDir(directory).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System).size();
}

/// What a process can leak and the system counts.
struct Census {
    qsizetype descriptors = entryCount(u"/proc/self/fd"_s);
    qsizetype threads = entryCount(u"/proc/self/task"_s);
    size_t heap = ::mallinfo2().uordblks;
};

/// One socket into which adapters are plugged, one after the other.
struct Socket {
    std::unique_ptr<PseudoTerminalPair> line;
    DeviceHandle device = noDevice;
    std::weak_ptr<ORSSerialPort> port;
    std::unique_ptr<RecordingDelegate> delegate;
};

} // namespace

class PortLifeCycleSoak : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void nothingIsLeftOfThePortsThatCameAndWent();

  private:
    void plug(Socket& socket);
    void step(Socket& socket);
    void transfer(Socket& socket);
    void unplug(Socket& socket);
    [[nodiscard]] bool chance(int percent) {
        return std::uniform_int_distribution(1, 100)(_random) <= percent;
    }

    std::optional<TestPlatform> _platform;
    std::mt19937 _random;
    std::array<Socket, 4> _sockets;
    int _unplugged = 0;
    int _transfers = 0;
};

void PortLifeCycleSoak::plug(Socket& socket) {
    socket.line = std::make_unique<PseudoTerminalPair>();
    socket.delegate = std::make_unique<RecordingDelegate>();
    socket.device = _platform->devices().plug(u"line"_s, socket.line->path());
    const auto port = ORSSerialPort::existingPortWithPath(socket.line->path());
    QVERIFY(port != nullptr);
    port->setDelegate(socket.delegate.get());
    socket.port = port;
    QCOMPARE(_platform->devices().retainCount(socket.device), 1);
}

void PortLifeCycleSoak::transfer(Socket& socket) {
    const auto port = socket.port.lock();
    const auto length = std::uniform_int_distribution<qsizetype>(0, 64)(_random);
    const auto data = QByteArray::number(++_transfers) + QByteArray(length, '-') + ';';
    QVERIFY(socket.line->write(data));
    QVERIFY(port->sendData(data));
    QCOMPARE(socket.line->read(data.size()), data);
    // Without waiting the bytes may still be under way when the port is closed or removed.
    if (chance(70)) {
        QTRY_VERIFY(socket.delegate->received().endsWith(data));
    }
}

void PortLifeCycleSoak::unplug(Socket& socket) {
    if (chance(50)) {
        socket.line->hangUp();
    }
    if (chance(30)) {
        QCoreApplication::processEvents();
    }
    const auto path = socket.line->path();
    _platform->devices().unplug(socket.device);
    QCOMPARE(socket.delegate->count(u"removed"_s), 1);
    QCOMPARE(socket.delegate->count(u"thread"_s), 0);
    // A port never gives its device back; for the counting's sake the test does.
    QCOMPARE(_platform->devices().retainCount(socket.device), 1);
    _platform->devices().forgetRetains(socket.device);
    // What is left in the main queue may hold the port a little longer.
    QTRY_VERIFY(socket.port.expired());
    QCOMPARE(ORSSerialPort::existingPortWithPath(path), nullptr);
    socket = {};
    ++_unplugged;
}

void PortLifeCycleSoak::step(Socket& socket) {
    if (socket.device == noDevice) {
        plug(socket);
        return;
    }
    if (chance(30)) {
        unplug(socket);
        return;
    }
    const auto port = socket.port.lock();
    if (!port->isOpen()) {
        port->open();
        QVERIFY(port->isOpen());
    } else if (chance(20)) {
        QVERIFY(port->close());
    } else {
        transfer(socket);
    }
}

void PortLifeCycleSoak::nothingIsLeftOfThePortsThatCameAndWent() {
    const int cycles = qEnvironmentVariableIntValue("QUORVEL_SOAK_CYCLES") > 0
                           ? qEnvironmentVariableIntValue("QUORVEL_SOAK_CYCLES")
                           : usualCycles;
    const auto seed = qEnvironmentVariableIsSet("QUORVEL_SOAK_SEED")
                          ? qEnvironmentVariable("QUORVEL_SOAK_SEED").toUInt()
                          : std::random_device()();
    qInfo("%d cycles with QUORVEL_SOAK_SEED=%u", cycles, seed);
    _random.seed(seed);
    _platform.emplace();
    auto& manager = ORSSerialPortManager::sharedSerialPortManager();
    const Census before;
    std::optional<Census> early;
    while (_unplugged < cycles) {
        step(_sockets[std::uniform_int_distribution<size_t>(0, _sockets.size() - 1)(_random)]);
        if (QTest::currentTestFailed()) {
            return;
        }
        if (!early && _unplugged >= cycles / 10) {
            early.emplace();
        }
    }
    for (auto& socket : _sockets) {
        if (socket.device != noDevice) {
            unplug(socket);
        }
    }
    QCOMPARE(manager.countOfAvailablePorts(), 0);
    // A driver may keep its thread and descriptor longer than a port waits for them, and the system
    // lists a thread a moment longer than whoever has joined it waits.
    QTRY_COMPARE(Census().threads, before.threads);
    QTRY_COMPARE(Census().descriptors, before.descriptors);
    const Census after;
    const auto lives = static_cast<size_t>(cycles);
    qInfo("descriptors %lld, %lld; threads %lld, %lld; heap %zu, %zu bytes", before.descriptors,
          after.descriptors, before.threads, after.threads, early->heap, after.heap);
    QVERIFY(after.heap <= early->heap + heapSlack + heapSlackOfEach * lives);
}

static const RegisteredTest<PortLifeCycleSoak> registered;
#include "PortLifeCycleSoak.moc"
