#include "keyer/KeyerSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/SystemCallFaults.h"

#include <QRegularExpression>
#include <QTest>

#include <cerrno>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// What is logged meanwhile. One at a time.
class LoggedLines {
  public:
    LoggedLines() {
        _lines.clear();
        _before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& line) { _lines += line; });
    }
    LoggedLines(const LoggedLines&) = delete;
    LoggedLines& operator=(const LoggedLines&) = delete;
    ~LoggedLines() { qInstallMessageHandler(_before); }

    [[nodiscard]] const QStringList& lines() const { return _lines; }

  private:
    static inline QStringList _lines;
    QtMessageHandler _before;
};

} // namespace

class WinKeyerUsbReceiveTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _bench.reset(); }

    void speedPotBytesShowTheSpeed_data();
    void speedPotBytesShowTheSpeed();
    void bytesThatAreNothingElseAreEchoes_data();
    void bytesThatAreNothingElseAreEchoes();
    void anErrorByteIsOnlyLogged();
    void aChunkCountsAsRepetitionsOfItsFirstByte();
    void anEmptyDeliveryIsLogged();
    void idleEndsAPauseAndSendsOn();
    void idleSendsTheNextCharacter();
    void aNearlyFullBufferPauses();
    void breakInForgetsTheText();
    void waitingAloneDoesNothing();
    void oneStatusCanPauseAndForget();
    void aPushButtonByteDoesNothingElse_data();
    void aPushButtonByteDoesNothingElse();
    void aButtonIsForgottenWithTheNextDelivery_data();
    void aButtonIsForgottenWithTheNextDelivery();
    void aButtonIsRememberedWhileDataIsIgnored();
    void dataOutsideHostModeChangesNothing();
    void dataWithoutAPortChangesNothing();
    void aStrangersDataIsLoggedAndHandled();
    void putToWinKeyerIsSilentWhileNotConnected();
    void aRefusedWriteIsLoggedOnly();

  private:
    std::optional<EngineBench> _bench;
};

void WinKeyerUsbReceiveTest::init() {
    _bench.emplace();
    QVERIFY(_bench->connect());
}

void WinKeyerUsbReceiveTest::speedPotBytesShowTheSpeed_data() {
    QTest::addColumn<int>("byte");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<QString>("speed");
    QTest::newRow("lowest") << 0x80 << 13 << u"13 WPM"_s;
    QTest::newRow("highest") << 0x9F << 13 << u"44 WPM"_s;
    QTest::newRow("another minimum") << 0x85 << 20 << u"25 WPM"_s;
}

