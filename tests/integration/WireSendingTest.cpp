#include "keyer/GeneralSettings.h"
#include "tests/integration/Station.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The keyer's dit at the speed that its pot starts with.
constexpr auto dit = 60ms;

/// A message button.
class Button : public QObject {
  public:
    explicit Button(int tag) { setProperty("tag", tag); }
};

} // namespace

/// Text on its way from the operator to the key line.
class WireSendingTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void textIsKeyedLetterByLetter();
    void textThatGrowsIsKeyedOnce();
    void whatIsTypedIsKeyed_data();
    void whatIsTypedIsKeyed();
    void everyMessageIsKeyed_data();
    void everyMessageIsKeyed();
    void aHalfSpaceLengthensTheLetterSpace();
    void highSpeedHoldsBetweenItsMarks();
    void aPushButtonSendsItsMessage_data();
    void aPushButtonSendsItsMessage();
    void thePaddleTakesOver();
    void stopSilencesTheKeyer();
    void stopOvertakesWhatHasNoEcho();
    void aRunIsKeyedAlikeHoweverItIsWritten_data();
    void aRunIsKeyedAlikeHoweverItIsWritten();
    void aFullKeyerPausesUntilTheOperatorGoesOn();

  private:
    std::optional<Station> _station;
};

void WireSendingTest::init() {
    _station.emplace();
    _station->settings().setObject(u"N0CALL"_s, MyCall);
    _station->engine().setHisCallsign(u"k1abc"_s);
    QVERIFY(_station->setUp());
}

void WireSendingTest::textIsKeyedLetterByLetter() {
    _station->type(u"cq dx"_s);
    QCOMPARE(_station->written(), QByteArray("43"));
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), u"CQ DX"_s);
    QCOMPARE(_station->written(), QByteArray("51 20 44 58"));
    // A space ends the keyer's work, for the next letter comes after it.
    QCOMPARE(_station->received(), QByteArray("c4 43 51 20 c0 c4 44 58 c0"));
    QCOMPARE(_station->engine().outputBufferIndex(), 5);
}

void WireSendingTest::textThatGrowsIsKeyedOnce() {
    const auto text = u"PARIS PARIS"_s;
    for (qsizetype length = 1; length <= text.size(); ++length) {
        _station->type(text.first(length));
        _station->pass(50ms);
    }
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), text);
    QCOMPARE(_station->written(), text.toLatin1().toHex(' '));
}

void WireSendingTest::whatIsTypedIsKeyed_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("keyed");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("the operator's call sign")
        << u"`"_s << u"N0CALL"_s << QByteArray("4e 30 43 41 4c 4c");
    QTest::newRow("the serial number") << u"#"_s << u"TT1"_s << QByteArray("54 54 31");
    QTest::newRow("the other station's call sign")
        << u"~ K"_s << u"K1ABC K"_s << QByteArray("4b 31 41 42 43 20 4b");
    QTest::newRow("a prosign") << u"E{SKE"_s << u"E>E"_s << QByteArray("45 1b 53 4b 45");
    QTest::newRow("prosigns in a row") << u"{BT{AR"_s << u"=+"_s << QByteArray("1b 42 54 1b 41 52");
    QTest::newRow("signs") << u"? / . , = + @ - ( ) ' \" > $ [ ;"_s
                           << u"? / . , = + @ - ( ) ' \" > $ [ ;"_s
                           << "? / . , = + @ - ( ) ' \" > $ [ ;"_ba.toHex(' ');
    QTest::newRow("what cannot be keyed") << u"A!B"_s << u"AB"_s << QByteArray("41 42");
}

void WireSendingTest::whatIsTypedIsKeyed() {
    QFETCH(QString, typed);
    QFETCH(QString, keyed);
    _station->type(typed);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), keyed);
    QTEST(_station->written(), "written");
}

void WireSendingTest::everyMessageIsKeyed_data() {
    QTest::addColumn<int>("tag");
    QTest::addColumn<QString>("keyed");
    QTest::newRow("CQ") << 0 << u"CQ TEST N0CALL N0CALL"_s;
    QTest::newRow("Exchange") << 1 << u"5NN NH"_s;
    QTest::newRow("Acknowledge") << 2 << u"TU N0CALL"_s;
    QTest::newRow("My Call") << 3 << u"N0CALL"_s;
    QTest::newRow("Their Call") << 4 << u"K1ABC"_s;
    QTest::newRow("Call?") << 5 << u"CALL?"_s;
    QTest::newRow("?") << 6 << u"?"_s;
    QTest::newRow("Again") << 7 << u"AGN"_s;
}

void WireSendingTest::everyMessageIsKeyed() {
    QFETCH(int, tag);
    QFETCH(QString, keyed);
    const Button button(tag);
    _station->engine().sendMessage(&button);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), keyed);
    QCOMPARE(_station->written(), keyed.toLatin1().toHex(' '));

    // The next one follows as a word of its own.
    _station->engine().sendMessage(&button);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), keyed);
    QCOMPARE(_station->written(), (u' ' + keyed).toLatin1().toHex(' '));
}

void WireSendingTest::aHalfSpaceLengthensTheLetterSpace() {
    _station->type(u"E|EE"_s);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), u"EEE"_s);
    QCOMPARE(_station->written(), QByteArray("45 7c 45 45"));
    const auto& edges = _station->edges();
    QCOMPARE(edges.size(), 6U);
    QVERIFY(edges[2].at - edges[1].at == 3 * dit + dit / 2);
    QVERIFY(edges[4].at - edges[3].at == 3 * dit);
}

