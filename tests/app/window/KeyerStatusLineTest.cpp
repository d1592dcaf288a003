#include "app/window/KeyerStatusLine.h"

#include "app/window/BeaconCountdown.h"
#include "keyer/MessageSettings.h"
#include "platform/NotificationCenter.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class KeyerStatusLineTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void saysThatNothingIsConnected();
    void waitsForTheFirstByte();
    void saysWhatTheKeyerDoes_data();
    void saysWhatTheKeyerDoes();
    void saysThatThePauseIsOn();
    void saysThatTuneIsOn();
    void tellsTheModes();
    void countsToTheNextBeacon();
    void saysThatTheMachineSleeps();
    void saysMoreBehindAll();

  private:
    std::optional<EngineBench> _bench;
    std::optional<BeaconCountdown> _countdown;
    std::optional<KeyerStatusLine> _line;
};

void KeyerStatusLineTest::init() {
    _bench.emplace();
    _line.emplace();
    _countdown.emplace(_bench->engine(), nullptr);
    _line->follow(_bench->engine(), *_countdown);
}

void KeyerStatusLineTest::cleanup() {
    _line.reset();
    _countdown.reset();
    _bench.reset();
}

void KeyerStatusLineTest::saysThatNothingIsConnected() {
    QCOMPARE(_line->text(), u"Not connected"_s);
    QVERIFY(_bench->connect());
    QVERIFY(_bench->engine().disconnect(nullptr));
    QCOMPARE(_line->text(), u"Not connected"_s);
}

void KeyerStatusLineTest::waitsForTheFirstByte() {
    QVERIFY(_bench->connect());
    QCOMPARE(_line->text(), u"Connected to usbserial-WK1, waiting for the keyer's first byte"_s);
}

void KeyerStatusLineTest::saysWhatTheKeyerDoes_data() {
    QTest::addColumn<int>("byte");
    QTest::addColumn<QString>("doing");
    QTest::newRow("idle") << 0xC0 << u"idle"_s;
    QTest::newRow("sending") << 0xC4 << u"sending"_s;
    QTest::newRow("break-in") << 0xC6 << u"break-in (paddle)"_s;
    QTest::newRow("buffer full") << 0xC5 << u"buffer full (paused)"_s;
    QTest::newRow("a speed is no work") << 0x8C << u"idle"_s;
}

void KeyerStatusLineTest::saysWhatTheKeyerDoes() {
    QFETCH(int, byte);
    QFETCH(QString, doing);
    QVERIFY(_bench->connect());
    _bench->receive({byte});
    QCOMPARE(_line->text(), u"Connected to usbserial-WK1: "_s + doing);
    QCOMPARE(_line->accessibleDescription(), _line->text());
}

void KeyerStatusLineTest::saysThatThePauseIsOn() {
    QVERIFY(_bench->connect());
    _bench->receive({0xC0});
    _bench->engine().setPauseState(1);
    QCOMPARE(_line->text(), u"Connected to usbserial-WK1: paused"_s);
}

void KeyerStatusLineTest::saysThatTuneIsOn() {
    QVERIFY(_bench->connect());
    _bench->engine().setTuneState(1);
    QCOMPARE(_line->text(), u"Transmitting on usbserial-WK1: tune is on"_s);
    _bench->receive({0xC4});
    QCOMPARE(_line->text(), u"Transmitting on usbserial-WK1: tune is on"_s);
    _bench->engine().setTuneState(0);
    QCOMPARE(_line->text(), u"Connected to usbserial-WK1: sending"_s);
}

void KeyerStatusLineTest::tellsTheModes() {
    QVERIFY(_bench->connect());
    _bench->receive({0xC4});
    _bench->engine().setHscwState(1);
    QCOMPARE(_line->text(), u"Connected to usbserial-WK1: sending (high-speed CW)"_s);
    _bench->engine().setBeaconState(1);
    QCOMPARE(_line->text(), u"Connected to usbserial-WK1: sending (high-speed CW, beacon on)"_s);
    QCOMPARE(_line->accessibleDescription(), _line->text());
    _bench->engine().setHscwState(0);
    _bench->engine().setBeaconState(0);
    // A pause is told as what the keyer does, unless it does something else yet.
    _bench->engine().setPauseState(1);
    QCOMPARE(_line->text(), u"Connected to usbserial-WK1: paused"_s);
    _bench->engine().setTuneState(1);
    QCOMPARE(_line->text(), u"Transmitting on usbserial-WK1: tune is on"_s);
}

void KeyerStatusLineTest::countsToTheNextBeacon() {
    QVERIFY(_bench->connect());
    _bench->settings().setObject(2.5, BeaconInterval.key);
    _bench->engine().setBeaconState(1);
    _bench->engine().appendMessage(u"e"_s);
    _bench->receive({0xC0});
    QCOMPARE(_line->text(), u"Connected to usbserial-WK1: idle (beacon again in 3 s)"_s);
    const auto spoken = u"Connected to usbserial-WK1: idle (beacon on)"_s;
    QCOMPARE(_line->accessibleDescription(), spoken);
    _bench->clock().advance(500ms);
    QCOMPARE(_line->text(), u"Connected to usbserial-WK1: idle (beacon again in 2 s)"_s);
    _bench->clock().advance(1s);
    QCOMPARE(_line->text(), u"Connected to usbserial-WK1: idle (beacon again in 1 s)"_s);
    QCOMPARE(_line->accessibleDescription(), spoken);
    _bench->clock().advance(1s);
    QCOMPARE(_line->text(), u"Connected to usbserial-WK1: idle (beacon on)"_s);
}

void KeyerStatusLineTest::saysThatTheMachineSleeps() {
    QVERIFY(_bench->connect());
    auto& center = _bench->platform().notifications();
    center.post(NSWorkspaceWillSleepNotification, nullptr);
    QCOMPARE(_line->text(), u"The machine sleeps: usbserial-WK1 is closed"_s);
    center.post(NSWorkspaceDidWakeNotification, nullptr);
    QTRY_VERIFY(_line->text().startsWith(u"Connected to usbserial-WK1"_s));
}

void KeyerStatusLineTest::saysMoreBehindAll() {
    _line->setNotice(u"Mind the step"_s);
    QCOMPARE(_line->text(), u"Not connected. Mind the step"_s);
    QCOMPARE(_line->accessibleDescription(), _line->text());
    _line->setNotice({});
    QCOMPARE(_line->text(), u"Not connected"_s);
}

static const RegisteredTest<KeyerStatusLineTest> registered;
#include "KeyerStatusLineTest.moc"
