#include "app/window/BeaconCountdown.h"

#include "keyer/MessageSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class BeaconCountdownTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void countsFromTheIdleReportToTheNextSending();
    void countsNothingWhileNothingIsToBeRepeated_data();
    void countsNothingWhileNothingIsToBeRepeated();
    void aKeyerThatGetsBusyEndsTheCount();

  private:
    std::optional<EngineBench> _bench;
    std::optional<BeaconCountdown> _countdown;
};

void BeaconCountdownTest::init() {
    _bench.emplace();
    QVERIFY(_bench->connect());
    _bench->settings().setObject(3.0, BeaconInterval.key);
    _countdown.emplace(_bench->engine(), nullptr);
    QCOMPARE(_countdown->seconds(), -1);
}

void BeaconCountdownTest::cleanup() {
    _countdown.reset();
    _bench.reset();
}

void BeaconCountdownTest::countsFromTheIdleReportToTheNextSending() {
    _bench->engine().setBeaconState(1);
    _bench->engine().appendMessage(u"e"_s);
    QCOMPARE(_countdown->seconds(), -1);
    _bench->receive({0xC0});
    QList<int> counted{_countdown->seconds()};
    QObject::connect(&*_countdown, &BeaconCountdown::secondsChanged, this,
                     [&] { counted.append(_countdown->seconds()); });
    _bench->clock().advance(2999ms);
    QCOMPARE(counted, (QList<int>{3, 2, 1}));
    QCOMPARE(_bench->engine().keyboardBuffer(), u"E"_s);
    _bench->clock().advance(1ms);
    QCOMPARE(counted, (QList<int>{3, 2, 1, -1}));
    QCOMPARE(_bench->engine().keyboardBuffer(), u"E E"_s);
}

void BeaconCountdownTest::countsNothingWhileNothingIsToBeRepeated_data() {
    QTest::addColumn<bool>("isOn");
    QTest::addColumn<bool>("isRemembered");
    QTest::addRow("the beacon is off") << false << true;
    QTest::addRow("no message was sent with the beacon on") << true << false;
}

void BeaconCountdownTest::countsNothingWhileNothingIsToBeRepeated() {
    QFETCH(const bool, isOn);
    QFETCH(const bool, isRemembered);
    auto& engine = _bench->engine();
    engine.setBeaconState(isRemembered ? 1 : 0);
    engine.appendMessage(u"e"_s);
    engine.setBeaconState(isOn ? 1 : 0);
    _bench->receive({0xC0});
    QCOMPARE(_countdown->seconds(), -1);
    QVERIFY(!engine.beaconDue());
}

void BeaconCountdownTest::aKeyerThatGetsBusyEndsTheCount() {
    _bench->engine().setBeaconState(1);
    _bench->engine().appendMessage(u"e"_s);
    _bench->receive({0xC0});
    QCOMPARE(_countdown->seconds(), 3);
    _bench->receive({0xC4});
    QCOMPARE(_countdown->seconds(), -1);
    _bench->receive({0xC0});
    QCOMPARE(_countdown->seconds(), 3);
    _bench->engine().stopMessageSending(nullptr);
    QCOMPARE(_countdown->seconds(), -1);
}

static const RegisteredTest<BeaconCountdownTest> registered;
#include "BeaconCountdownTest.moc"
