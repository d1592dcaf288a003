#include "tests/integration/Station.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// How the link to a keyer comes up and goes down, as both ends of the line see it.
class WireConnectionTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { _station.emplace(); }
    void cleanup() { _station.reset(); }

    void connectingOpensTheKeyer();
    void theAnswersTakeTheirTimeOnTheLine();
    void theSpeedFollowsThePot();
    void theTopOfThePotsRangeReadsAsAnEcho();
    void disconnectingClosesTheKeyerAndThenThePort();
    void disconnectingSilencesTheKeyer();
    void aClosedKeyerIsOpenedAgain();

  private:
    std::optional<Station> _station;
};

void WireConnectionTest::connectingOpensTheKeyer() {
    QVERIFY(_station->connect());
    QCOMPARE(_station->written(), QByteArray("13 13 13 13 00 04 55 00 02 00 0b "
                                             "0f 15 00 8a 32 00 0a 0d 20 00 00 0a 32 32 06 00 07"));
    QCOMPARE(_station->engine().speedString(), QString());

    QVERIFY(_station->waitForQuiet());
    // The test character, the version, push-buttons all up, the pot at 7 above its minimum.
    QCOMPARE(_station->received(), QByteArray("55 17 c8 87"));
    QCOMPARE(_station->engine().speedString(), u"20 WPM"_s);
    QCOMPARE(_station->registers().block(),
             (std::array<std::uint8_t, 15>{0x15, 0, 0x8A, 50, 0, 10, 13, 32, 0, 0, 10, 50, 50, 0x06,
                                           0}));
    QCOMPARE(_station->written(), QByteArray());
    QCOMPARE(_station->keyed(), QString());
}

void WireConnectionTest::theAnswersTakeTheirTimeOnTheLine() {
    QVERIFY(_station->connect());
    QVERIFY(_station->waitForQuiet());
    const auto& received = _station->allReceived();
    QCOMPARE(received.size(), 4U);
    // Each answer is complete one byte after the command that it answers, at 11 bits a byte.
    const auto bytes = [](int count) { return Station::Time(count * 11'000'000'000 / 1200); };
    QVERIFY(received[0].at - bytes(7 + 1) < 1us);
    QVERIFY(received[1].at - bytes(9 + 1) < 1us);
    QVERIFY(received[2].at - bytes(11 + 1) < 1us);
    QVERIFY(received[3].at - bytes(28 + 1) < 1us);
    QVERIFY(received[3].at >= bytes(28 + 1));
}

void WireConnectionTest::theSpeedFollowsThePot() {
    QVERIFY(_station->setUp());
    _station->setPot(30);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->engine().speedString(), u"30 WPM"_s);
    _station->setPot(44);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->engine().speedString(), u"44 WPM"_s);
    QCOMPARE(_station->received(), QByteArray("91 9f"));
}

void WireConnectionTest::theTopOfThePotsRangeReadsAsAnEcho() {
    QVERIFY(_station->setUp());
    // 32 above the minimum is one more than a pot byte has room for.
    _station->setPot(45);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->received(), QByteArray("a0"));
    QCOMPARE(_station->engine().speedString(), u"20 WPM"_s);
}

void WireConnectionTest::disconnectingClosesTheKeyerAndThenThePort() {
    QVERIFY(_station->setUp());
    const auto begin = _station->now();
    QVERIFY(_station->disconnect());

    QCOMPARE(_station->written(), QByteArray("00 03"));
    QVERIFY(_station->allWritten().front().at == begin + 1s);
    QVERIFY(_station->now() == begin + 2s);
    QVERIFY(!_station->port().isOpen());
    QCOMPARE(_station->engine().speedString(), QString());
    // The keyer is on its own again, with its own settings.
    QCOMPARE(_station->registers().value(virtualkeyer::Register::Mode), std::uint8_t{0});
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->received(), QByteArray());
}

void WireConnectionTest::disconnectingSilencesTheKeyer() {
    QVERIFY(_station->setUp());
    _station->type(u"OOOOO"_s);
    QVERIFY(_station->waitUntil([this] { return _station->isKeyDown(); }));
    QVERIFY(_station->disconnect());
    QVERIFY(_station->waitForQuiet());
    // The letter under way ends before the keyer is closed; no other has reached it.
    QCOMPARE(_station->keyed(), u"O"_s);
    QCOMPARE(_station->written(), QByteArray("4f 00 03"));
    QVERIFY(!_station->isKeyDown());
}

void WireConnectionTest::aClosedKeyerIsOpenedAgain() {
    QVERIFY(_station->setUp());
    QVERIFY(_station->disconnect());
    QVERIFY(_station->setUp());
    QCOMPARE(_station->engine().speedString(), u"20 WPM"_s);
    _station->type(u"TEST"_s);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), u"TEST"_s);
}

static const RegisteredTest<WireConnectionTest> registered;
#include "WireConnectionTest.moc"
