#include "keyer/ChosenSpeed.h"
#include "loggers/LoggerQueue.h"
#include "tests/integration/Station.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const LoggerAddress logger{QHostAddress(QHostAddress::LocalHost), 4001};
const LoggerAddress otherLogger{QHostAddress(QHostAddress::LocalHost), 4002};

} // namespace

/// What loggers ask for, as it comes out of the keyer.
class LoggerQueueWireTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void aContestExchangeIsKeyed();
    void prosignsAreKeyed();
    void charactersOneByOneAreKeyedWithoutAGap();
    void theReplyComesWhenTheLastElementIsKeyed();
    void speedSignsChangeTheDits();
    void anAbortLetsTheKeyUp();
    void twoLoggersAndTheOperatorShareTheKeyer();
    void thePaddleComesFirst();
    void tuneLetsGo();

  private:
    void take(const QByteArray& datagram, const LoggerAddress& from = logger) {
        _queue->take(LoggerRequest::read(datagram), from);
    }
    [[nodiscard]] QString keyed() {
        return _station->waitForQuiet() ? _station->keyed() : u"the keyer is never quiet"_s;
    }

    std::optional<Station> _station;
    std::optional<ChosenSpeed> _speed;
    std::optional<LoggerQueue> _queue;
    QStringList _replies;
    Station::Time _repliedAt{0};
};

void LoggerQueueWireTest::init() {
    _station.emplace();
    _speed.emplace(_station->engine());
    _queue.emplace(_station->engine(), *_speed);
    QObject::connect(&*_queue, &LoggerQueue::replied, this,
                     [this](const QByteArray& reply, const LoggerAddress&) {
                         _replies.append(QString::fromLatin1(reply).trimmed());
                         _repliedAt = _station->now();
                     });
    QVERIFY(_station->setUp());
    _station->type(u"E"_s); // its status says that the keyer is idle
    QCOMPARE(keyed(), u"E"_s);
    _station->engine().stopMessageSending(nullptr);
    QVERIFY(_station->waitForQuiet());
    _station->forget();
    _replies.clear();
}

void LoggerQueueWireTest::cleanup() {
    _queue.reset();
    _speed.reset();
    _station.reset();
}

void LoggerQueueWireTest::aContestExchangeIsKeyed() {
    take("w9xyz 5nn 001 ");
    QCOMPARE(keyed(), u"W9XYZ 5NN 001"_s);
    take("tu n0call test");
    QCOMPARE(keyed(), u"TU N0CALL TEST"_s);
}

void LoggerQueueWireTest::prosignsAreKeyed() {
    take("a*=<(&");
    static_cast<void>(keyed());
    QCOMPARE(_station->edges().size(), 2U * (2 + 5 + 5 + 6 + 5 + 5));
    _station->forget();
    take(" !e^");
    static_cast<void>(keyed());
    // SN in one, and the E behind it with a letter's space.
    const auto& edges = _station->edges();
    QCOMPARE(edges.size(), 2U * 6);
    constexpr std::chrono::milliseconds dit{60};
    for (std::size_t i = 1; i < 5; ++i) {
        QVERIFY(edges[2 * i].at - edges[2 * i - 1].at == dit);
    }
    QVERIFY(edges[10].at - edges[9].at >= 3 * dit);
    QVERIFY(edges[10].at - edges[9].at < 4 * dit);
    QCOMPARE(_replies, QStringList(u"!e"_s));
}

void LoggerQueueWireTest::charactersOneByOneAreKeyedWithoutAGap() {
    for (const auto* each : {"\x1Bh1", "e", "\x1Bh2", "e", "\x1Bh3", "e"}) {
        take(each);
    }
    QCOMPARE(keyed(), u"EEE"_s);
    const auto& edges = _station->edges();
    QCOMPARE(edges.size(), 6U);
    QVERIFY(edges[2].at - edges[1].at == 180ms);
    QVERIFY(edges[4].at - edges[3].at == 180ms);
    QCOMPARE(_replies, QStringList({u"h1"_s, u"h2"_s, u"h3"_s}));
}

void LoggerQueueWireTest::theReplyComesWhenTheLastElementIsKeyed() {
    take("paris^");
    QCOMPARE(keyed(), u"PARIS"_s);
    QCOMPARE(_replies, QStringList(u"paris"_s));
    const auto end = _station->edges().back().at;
    QVERIFY(_repliedAt > end);
    QVERIFY(_repliedAt < end + 100ms);
}

void LoggerQueueWireTest::speedSignsChangeTheDits() {
    take("e+++++e-----e");
    QCOMPARE(keyed().remove(u' '), u"EEE"_s); // at a higher speed a letter's space is a word's
    const auto& edges = _station->edges();
    QCOMPARE(edges.size(), 6U);
    QVERIFY(edges[1].at - edges[0].at == 60ms);
    QVERIFY(edges[3].at - edges[2].at == 40ms);
    QVERIFY(edges[5].at - edges[4].at == 60ms);
    _station->forget();
    take("e");
    static_cast<void>(keyed());
    QVERIFY(_station->edges()[1].at - _station->edges()[0].at == 60ms);
}

void LoggerQueueWireTest::anAbortLetsTheKeyUp() {
    take("ttttt^");
    QVERIFY(_station->waitUntil([this] { return _station->edges().size() == 3; }));
    take("\x1B"
         "4");
    _station->pass(300ms);
    QVERIFY(!_station->isKeyDown());
    const auto edges = _station->edges().size();
    _station->pass(10s);
    QCOMPARE(_station->edges().size(), edges);
    QCOMPARE(_replies, QStringList(u"break"_s));
    take("e^");
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_replies, QStringList({u"break"_s, u"e"_s}));
}

void LoggerQueueWireTest::twoLoggersAndTheOperatorShareTheKeyer() {
    auto& engine = _station->engine();
    take("one^");
    take("two^", otherLogger);
    _station->pass(200ms);
    _station->type(engine.keyboardBuffer() + u" op"_s);
    QVERIFY(_station->waitUntil([this] { return _replies.size() == 2; }));
    QCOMPARE(keyed(), u"ONE OP TWO"_s);
    QCOMPARE(_replies, QStringList({u"one"_s, u"two"_s}));
}

void LoggerQueueWireTest::thePaddleComesFirst() {
    take("paris paris^");
    take("test^", otherLogger);
    _station->pass(2s);
    _station->setPaddle(true, false);
    _station->pass(50ms);
    _station->setPaddle(false, false);
    _station->pass(100ms);
    QCOMPARE(_replies, QStringList({u"break"_s, u"break"_s}));
    take("refused^");
    QVERIFY(_station->waitForQuiet());
    _station->forget();
    _station->pass(1min);
    QCOMPARE(_station->edges().size(), 0U);
    QCOMPARE(_replies.size(), 3);
    take("e^");
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->edges().size(), 2U);
}

void LoggerQueueWireTest::tuneLetsGo() {
    take("\x1B"
         "c60");
    _station->pass(9900ms);
    QVERIFY(_station->isKeyDown());
    _station->pass(200ms);
    QVERIFY(!_station->isKeyDown());
    _station->pass(1min);
    QCOMPARE(_station->edges().size(), 2U);
}

static const RegisteredTest<LoggerQueueWireTest> registered;
#include "LoggerQueueWireTest.moc"
