#include "tests/integration/Station.h"

#include "virtualkeyer/core/Timing.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QTimer>

#include <algorithm>
#include <fcntl.h>
#include <poll.h>
#include <span>
#include <stdexcept>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr auto longest = 10min;
/// Real time, for what takes none in the test's own.
constexpr auto patience = 20s;
constexpr char endMark = '\xEE'; // no byte that the engine sends

std::optional<Station::Time> earlier(std::optional<Station::Time> a,
                                     std::optional<Station::Time> b) {
    return a && b ? std::min(*a, *b) : a ? a : b;
}

QByteArray hex(std::span<const Station::Byte> bytes) {
    QByteArray values;
    for (const auto& byte : bytes) {
        values.append(static_cast<char>(byte.value));
    }
    return values.toHex(' ');
}

} // namespace

Station::Station(const virtualkeyer::Profile& profile, const virtualkeyer::Troubles& troubles,
                 std::uint32_t seed)
    : _keyer(profile, {this}, troubles, seed),
      _nearEnd(::open(QFile::encodeName(_bench.line().path()).constData(),
                      O_WRONLY | O_NOCTTY | O_CLOEXEC)) {
    _bench.clock().setWhileNapping([this](Time duration) { nap(duration); });
}

Station::~Station() {
    _bench.port().setDelegate(nullptr);
    ::close(_nearEnd);
}

bool Station::connect() {
    _keyer.portOpened(_now);
    const bool isConnected = engine().connect(nullptr);
    port().setDelegate(this);
    return isConnected;
}

bool Station::disconnect() {
    const bool hasWorked = engine().disconnect(nullptr);
    _undelivered = 0; // what came last found the port closed
    return hasWorked;
}

bool Station::setUp() {
    const bool isConnected = connect() && waitForQuiet();
    forget();
    return isConnected;
}

void Station::setPaddle(bool dit, bool dah) {
    _keyer.setPaddle(dit, dah, _now);
    runLine();
}

void Station::setPot(int wpm) {
    _keyer.setPot(wpm, _now);
    runLine();
}

void Station::setPushButtons(int mask) {
    _keyer.setPushButtons(static_cast<std::uint8_t>(mask), _now);
    runLine();
}

void Station::setTroubles(const virtualkeyer::Troubles& troubles) {
    _keyer.setTroubles(troubles, _now);
    runLine();
}

void Station::pass(Time duration) {
    const auto end = _now + duration;
    takeFromEngine();
    while (_now < end) {
        moveTo(std::min(nextEvent().value_or(end), end));
    }
}

bool Station::waitUntil(const std::function<bool()>& condition) {
    const auto end = _now + longest;
    takeFromEngine();
    while (!condition()) {
        const auto next = nextEvent();
        if (!next || *next > end) {
            return false;
        }
        moveTo(*next);
    }
    return true;
}

bool Station::waitForQuiet() {
    return waitUntil([this] { return !nextOnTheLine(); });
}

QString Station::keyed() {
    // Without the silence that has grown into a space by now.
    return QString::fromStdString(std::exchange(_keyed, {})).trimmed();
}

QByteArray Station::written() {
    takeFromEngine();
    const auto first = std::exchange(_writtenTold, _written.size());
    return hex(std::span(_written).subspan(first));
}

QByteArray Station::received() {
    const auto first = std::exchange(_receivedTold, _received.size());
    return hex(std::span(_received).subspan(first));
}

void Station::serialPortDidReceiveData(ORSSerialPort& port, const QByteArray& data) {
    _undelivered -= data.size();
    engine().serialPortDidReceiveData(port, data);
}

void Station::serialPortWasOpened(ORSSerialPort& port) {
    engine().serialPortWasOpened(port);
}

void Station::serialPortWillBeClosed(ORSSerialPort& port) {
    engine().serialPortWillBeClosed(port);
}

void Station::serialPortWasRemovedFromSystem(ORSSerialPort& port) {
    engine().serialPortWasRemovedFromSystem(port);
}

/// When the keyer, or a byte on the line, is next due.
std::optional<Station::Time> Station::nextOnTheLine() const {
    return earlier(_keyer.nextEvent(), _decoder.nextEvent());
}

std::optional<Station::Time> Station::nextEvent() {
    const auto timers = _bench.clock().pendingTimers();
    return timers.isEmpty() ? nextOnTheLine() : earlier(nextOnTheLine(), _now + timers.first());
}

/// The engine sleeps: keyer and line go on without it.
void Station::nap(Time duration) {
    _isNapping = true;
    const auto end = _now + duration;
    takeFromEngine();
    while (_now < end) {
        _now = std::min(nextOnTheLine().value_or(end), end);
        runLine();
    }
    _isNapping = false;
}

void Station::moveTo(Time time) {
    _bench.clock().advance(time - _now);
    _now = time;
    runLine();
}

/// Does all that is due by now.
void Station::runLine() {
    takeFromEngine();
    _keyer.advance(_now);
    _decoder.advance(_now);
    _keyed += _decoder.takeText();
    if (const auto arrived = _keyer.takeArrived(); !arrived.empty()) {
        for (const auto byte : arrived) {
            _received.push_back({_now, byte});
        }
        deliver(arrived);
        takeFromEngine();
    }
}

/// Puts on the line what the engine has written by now.
void Station::takeFromEngine() {
    if (::write(_nearEnd, &endMark, 1) != 1) {
        throw std::runtime_error("The line takes nothing.");
    }
    for (QByteArray bytes; !bytes.endsWith(endMark);) {
        pollfd farEnd{_bench.line().farEnd(), POLLIN, 0};
        const auto limit = std::chrono::milliseconds(patience).count();
        if (::poll(&farEnd, 1, static_cast<int>(limit)) != 1) {
            throw std::runtime_error("The line is dead.");
        }
        bytes = _bench.line().readAvailable();
        for (const auto byte : bytes) {
            if (byte != endMark) {
                const auto value = static_cast<std::uint8_t>(byte);
                _written.push_back({_now, value});
                _keyer.send(value, _now);
            }
        }
    }
}

void Station::keyerDid(const virtualkeyer::Event& event, const virtualkeyer::Registers& registers) {
    if (const auto* key = std::get_if<virtualkeyer::KeyLine>(&event.what)) {
        _edges.push_back({event.at, key->isDown});
        _decoder.setTiming(timingOf(registers));
        _decoder.key(key->isDown, event.at);
    }
}

/// Hands what has come at one time to the engine and lets it act on it, unless it sleeps.
void Station::deliver(const std::vector<std::uint8_t>& bytes) {
    if (!port().isOpen()) {
        return;
    }
    const QByteArray data(reinterpret_cast<const char*>(bytes.data()),
                          static_cast<qsizetype>(bytes.size()));
    if (!_bench.line().write(data)) {
        throw std::runtime_error("The line takes nothing.");
    }
    _undelivered += data.size();
    const QDeadlineTimer limit(patience);
    QTimer wakesAtTheLimit;
    wakesAtTheLimit.start(patience);
    while (_undelivered > 0 && !_isNapping) {
        if (limit.hasExpired()) {
            throw std::runtime_error("The engine has not got a byte.");
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void Station::forget() {
    _edges.clear();
    _written.clear();
    _received.clear();
    _writtenTold = 0;
    _receivedTold = 0;
    _keyed.clear();
}
