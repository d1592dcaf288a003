#include "app/window/KeyerStatusLine.h"

#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

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

  private:
    std::optional<EngineBench> _bench;
    std::optional<KeyerStatusLine> _line;
};

void KeyerStatusLineTest::init() {
    _bench.emplace();
    _line.emplace();
    _line->setEngine(_bench->engine());
}

void KeyerStatusLineTest::cleanup() {
    _line.reset();
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
    QTest::newRow("buffer full") << 0xC5 << u"buffer full"_s;
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

static const RegisteredTest<KeyerStatusLineTest> registered;
#include "KeyerStatusLineTest.moc"
