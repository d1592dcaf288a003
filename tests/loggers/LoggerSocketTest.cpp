#include "loggers/LoggerSocket.h"

#include "keyer/ChosenSpeed.h"
#include "keyer/GeneralSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "loggers/LoggerQueue.h"
#include "loggers/SocketUsers.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QFile>
#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QUdpSocket>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// A port that nobody has just now.
quint16 freePort() {
    QUdpSocket socket;
    return socket.bind(QHostAddress(QHostAddress::LocalHost)) ? socket.localPort() : quint16(0);
}

/// For how long this thread has had a processor, which other programs do not lengthen.
std::chrono::nanoseconds ownTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

} // namespace

/// The real socket, on a port of the test's own.
class LoggerSocketTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itIsOffByDefault();
    void itHearsOnTheLoopbackAddressesAlone();
    void aLoggersTextIsKeyedAndAnswered_data();
    void aLoggersTextIsKeyedAndAnswered();
    void aLongDatagramIsLeftOut();
    void theOperatorIsToldWhoSends();
    void whoBeginsSoonAfterAnotherIsNamedToo();
    void aPortThatIsTakenIsToldWithItsHolder();
    void anotherPortIsTakenUp();
    void switchedOffItHearsNobody();
    void theEndDropsWhatALoggerSends();
    void aFloodLeavesTheEventLoopItsTurns();

  private:
    [[nodiscard]] WinKeyerUsb& engine() { return _bench->engine(); }
    void switchOn(bool isOn) { _bench->settings().setObject(isOn, AcceptLoggers); }
    void send(const QByteArray& datagram) {
        _logger.writeDatagram(datagram, QHostAddress(QHostAddress::LocalHost), _port);
    }

    std::optional<EngineBench> _bench;
    std::optional<ChosenSpeed> _speed;
    std::optional<LoggerQueue> _queue;
    std::optional<LoggerSocket> _socket;
    QUdpSocket _logger;
    quint16 _port = 0;
};

void LoggerSocketTest::init() {
    _bench.emplace();
    _port = freePort();
    _bench->settings().setObject(_port, LoggerPort.key);
    _speed.emplace(engine());
    _queue.emplace(engine(), *_speed);
    _socket.emplace(*_queue, _bench->settings());
    QVERIFY(_bench->connect());
    _bench->receive({0xC0});
    QVERIFY(_logger.bind(QHostAddress(QHostAddress::LocalHost)));
}

void LoggerSocketTest::cleanup() {
    _logger.close();
    _socket.reset();
    _queue.reset();
    _speed.reset();
    _bench.reset();
}

void LoggerSocketTest::itIsOffByDefault() {
    QVERIFY(!_socket->isOpen());
    QCOMPARE(_socket->notice(), u""_s);
    QUdpSocket other;
    QVERIFY(other.bind(QHostAddress(QHostAddress::LocalHost), _port,
                       QAbstractSocket::DontShareAddress));
}

/// As the system tells it.
void LoggerSocketTest::itHearsOnTheLoopbackAddressesAlone() {
    switchOn(true);
    QVERIFY(_socket->isOpen());
    const auto suffix = ":" + QByteArray::number(_port, 16).rightJustified(4, '0').toUpper();
    QList<QByteArray> addresses;
    for (const auto* table : {"/proc/net/udp", "/proc/net/udp6"}) {
        QFile file(QString::fromLatin1(table));
        if (!file.open(QIODevice::ReadOnly)) {
            continue;
        }
        for (const auto& line : file.readAll().split('\n')) {
            const auto address = line.simplified().split(' ').value(1);
            if (address.endsWith(suffix)) {
                addresses.append(address.chopped(suffix.size()));
            }
        }
    }
    QVERIFY(addresses.contains("0100007F"));
    addresses.removeOne("0100007F");
    addresses.removeOne("00000000000000000000000001000000");
    QCOMPARE(addresses, QList<QByteArray>());
}

void LoggerSocketTest::aLoggersTextIsKeyedAndAnswered_data() {
    QTest::addColumn<QHostAddress>("address");
    QTest::newRow("the old address") << QHostAddress(QHostAddress::LocalHost);
    const QHostAddress newer(QHostAddress::LocalHostIPv6);
    if (QNetworkInterface::allAddresses().contains(newer)) {
        QTest::newRow("the new address") << newer;
    }
}

void LoggerSocketTest::aLoggersTextIsKeyedAndAnswered() {
    QFETCH(const QHostAddress, address);
    switchOn(true);
    QUdpSocket logger;
    QVERIFY(logger.bind(address));
    logger.writeDatagram("\x1Bh7", address, _port);
    logger.writeDatagram("e\r\n", address, _port);
    QTRY_COMPARE(engine().keyboardBuffer(), u"E"_s);
    QVERIFY(!logger.hasPendingDatagrams());
    _bench->receive({'E'});
    QTRY_VERIFY(logger.hasPendingDatagrams());
    const auto reply = logger.receiveDatagram();
    QCOMPARE(reply.data(), QByteArray("h7\r\n"));
    QCOMPARE(reply.senderPort(), int(_port));
}

