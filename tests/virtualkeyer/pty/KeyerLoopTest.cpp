#include "virtualkeyer/pty/KeyerLoop.h"

#include "tests/support/RegisteredTest.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <fcntl.h>
#include <future>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <sys/eventfd.h>

using virtualkeyer::Event;
using virtualkeyer::FileDescriptor;
using virtualkeyer::KeyerListener;
using virtualkeyer::KeyerLoop;
using virtualkeyer::KeyerPort;
using virtualkeyer::Operator;
using virtualkeyer::Profile;
using virtualkeyer::Registers;
using virtualkeyer::SerialKeyer;
using virtualkeyer::Time;
using virtualkeyer::Troubles;

namespace {

/// A keyer that runs on a thread of its own until it is stopped.
class RunningKeyer {
  public:
    explicit RunningKeyer(const std::vector<KeyerListener*>& listeners = {},
                          const Troubles& troubles = {},
                          const std::vector<Operator*>& operators = {})
        : _stop(::eventfd(0, EFD_CLOEXEC)),
          _keyer(Profile{}, listeners, troubles),
          _loop(_keyer, _port, operators),
          _end(std::async(std::launch::async, [this] { _loop.run(_stop.number()); })) {}
    ~RunningKeyer() {
        if (_end.valid()) {
            stop();
        }
    }

    [[nodiscard]] FileDescriptor openPort() const {
        return FileDescriptor(::open(_path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK));
    }
    void stop() {
        const std::uint64_t one = 1;
        if (::write(_stop.number(), &one, sizeof one) < 0) {
            qFatal("cannot stop the keyer");
        }
        _end.wait();
    }
    /// Rethrows what ended the loop.
    void waitForEnd() { _end.get(); }

  private:
    FileDescriptor _stop;
    QTemporaryDir _runtime;
    KeyerPort _port{_runtime.path().toStdString(), "keyer"};
    const std::string _path = _port.path(); ///< the link's, which is made anew on the other thread
    SerialKeyer _keyer;
    KeyerLoop _loop;
    std::future<void> _end;
};

/// Pulls the adapter and plugs it in at once, each time that it is told to.
class Fiddler : public Operator {
  public:
    void pullAndPlug() {
        const std::uint64_t one = 1;
        if (::write(_orders.number(), &one, sizeof one) < 0) {
            qFatal("nobody hears");
        }
    }
    [[nodiscard]] int descriptor() const override { return _orders.number(); }
    void work(SerialKeyer& keyer, bool isReadable, Time now) override {
        std::uint64_t count = 0;
        if (isReadable && ::read(_orders.number(), &count, sizeof count) > 0) {
            keyer.pull(now);
            keyer.plugIn(now);
        }
    }

