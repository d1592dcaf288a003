#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

class WinKeyerUsbProgressTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _bench.reset(); }

    void aCharacterIsInFlightUntilItsEcho();
    void controlSequencesFlyWithTheCharacterAfterThem();
    void theirCallIsInFlightAsAWhole();
    void nothingNewFliesWhilePaused();
    void clearingLandsEverything();
    void deletingKeepsTheFlightWithinTheText();

  private:
    /// First character in flight, and first that is still to be sent.
    [[nodiscard]] std::pair<qsizetype, qsizetype> flight() {
        return {_bench->engine().inFlightIndex(), _bench->engine().outputBufferIndex()};
    }

    std::optional<EngineBench> _bench;
};

namespace {
using Flight = std::pair<qsizetype, qsizetype>;
}

void WinKeyerUsbProgressTest::init() {
    _bench.emplace();
    QVERIFY(_bench->connect());
}

void WinKeyerUsbProgressTest::aCharacterIsInFlightUntilItsEcho() {
    const QSignalSpy progress(&_bench->engine(), &WinKeyerUsb::sendingProgressed);
    _bench->type(u"CQ"_s);
    QCOMPARE(flight(), Flight(0, 1));
    const auto before = progress.count();
    QVERIFY(before > 0);
    _bench->receive({'C'});
    QCOMPARE(flight(), Flight(1, 2));
    QCOMPARE(progress.count(), before + 1);
    _bench->receive({'Q'});
    QCOMPARE(flight(), Flight(2, 2));
}

void WinKeyerUsbProgressTest::controlSequencesFlyWithTheCharacterAfterThem() {
    _bench->engine().appendMessage(u"E{ARK"_s);
    _bench->receive({'E'});
    QCOMPARE(flight(), Flight(1, 5));
}

void WinKeyerUsbProgressTest::theirCallIsInFlightAsAWhole() {
    _bench->engine().setHisCallsign(u"W1"_s);
    _bench->engine().appendMessage(u"E~K"_s);
    _bench->receive({'E'});
    QCOMPARE(flight(), Flight(1, 2));
    _bench->receive({'W'});
    QCOMPARE(flight(), Flight(1, 2));
    _bench->receive({'1'});
    QCOMPARE(flight(), Flight(2, 3));
}

void WinKeyerUsbProgressTest::nothingNewFliesWhilePaused() {
    _bench->type(u"CQ"_s);
    _bench->engine().setPauseState(1);
    QCOMPARE(flight(), Flight(0, 1));
    _bench->receive({'C'});
    QCOMPARE(flight(), Flight(1, 1));
}

void WinKeyerUsbProgressTest::clearingLandsEverything() {
    _bench->type(u"CQ"_s);
    _bench->receive({'C'});
    const QSignalSpy progress(&_bench->engine(), &WinKeyerUsb::sendingProgressed);
    _bench->engine().clearSending();
    QCOMPARE(flight(), Flight(0, 0));
    QCOMPARE(progress.count(), 1);
}

void WinKeyerUsbProgressTest::deletingKeepsTheFlightWithinTheText() {
    _bench->type(u"CQ DX"_s);
    _bench->receive({'C'});
    _bench->receive({'Q'});
    _bench->type(u"C"_s);
    QCOMPARE(flight(), Flight(1, 1));
    _bench->type({});
    QCOMPARE(flight(), Flight(0, 0));
}

static const RegisteredTest<WinKeyerUsbProgressTest> registered;
#include "WinKeyerUsbProgressTest.moc"