void WireSendingTest::highSpeedHoldsBetweenItsMarks() {
    _station->type(u"E%EE^E"_s);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->written(), QByteArray("45 1d 0a 45 45 1e 45"));
    const auto& edges = _station->edges();
    QCOMPARE(edges.size(), 8U);
    // 1000 letters a minute are 200 words: a dit of 6 ms.
    QVERIFY(edges[1].at - edges[0].at == dit);
    QVERIFY(edges[3].at - edges[2].at == 6ms);
    QVERIFY(edges[5].at - edges[4].at == 6ms);
    QVERIFY(edges[7].at - edges[6].at == dit);
}

void WireSendingTest::aPushButtonSendsItsMessage_data() {
    QTest::addColumn<int>("buttons");
    QTest::addColumn<QString>("keyed");
    QTest::newRow("the first") << 0x01 << u"CQ TEST N0CALL N0CALL"_s;
    QTest::newRow("the second") << 0x02 << u"5NN NH"_s;
    QTest::newRow("the third") << 0x04 << u"TU N0CALL"_s;
    QTest::newRow("the fourth") << 0x10 << u"N0CALL"_s;
    QTest::newRow("of two at once, the later one") << 0x05 << u"TU N0CALL"_s;
}

void WireSendingTest::aPushButtonSendsItsMessage() {
    QFETCH(int, buttons);
    _station->setPushButtons(buttons);
    _station->pass(200ms);
    _station->setPushButtons(0);
    QVERIFY(_station->waitForQuiet());
    QTEST(_station->keyed(), "keyed");
}

void WireSendingTest::thePaddleTakesOver() {
    auto& engine = _station->engine();
    engine.setBeaconState(1);
    _station->type(u"PARIS PARIS"_s);
    QVERIFY(_station->waitUntil([this] { return _station->edges().size() == 16; }));
    _station->setPaddle(false, true);
    _station->pass(3 * dit);
    _station->setPaddle(false, false);
    QVERIFY(_station->waitForQuiet());

    QCOMPARE(engine.keyboardBuffer(), QString());
    QCOMPARE(engine.beaconState(), 0);
    QVERIFY(_station->received().contains("c6"));
    // Two letters and a dit and dah of the third, then the paddle's dah; nothing of the rest.
    QCOMPARE(_station->edges().size(), 18U);
    QCOMPARE(_station->written(), QByteArray("50 41 52"));
    _station->pass(1min);
    QCOMPARE(_station->edges().size(), 18U);

    _station->type(u"K"_s);
    QVERIFY(_station->waitForQuiet());
    QVERIFY(_station->keyed().endsWith(u'K'));
}

void WireSendingTest::stopSilencesTheKeyer() {
    _station->type(u"PARIS PARIS"_s);
    QVERIFY(_station->waitUntil([this] { return _station->edges().size() == 13; }));
    _station->engine().stopMessageSending(nullptr);
    QCOMPARE(_station->written(), QByteArray("50 41 52 0a"));
    QCOMPARE(_station->engine().keyboardBuffer(), QString());
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), u"PAR"_s);

    _station->type(u"K"_s);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), u"K"_s);
}

void WireSendingTest::stopOvertakesWhatHasNoEcho() {
    _station->engine().setRunLimit(6);
    _station->type(QString(20'000, u'|') + u'E');
    _station->pass(5s);
    const auto stopped = _station->now();
    _station->engine().stopMessageSending(nullptr);
    QVERIFY(_station->waitForQuiet());
    QVERIFY(_station->now() - stopped <= 100ms);
    _station->type(u"K"_s);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), u"K"_s);
}

void WireSendingTest::aRunIsKeyedAlikeHoweverItIsWritten_data() {
    QTest::addColumn<int>("speed");
    QTest::newRow("slow") << 13;
    // A half space takes the keyer hardly longer than the line.
    QTest::newRow("fast") << 45;
}

void WireSendingTest::aRunIsKeyedAlikeHoweverItIsWritten() {
    QFETCH(int, speed);
    const auto keyedAt = [speed](int limit) {
        Station station;
        static_cast<void>(station.setUp());
        station.setPot(speed);
        static_cast<void>(station.waitForQuiet());
        station.engine().setRunLimit(limit);
        station.type(u'E' + QString(40, u'|') + u"{AR{SKT"_s + QString(20, u'|') + u'E');
        static_cast<void>(station.waitForQuiet());
        QList<Station::Time> edges;
        for (const auto& edge : station.edges()) {
            edges.append(edge.at);
        }
        return edges;
    };
    _station.reset();
    const auto atOnce = keyedAt(0);
    QCOMPARE(atOnce.size(), 28);
    QCOMPARE(keyedAt(5), atOnce);
}

void WireSendingTest::aFullKeyerPausesUntilTheOperatorGoesOn() {
    // Half spaces are not waited for, so that they alone can fill the keyer.
    _station->type(u'E' + QString(150, u'|') + u'T');
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->engine().pauseState(), 1);
    QVERIFY(_station->received().contains("c5"));
    QVERIFY(_station->written().endsWith("7c 54 06 01"));
    QCOMPARE(_station->keyed(), u"E"_s);

    _station->engine().setPauseState(0);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), u"T"_s);
    QCOMPARE(_station->written(), QByteArray("06 00"));
}

static const RegisteredTest<WireSendingTest> registered;
#include "WireSendingTest.moc"
