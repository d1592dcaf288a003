#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/SystemCallFaults.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Settings that wait to leave the computer when something overtakes them.
class WinKeyerUsbSettingsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void whatAStopHasDroppedGoesBehindIt_data();
    void whatAStopHasDroppedGoesBehindIt();
    void eachSettingGoesOnceAsItWasLast();
    void aStopBehindTheEndOfTuneIsNotHeldUp();
    void aSecondStopHasThemGoBehindItself();
    void aStopThatDropsNothingSendsNoneAgain();
    void highSpeedIsSetAgainBehindTheEndOfTune();
    void textIsNoSetting();
    void nothingGoesToAKeyerThatIsLeft();
    void aLinkBeginsWithoutThem();

  private:
    [[nodiscard]] WinKeyerUsb& engine() { return _bench->engine(); }
    void put(const char* bytes) { engine().putToWinKeyer(QByteArray::fromHex(bytes)); }
    void stop() { engine().stopMessageSending(nullptr); }
    void pass(Clock::Duration duration) { _bench->clock().advance(duration); }

    std::optional<EngineBench> _bench;
    std::optional<SystemCallFaults> _faults;
};

void WinKeyerUsbSettingsTest::init() {
    _bench.emplace();
    QVERIFY(_bench->connect());
    pass(1s);
    _faults.emplace();
    _faults->setOutputWaiting(20);
}

void WinKeyerUsbSettingsTest::cleanup() {
    _faults.reset();
    _bench.reset();
}

void WinKeyerUsbSettingsTest::whatAStopHasDroppedGoesBehindIt_data() {
    QTest::addColumn<QByteArray>("setting");
    for (const auto* each : {"01 8a", "02 00", "03 40", "04 01 02", "05 0d 20 ff", "09 06", "0d 0a",
                             "0e 15", "10 01", "11 01", "12 32", "17 32"}) {
        QTest::newRow(each) << QByteArray(each);
    }
}

void WinKeyerUsbSettingsTest::whatAStopHasDroppedGoesBehindIt() {
    QFETCH(QByteArray, setting);
    put(setting);
    QCOMPARE(_bench->written(), setting);
    stop();
    QCOMPARE(_bench->written(), "13 13 13 13 0a");
    pass(100ms);
    QCOMPARE(_bench->written(), setting);
    pass(1h);
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbSettingsTest::eachSettingGoesOnceAsItWasLast() {
    put("03 40");
    engine().setPauseState(1);
    put("04 01 02");
    put("03 41");
    engine().setPauseState(0);
    static_cast<void>(_bench->written());
    stop();
    pass(100ms);
    QCOMPARE(_bench->written(), "13 13 13 13 0a 04 01 02 03 41 06 00");
}

void WinKeyerUsbSettingsTest::aStopBehindTheEndOfTuneIsNotHeldUp() {
    put("03 40");
    static_cast<void>(_bench->written());
    engine().keyUp();
    stop();
    QCOMPARE(_bench->written(), "13 13 13 13 0b 00 0a");
    pass(100ms);
    QCOMPARE(_bench->written(), "03 40");
}

void WinKeyerUsbSettingsTest::aSecondStopHasThemGoBehindItself() {
    put("03 40");
    static_cast<void>(_bench->written());
    stop();
    pass(100ms);
    QCOMPARE(_bench->written(), "13 13 13 13 0a 03 40");
    stop();
    pass(100ms);
    QCOMPARE(_bench->written(), "13 13 13 13 0a 03 40");
}

void WinKeyerUsbSettingsTest::aStopThatDropsNothingSendsNoneAgain() {
    _faults->setOutputWaiting(4);
    put("03 40");
    stop();
    pass(1h);
    QCOMPARE(_bench->written(), "03 40 0a");
}

/// Which the keyer's buffer keeps, unlike a stop.
void WinKeyerUsbSettingsTest::highSpeedIsSetAgainBehindTheEndOfTune() {
    engine().setHscwState(1);
    QObject isOn;
    isOn.setProperty("state", 1);
    engine().changeHSCWMode(&isOn);
    QCOMPARE(_bench->written(), "1d 0a");
    engine().keyUp();
    pass(100ms);
    QCOMPARE(_bench->written(), "13 13 13 13 0b 00 1d 0a");
    stop();
    engine().setHscwState(0); // as the window does
    pass(100ms);
    QCOMPARE(_bench->written(), "13 13 13 13 0a");
}

void WinKeyerUsbSettingsTest::textIsNoSetting() {
    engine().setRunLimit(100);
    _bench->type(u"%^{AB||E"_s);
    static_cast<void>(_bench->written());
    stop();
    pass(1h);
    QCOMPARE(_bench->written(), "13 13 13 13 0a");
}

void WinKeyerUsbSettingsTest::nothingGoesToAKeyerThatIsLeft() {
    put("03 40");
    static_cast<void>(_bench->written());
    QVERIFY(engine().closeHostMode(nullptr));
    pass(1h);
    QCOMPARE(_bench->written(), "13 13 13 13 00 03");
}

void WinKeyerUsbSettingsTest::aLinkBeginsWithoutThem() {
    put("03 40");
    QVERIFY(engine().disconnect(nullptr));
    QVERIFY(_bench->connect());
    pass(1s);
    stop();
    pass(1h);
    QCOMPARE(_bench->written(), "13 13 13 13 0a");
}

static const RegisteredTest<WinKeyerUsbSettingsTest> registered;
#include "WinKeyerUsbSettingsTest.moc"