void WinKeyerUsbReceiveTest::speedPotBytesShowTheSpeed() {
    QFETCH(int, byte);
    QFETCH(int, minimum);
    QFETCH(QString, speed);
    _bench->settings().setObject(minimum, WKSpeedPotMinimum);
    int changes = 0;
    QObject::connect(&_bench->engine(), &WinKeyerUsb::speedStringChanged, this,
                     [&changes] { ++changes; });
    _bench->receive({byte});
    QCOMPARE(_bench->engine().speedString(), speed);
    QCOMPARE(u"%1 WPM"_s.arg(_bench->engine().speedOfPot().value()), speed);
    QCOMPARE(changes, 1);
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbReceiveTest::bytesThatAreNothingElseAreEchoes_data() {
    QTest::addColumn<int>("byte");
    QTest::newRow("a character") << 0x43;
    QTest::newRow("zero") << 0x00;
    QTest::newRow("the version") << 0x17;
    QTest::newRow("A5") << 0xA5;
    QTest::newRow("E0") << 0xE0;
    QTest::newRow("FE") << 0xFE;
}

void WinKeyerUsbReceiveTest::bytesThatAreNothingElseAreEchoes() {
    QFETCH(int, byte);
    _bench->type(u"CQ"_s);
    _bench->receive({byte});
    QCOMPARE(_bench->written(), "43 51");
    QVERIFY(_bench->engine().speedString().isNull());
}

void WinKeyerUsbReceiveTest::anErrorByteIsOnlyLogged() {
    _bench->type(u"CQ"_s);
    QTest::ignoreMessage(QtInfoMsg, "  error byte");
    _bench->receive({0xFF});
    QCOMPARE(_bench->written(), "43");
}

void WinKeyerUsbReceiveTest::aChunkCountsAsRepetitionsOfItsFirstByte() {
    _bench->type(u"ABCDEF"_s);
    _bench->receive({0x55, 0xC4, 0x80});
    QCOMPARE(_bench->written(), "41 42 43 44");
    QVERIFY(_bench->engine().speedString().isNull());

    _bench->receive({0x80, 0x55, 0x55});
    QCOMPARE(_bench->engine().speedString(), u"13 WPM"_s);
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbReceiveTest::anEmptyDeliveryIsLogged() {
    _bench->type(u"CQ"_s);
    QTest::ignoreMessage(QtInfoMsg, "WinKeyer port was somehow closed!");
    _bench->receive({});
    QCOMPARE(_bench->written(), "43");
}

void WinKeyerUsbReceiveTest::idleEndsAPauseAndSendsOn() {
    _bench->engine().setPauseState(1);
    _bench->type(u"ABC"_s);
    QCOMPARE(_bench->written(), "06 01");
    _bench->receive({0xC0});
    QCOMPARE(_bench->engine().pauseState(), 0);
    QCOMPARE(_bench->written(), "06 00 41 42");
}

void WinKeyerUsbReceiveTest::idleSendsTheNextCharacter() {
    _bench->type(u"CQ"_s);
    _bench->receive({0xC0});
    QCOMPARE(_bench->written(), "43 51");
}

void WinKeyerUsbReceiveTest::aNearlyFullBufferPauses() {
    _bench->type(u"CQ"_s);
    _bench->receive({0xC1});
    QCOMPARE(_bench->engine().pauseState(), 1);
    QCOMPARE(_bench->written(), "43 06 01");
}

void WinKeyerUsbReceiveTest::breakInForgetsTheText() {
    _bench->engine().setBeaconState(1);
    _bench->type(u"CQ"_s);
    _bench->receive({0xC2});
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    QCOMPARE(_bench->engine().outputBufferIndex(), 0);
    QCOMPARE(_bench->engine().beaconState(), 0);
    QCOMPARE(_bench->written(), "43");
}

void WinKeyerUsbReceiveTest::waitingAloneDoesNothing() {
    _bench->type(u"CQ"_s);
    _bench->receive({0xD0});
    QCOMPARE(_bench->engine().pauseState(), 0);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"CQ"_s);
    QCOMPARE(_bench->written(), "43");
}

void WinKeyerUsbReceiveTest::oneStatusCanPauseAndForget() {
    _bench->type(u"CQ"_s);
    _bench->receive({0xC7});
    QCOMPARE(_bench->engine().pauseState(), 1);
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
}

void WinKeyerUsbReceiveTest::aPushButtonByteDoesNothingElse_data() {
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("text");
    QTest::newRow("released") << 0xC8 << QString();
    QTest::newRow("first") << 0xC9 << u"ONE"_s;
    QTest::newRow("second") << 0xCA << u"TWO"_s;
    QTest::newRow("third") << 0xCC << u"THREE"_s;
    QTest::newRow("fourth") << 0xD8 << u"FOUR"_s;
    QTest::newRow("of several the last wins") << 0xCB << u"TWO"_s;
    QTest::newRow("of all the fourth wins") << 0xDF << u"FOUR"_s;
}

void WinKeyerUsbReceiveTest::aPushButtonByteDoesNothingElse() {
    QFETCH(int, status);
    QFETCH(QString, text);
    auto& settings = _bench->settings();
    settings.setObject(u"one"_s, u"Message1"_s);
    settings.setObject(u"two"_s, u"Message2"_s);
    settings.setObject(u"three"_s, u"Message3"_s);
    settings.setObject(u"four"_s, u"Message4"_s);
    _bench->receive({status});
    QCOMPARE(_bench->engine().keyboardBuffer(), text);
    QCOMPARE(_bench->engine().pauseState(), 0);
    QCOMPARE(_bench->written(), text.left(1).toLatin1().toHex());
}

void WinKeyerUsbReceiveTest::aButtonIsForgottenWithTheNextDelivery_data() {
    QTest::addColumn<QByteArray>("delivery");
    QTest::newRow("an echo") << QByteArray("C");
    QTest::newRow("a speed") << QByteArray("\x80");
    QTest::newRow("nothing") << QByteArray();
}

void WinKeyerUsbReceiveTest::aButtonIsForgottenWithTheNextDelivery() {
    QFETCH(QByteArray, delivery);
    _bench->receive({0xC9});
    _bench->engine().serialPortDidReceiveData(_bench->port(), delivery);
    _bench->engine().clearSending();
    _bench->engine().handleButtonPressed();
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
}

void WinKeyerUsbReceiveTest::aButtonIsRememberedWhileDataIsIgnored() {
    _bench->settings().setObject(u"one"_s, u"Message1"_s);
    _bench->receive({0xC9});
    QVERIFY(_bench->engine().closeHostMode(nullptr));
    _bench->receive({'C'});
    _bench->engine().clearSending();
    _bench->engine().handleButtonPressed();
    QCOMPARE(_bench->engine().keyboardBuffer(), u"ONE"_s);
}

void WinKeyerUsbReceiveTest::dataOutsideHostModeChangesNothing() {
    _bench->type(u"CQ"_s);
    QVERIFY(_bench->engine().closeHostMode(nullptr));
    QCOMPARE(_bench->written(), "43 00 03");
    _bench->receive({0x80});
    _bench->receive({0xC2});
    _bench->receive({0x43});
    QVERIFY(_bench->engine().speedString().isNull());
    QCOMPARE(_bench->engine().keyboardBuffer(), u"CQ"_s);
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbReceiveTest::dataWithoutAPortChangesNothing() {
    QTest::ignoreMessage(QtInfoMsg, "-[WinKeyerUsb serialPortWasRemovedFromSystem:]");
    _bench->engine().serialPortWasRemovedFromSystem(_bench->port());
    _bench->receive({0x80});
    QVERIFY(_bench->engine().speedString().isNull());
}

void WinKeyerUsbReceiveTest::aStrangersDataIsLoggedAndHandled() {
    const PseudoTerminalPair line;
    _bench->platform().devices().plug(u"usbserial-other"_s, line.path());
    const auto stranger = ORSSerialPort::serialPortWithPath(line.path());
    QTest::ignoreMessage(QtInfoMsg, "Winkeyer didReceiveData called by a stranger!");
    QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^sourcePort address: 0x[0-9a-f]+, name: "
                                                       "usbserial-other$"_s));
    _bench->engine().serialPortDidReceiveData(*stranger, QByteArray::fromHex("80"));
    QCOMPARE(_bench->engine().speedString(), u"13 WPM"_s);
}

void WinKeyerUsbReceiveTest::putToWinKeyerIsSilentWhileNotConnected() {
    QVERIFY(_bench->engine().disconnect(nullptr));
    static_cast<void>(_bench->written());
    const LoggedLines log;
    _bench->engine().putToWinKeyer("x");
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbReceiveTest::aRefusedWriteIsLoggedOnly() {
    SystemCallFaults faults;
    faults.fail(SystemCall::Write, EIO);
    QTest::ignoreMessage(QtInfoMsg, "putToWinKeyer error: ");
    _bench->engine().putToWinKeyer("x");
    QVERIFY(_bench->engine().isConnected());
}

static const RegisteredTest<WinKeyerUsbReceiveTest> registered;
#include "WinKeyerUsbReceiveTest.moc"