  private:
    FileDescriptor _orders{::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
};

/// Whether the far end goes within 10 s.
bool isHungUp(const FileDescriptor& port) {
    pollfd state{port.number(), 0, 0};
    return ::poll(&state, 1, 10'000) == 1 && (state.revents & POLLHUP) != 0;
}

class FailingListener : public KeyerListener {
  public:
    void keyerDid(const Event&, const Registers&) override { throw std::runtime_error("enough"); }
};

void send(const FileDescriptor& port, const std::string& bytes) {
    if (::write(port.number(), bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) {
        qFatal("the port takes no more");
    }
}

/// The next `count` bytes; fewer when they do not come within 10 s.
std::string receive(const FileDescriptor& port, std::size_t count) {
    std::string bytes;
    while (bytes.size() < count) {
        pollfd state{port.number(), POLLIN, 0};
        char byte = 0;
        if (::poll(&state, 1, 10'000) != 1 || ::read(port.number(), &byte, 1) != 1) {
            break;
        }
        bytes += byte;
    }
    return bytes;
}

std::string echoRequest(char byte) {
    return {'\0', '\4', byte};
}

} // namespace

class KeyerLoopTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aByteIsNotBackBeforeTheLineCanHaveCarriedIt();
    void aBurstIsNotFasterThanTheLine();
    void theApplicationMayCloseAndOpenThePort();
    void aPullAndAPlugAtOnceAreAnotherTerminal();
    void aHangUpIsAnotherTerminal();
    void bytesThatArriveTogetherAreReadTogether();
    void aListenersFailureEndsTheLoop();
    void aStopRequestBeforeTheStartEndsItAtOnce();
};

void KeyerLoopTest::aByteIsNotBackBeforeTheLineCanHaveCarriedIt() {
    const RunningKeyer keyer;
    const FileDescriptor port = keyer.openPort();
    QElapsedTimer timer;
    timer.start();
    send(port, echoRequest('U'));
    QCOMPARE(receive(port, 1), std::string("U"));
    QVERIFY2(timer.nsecsElapsed() >= qint64{4} * 9'166'666,
             qPrintable(QString::number(timer.elapsed())));
}

void KeyerLoopTest::aBurstIsNotFasterThanTheLine() {
    const RunningKeyer keyer;
    const FileDescriptor port = keyer.openPort();
    std::string burst;
    std::string expected;
    for (int i = 0; i < 20; ++i) {
        const char byte = static_cast<char>('A' + i);
        burst += echoRequest(byte);
        expected += byte;
    }
    QElapsedTimer timer;
    timer.start();
    send(port, burst);
    QCOMPARE(receive(port, expected.size()), expected);
    QVERIFY2(timer.nsecsElapsed() >= qint64{61} * 9'166'666,
             qPrintable(QString::number(timer.elapsed())));
}

void KeyerLoopTest::theApplicationMayCloseAndOpenThePort() {
    const RunningKeyer keyer;
    for (const char byte : {'A', 'B', 'C'}) {
        const FileDescriptor port = keyer.openPort();
        QVERIFY(port.isOpen());
        send(port, echoRequest(byte));
        QCOMPARE(receive(port, 1), std::string(1, byte));
    }
}

void KeyerLoopTest::aPullAndAPlugAtOnceAreAnotherTerminal() {
    Fiddler fiddler;
    const RunningKeyer keyer({}, {}, {&fiddler});
    const FileDescriptor port = keyer.openPort();
    send(port, echoRequest('U'));
    QCOMPARE(receive(port, 1), std::string("U"));
    fiddler.pullAndPlug();
    QVERIFY(isHungUp(port));
    FileDescriptor next;
    QTRY_VERIFY((next = keyer.openPort()).isOpen());
    send(next, echoRequest('V'));
    QCOMPARE(receive(next, 1), std::string("V"));
}

void KeyerLoopTest::aHangUpIsAnotherTerminal() {
    const RunningKeyer keyer({}, {.hangUp = Time{std::chrono::milliseconds{100}}});
    const FileDescriptor port = keyer.openPort();
    QVERIFY(isHungUp(port));
    QTRY_VERIFY(keyer.openPort().isOpen());
}

void KeyerLoopTest::bytesThatArriveTogetherAreReadTogether() {
    const RunningKeyer keyer({}, {.joined = std::chrono::milliseconds{500}});
    const FileDescriptor port = keyer.openPort();
    send(port, echoRequest('U') + echoRequest('V') + echoRequest('W'));
    pollfd state{port.number(), POLLIN, 0};
    std::array<char, 8> bytes{};
    std::size_t reads = 0;
    std::size_t size = 0;
    while (size < 3) {
        QCOMPARE(::poll(&state, 1, 10'000), 1);
        const auto got = ::read(port.number(), bytes.data(), bytes.size());
        QVERIFY(got > 0);
        size += static_cast<std::size_t>(got);
        ++reads;
    }
    // They take a tenth of a second on the line, which a tick of the adapter's may fall into.
    QVERIFY2(reads <= 2, qPrintable(QString::number(reads)));
}

void KeyerLoopTest::aListenersFailureEndsTheLoop() {
    FailingListener listener;
    RunningKeyer keyer({&listener});
    const FileDescriptor port = keyer.openPort();
    send(port, echoRequest('U'));
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, keyer.waitForEnd());
}

void KeyerLoopTest::aStopRequestBeforeTheStartEndsItAtOnce() {
    const FileDescriptor stop(::eventfd(1, EFD_CLOEXEC));
    const QTemporaryDir runtime;
    KeyerPort port(runtime.path().toStdString(), "keyer");
    SerialKeyer keyer(Profile{}, {});
    KeyerLoop(keyer, port).run(stop.number());
    std::uint64_t value = 0;
    QCOMPARE(::read(stop.number(), &value, sizeof value), 8);
}

static const RegisteredTest<KeyerLoopTest> registered;
#include "KeyerLoopTest.moc"