void LoggerSocketTest::aLongDatagramIsLeftOut() {
    switchOn(true);
    send(QByteArray(257, 'e'));
    send(QByteArray(60'000, 'e'));
    send("");
    send("t");
    QTRY_COMPARE(engine().keyboardBuffer(), u"T"_s);
}

void LoggerSocketTest::theOperatorIsToldWhoSends() {
    switchOn(true);
    QCOMPARE(_socket->notice(), u"Loggers: port %1"_s.arg(_port));
    send("e");
    QFile name(u"/proc/self/comm"_s);
    QVERIFY(name.open(QIODevice::ReadOnly));
    const auto own = QString::fromLocal8Bit(name.readAll()).trimmed();
    QTRY_COMPARE(_socket->notice(), u"Loggers: port %1, last from %2"_s.arg(_port).arg(own));
}

/// When the look for the first has been rested from.
void LoggerSocketTest::whoBeginsSoonAfterAnotherIsNamedToo() {
    switchOn(true);
    const QSignalSpy found(&*_socket, &LoggerSocket::senderFound);
    QUdpSocket other;
    QVERIFY(other.bind(QHostAddress(QHostAddress::LocalHost)));
    send("e");
    QTRY_COMPARE(found.count(), 1);
    other.writeDatagram("t", QHostAddress(QHostAddress::LocalHost), _port);
    _bench->receive({'E'});
    QTRY_COMPARE(engine().keyboardBuffer(), u"E T"_s);
    QCOMPARE(found.count(), 1);
    _bench->clock().advance(SenderNames::shortestRest);
    QTRY_COMPARE(found.count(), 2);
    QCOMPARE(found[1][0].toInt(), int(other.localPort()));
    QCOMPARE(found[1][1], found[0][1]);
    QVERIFY(!found[1][1].toString().isEmpty());
}

void LoggerSocketTest::aPortThatIsTakenIsToldWithItsHolder() {
    QUdpSocket other;
    QVERIFY(
        other.bind(QHostAddress(QHostAddress::AnyIPv4), _port, QAbstractSocket::DontShareAddress));
    switchOn(true);
    QVERIFY(!_socket->isOpen());
    const auto holder = SocketUsers::of(_port);
    QVERIFY(!holder.isEmpty());
    QCOMPARE(_socket->notice(), u"Loggers: port %1 is taken by %2"_s.arg(_port).arg(holder));
    other.close();
    switchOn(false);
    QCOMPARE(_socket->notice(), u""_s);
    switchOn(true);
    QVERIFY(_socket->isOpen());
}

void LoggerSocketTest::anotherPortIsTakenUp() {
    switchOn(true);
    const auto former = _port;
    while (_port == former) {
        _port = freePort();
    }
    _bench->settings().setObject(_port, LoggerPort.key);
    QVERIFY(_socket->isOpen());
    send("e");
    QTRY_COMPARE(engine().keyboardBuffer(), u"E"_s);
    QVERIFY(SocketUsers::of(former).isNull());
    for (const int none : {0, 22, -5, 70'000}) {
        _bench->settings().setObject(none, LoggerPort.key);
        QVERIFY(!_socket->isOpen());
        QVERIFY(!_socket->notice().isEmpty());
    }
}

void LoggerSocketTest::switchedOffItHearsNobody() {
    switchOn(true);
    send("ab^");
    QTRY_COMPARE(engine().keyboardBuffer(), u"AB"_s);
    switchOn(false);
    QCOMPARE(engine().keyboardBuffer(), u""_s);
    QTRY_VERIFY(_logger.hasPendingDatagrams());
    QCOMPARE(_logger.receiveDatagram().data(), QByteArray("break\r\n"));
    QVERIFY(SocketUsers::of(_port).isNull());
}

void LoggerSocketTest::theEndDropsWhatALoggerSends() {
    switchOn(true);
    send("\x1B"
         "c10");
    QTRY_COMPARE(engine().tuneState(), 1);
    _socket->close();
    QCOMPARE(engine().tuneState(), 0);
    QVERIFY(_bench->written().endsWith("0b 00"));
}

/// What is done in the loop meanwhile is done as often as ever, however much comes.
void LoggerSocketTest::aFloodLeavesTheEventLoopItsTurns() {
    switchOn(true);
    constexpr int datagrams = 400;
    for (int i = 0; i < datagrams; ++i) {
        send("e^");
    }
    int turns = 0;
    auto before = ownTime();
    auto longest = std::chrono::nanoseconds(0);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        ++turns;
        const auto now = ownTime();
        longest = std::max(longest, now - before);
        before = now;
    });
    timer.start(0);
    int answers = 0;
    const auto count = [&] {
        while (_logger.hasPendingDatagrams()) {
            static_cast<void>(_logger.receiveDatagram());
            ++answers;
        }
        return answers;
    };
    // The socket may have had no room for all of them.
    QTRY_VERIFY(count() >= 100);
    QVERIFY2(turns >= answers / 20, qPrintable(u"%1 turns, %2 answers"_s.arg(turns).arg(answers)));
    qInfo("The longest of %d turns took %.2f ms", turns,
          static_cast<double>(longest.count()) / 1e6);
    QVERIFY(longest < std::chrono::milliseconds(20));
}

static const RegisteredTest<LoggerSocketTest> registered;
#include "LoggerSocketTest.moc"
