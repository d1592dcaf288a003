#include "tests/integration/Station.h"
#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/NamedProfiles.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

virtualkeyer::Profile profile(const char* name) {
    return virtualkeyer::profileNamed(name).value();
}

} // namespace

/// Every kind of keyer that is in use keys the operator's text, and nothing else.
class WireProfilesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyKeyerKeysTheSame_data();
    void everyKeyerKeysTheSame();
    void everyKeyerLetsThePaddleTakeOver_data();
    void everyKeyerLetsThePaddleTakeOver();
    void everyKeyerStops_data();
    void everyKeyerStops();
    void everyKeyerPauses_data();
    void everyKeyerPauses();
    void everyKeyerRepeatsTheBeacon_data();
    void everyKeyerRepeatsTheBeacon();
    void aKeyerThatIsDeafWhenItStartsIsReachedByConnectingOnceMore();
};

namespace {

/// A row for each keyer that hears what is sent to it, times each text.
void addRows(const QStringList& texts) {
    QTest::addColumn<QByteArray>("profile");
    QTest::addColumn<QString>("text");
    for (const auto& each : virtualkeyer::namedProfiles()) {
        const QByteArray name(each.name.data(), static_cast<qsizetype>(each.name.size()));
        if (name == "boot-loader") {
            continue; // it is deaf when the engine connects
        }
        for (const auto& text : texts) {
            QTest::addRow("%s: %s", name.constData(), qPrintable(text)) << name << text;
        }
    }
}

} // namespace

void WireProfilesTest::everyKeyerKeysTheSame_data() {
    addRows({u"CQ TEST DE N0CALL K"_s, u"E"_s, u"5NN TT1 {ARX{SK"_s, u"EE|EE|E E"_s});
}

void WireProfilesTest::everyKeyerKeysTheSame() {
    QFETCH(QByteArray, profile);
    QFETCH(QString, text);
    Station station(::profile(profile));
    QVERIFY(station.setUp());
    QCOMPARE(station.engine().speedString(), u"20 WPM"_s);
    station.type(text);
    QVERIFY(station.waitForQuiet());
    const auto keyed =
        text.toUpper().replace("{AR"_L1, "+"_L1).replace("{SK"_L1, ">"_L1).remove(u'|');
    QCOMPARE(station.keyed(), keyed);
    QCOMPARE(station.engine().outputBufferIndex(), text.size());
    QCOMPARE(station.engine().pauseState(), 0);
    station.pass(1min);
    QCOMPARE(station.keyed(), QString());
}

void WireProfilesTest::everyKeyerLetsThePaddleTakeOver_data() {
    addRows({u"PARIS PARIS"_s});
}

void WireProfilesTest::everyKeyerLetsThePaddleTakeOver() {
    QFETCH(QByteArray, profile);
    QFETCH(QString, text);
    Station station(::profile(profile));
    QVERIFY(station.setUp());
    station.engine().setBeaconState(1);
    station.type(text);
    QVERIFY(station.waitUntil([&] { return station.edges().size() == 16; }));
    station.setPaddle(false, true);
    station.pass(100ms);
    station.setPaddle(false, false);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.engine().keyboardBuffer(), QString());
    QCOMPARE(station.engine().beaconState(), 0);
    QCOMPARE(station.edges().size(), 18U);
    QVERIFY(!station.isKeyDown());
}

void WireProfilesTest::everyKeyerStops_data() {
    addRows({u"PARIS PARIS"_s});
}

void WireProfilesTest::everyKeyerStops() {
    QFETCH(QByteArray, profile);
    QFETCH(QString, text);
    Station station(::profile(profile));
    QVERIFY(station.setUp());
    station.type(text);
    QVERIFY(station.waitUntil([&] { return station.edges().size() == 13; }));
    station.engine().stopMessageSending(nullptr);
    QVERIFY(station.waitForQuiet());
    // The letter under way is keyed to its end or dropped at once.
    const auto keyed = station.keyed();
    QCOMPARE(keyed, profile == "abrupt-clear" ? u"PAE"_s : u"PAR"_s);
    station.type(u"K"_s);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.keyed(), u"K"_s);
}

void WireProfilesTest::everyKeyerPauses_data() {
    addRows({u"PARIS"_s});
}

void WireProfilesTest::everyKeyerPauses() {
    QFETCH(QByteArray, profile);
    QFETCH(QString, text);
    Station station(::profile(profile));
    QVERIFY(station.setUp());
    station.type(text);
    QVERIFY(station.waitUntil([&] { return station.edges().size() == 11; }));
    station.engine().setPauseState(1);
    station.pass(30s);
    QCOMPARE(station.keyed(), u"PA"_s);
    station.engine().setPauseState(0);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.keyed(), profile == "repeat-after-pause" ? u"ARIS"_s : u"RIS"_s);
}

void WireProfilesTest::everyKeyerRepeatsTheBeacon_data() {
    addRows({u"VVV DE N0CALL"_s});
}

void WireProfilesTest::everyKeyerRepeatsTheBeacon() {
    QFETCH(QByteArray, profile);
    QFETCH(QString, text);
    Station station(::profile(profile));
    QVERIFY(station.setUp());
    station.engine().setBeaconState(1);
    station.engine().appendMessage(text);
    for (int round = 0; round < 3; ++round) {
        QVERIFY(station.waitForQuiet());
        QCOMPARE(station.keyed(), text);
        const auto idle = station.allReceived().back();
        const auto before = station.allWritten().size();
        QVERIFY(station.waitUntil([&] { return station.allWritten().size() > before; }));
        const auto pause = std::chrono::duration<double>(station.now() - idle.at).count();
        QVERIFY2(pause > 4.1 && pause < 4.201, QByteArray::number(pause));
    }
}

void WireProfilesTest::aKeyerThatIsDeafWhenItStartsIsReachedByConnectingOnceMore() {
    Station station(profile("boot-loader"));
    QVERIFY(station.connect());
    station.pass(2s);
    QCOMPARE(station.received(), QByteArray());
    QCOMPARE(station.engine().speedString(), QString());
    station.type(u"E"_s);
    station.pass(10s);
    // The engine takes the keyer for connected; the keyer has heard nothing of it.
    QCOMPARE(station.keyed(), QString());
    QVERIFY(station.engine().isConnected());

    station.engine().clearSending();
    QVERIFY(station.engine().connect(nullptr));
    station.port().setDelegate(&station);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.engine().speedString(), u"20 WPM"_s);
    station.type(u"K"_s);
    QVERIFY(station.waitForQuiet());
    QCOMPARE(station.keyed(), u"K"_s);
}

static const RegisteredTest<WireProfilesTest> registered;
#include "WireProfilesTest.moc"
