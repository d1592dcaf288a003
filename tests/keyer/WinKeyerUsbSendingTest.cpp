#include "keyer/GeneralSettings.h"
#include "keyer/KeyerSettings.h"
#include "keyer/MessageSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/SystemCallFaults.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A control with a tag, as a message button is.
class Control : public QObject {
  public:
    explicit Control(int tag) { setProperty("tag", tag); }
};

} // namespace

class WinKeyerUsbSendingTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _bench.reset(); }

    void aMessageButtonSendsItsText();
    void everyTagSelectsItsMessage();
    void tagsOutsideTheButtonsDoNothing();
    void serialNumbersAreCut_data();
    void serialNumbersAreCut();
    void serialNumbersStepAndStayPositive();
    void messagesAreSeparatedByASpace();
    void aMessageIsSentWhileACharacterIsUnderWay();
    void controlSigns_data();
    void controlSigns();
    void everyCommandIsOneWrite_data();
    void everyCommandIsOneWrite();
    void mergedLettersAtTheEndStall();
    void endOfHighSpeedSwitchesItsControlOff();
    void highSpeedReadsItsSetting_data();
    void highSpeedReadsItsSetting();
    void stoppingClearsTheKeyersBufferToo();
    void stoppingWhileNotConnectedOnlyForgets();
    void stoppingWhileThePortIsClosedOnlyForgets();
    void nothingIsSentWhilePaused();
    void textStaysAfterItWasSent();
    void theFirstCharacterIsLostWhileNotConnected();
    void controlCharactersCostNoStack();
    void charactersThatAreNoTextNeverReachTheKeyer();
    void aLongRunIsWrittenAsTheLineSendsIt();
    void aRunIsNotHurried();
    void aStopEndsARun();
    void aPauseHoldsARun();
    void whatEndsTheKeyingOvertakesWhatWaits_data();
    void whatEndsTheKeyingOvertakesWhatWaits();
    void aStopLeavesTheKeyUpAheadOfItAlone();
    void nothingIsCutFromABlock_data();
    void nothingIsCutFromABlock();

  private:
    std::optional<EngineBench> _bench;
};

void WinKeyerUsbSendingTest::init() {
    _bench.emplace();
    _bench->settings().setObject(u"N0CALL"_s, MyCall);
    QVERIFY(_bench->connect());
}

void WinKeyerUsbSendingTest::aMessageButtonSendsItsText() {
    const Control button(0);
    _bench->engine().sendMessage(&button);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"CQ TEST N0CALL N0CALL"_s);
    QCOMPARE(_bench->written(), "43");
    _bench->receive({'C'});
    _bench->receive({'Q'});
    QCOMPARE(_bench->written(), "51 20");
}

void WinKeyerUsbSendingTest::everyTagSelectsItsMessage() {
    for (int tag = 0; tag < 8; ++tag) {
        const auto text = u"TEXT %1"_s.arg(tag + 1);
        _bench->settings().setObject(text, u"Message%1"_s.arg(tag + 1));
        _bench->engine().clearSending();
        const Control button(tag);
        _bench->engine().sendMessage(&button);
        QCOMPARE(_bench->engine().keyboardBuffer(), text);
    }
}

void WinKeyerUsbSendingTest::tagsOutsideTheButtonsDoNothing() {
    for (const auto tag : {-1, 8, 1000}) {
        const Control button(tag);
        _bench->engine().sendMessage(&button);
    }
    QVERIFY(_bench->engine().keyboardBuffer().isNull());
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbSendingTest::serialNumbersAreCut_data() {
    QTest::addColumn<qint64>("number");
    QTest::addColumn<QString>("cut");
    QTest::newRow("1") << qint64{1} << u"TT1"_s;
    QTest::newRow("nines are not cut") << qint64{9} << u"TT9"_s;
    QTest::newRow("10") << qint64{10} << u"T1T"_s;
    QTest::newRow("100") << qint64{100} << u"1TT"_s;
    QTest::newRow("105") << qint64{105} << u"1T5"_s;
    QTest::newRow("1000") << qint64{1000} << u"1TTT"_s;
}

void WinKeyerUsbSendingTest::serialNumbersAreCut() {
    QFETCH(qint64, number);
    QFETCH(QString, cut);
    _bench->engine().setSerialNumber(number);
    QCOMPARE(_bench->engine().cutifiedSerialNumber(), cut);
}

void WinKeyerUsbSendingTest::serialNumbersStepAndStayPositive() {
    auto& engine = _bench->engine();
    engine.decrementSerialNumber(nullptr);
    QCOMPARE(engine.serialNumber(), 1);
    engine.incrementSerialNumber(nullptr);
    engine.incrementSerialNumber(nullptr);
    QCOMPARE(engine.serialNumber(), 3);
    engine.decrementSerialNumber(nullptr);
    QCOMPARE(engine.serialNumber(), 2);
}

void WinKeyerUsbSendingTest::messagesAreSeparatedByASpace() {
    auto& engine = _bench->engine();
    engine.appendMessage(u"test"_s);
    QCOMPARE(engine.keyboardBuffer(), u"TEST"_s);
    engine.appendMessage(u"CQ"_s);
    QCOMPARE(engine.keyboardBuffer(), u"TEST CQ"_s);
    engine.clearSending();
    engine.appendMessage(u"CQ"_s);
    QCOMPARE(engine.keyboardBuffer(), u"CQ"_s);
}

void WinKeyerUsbSendingTest::aMessageIsSentWhileACharacterIsUnderWay() {
    _bench->engine().appendMessage(u"AB"_s);
    _bench->engine().appendMessage(u"C"_s);
    QCOMPARE(_bench->written(), "41 42");
}

void WinKeyerUsbSendingTest::controlSigns_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("plain") << u"AB"_s << QByteArray("41");
    QTest::newRow("merged letters go with the next character")
        << u"{arx"_s << QByteArray("1b 41 52 58");
    QTest::newRow("half spaces go with the next character") << u"||A"_s << QByteArray("7c 7c 41");
    QTest::newRow("high speed begins") << u"%A"_s << QByteArray("1d 0a 41");
    QTest::newRow("high speed ends") << u"^A"_s << QByteArray("1e 41");
    QTest::newRow("his call") << u"~A"_s << QByteArray("57");
    QTest::newRow("a space is a character") << u" A"_s << QByteArray("20");
    QTest::newRow("one letter after the merge sign") << u"{A"_s << QByteArray("");
    QTest::newRow("nothing after the merge sign") << u"{"_s << QByteArray("");
}

void WinKeyerUsbSendingTest::controlSigns() {
    QFETCH(QString, text);
    QFETCH(QByteArray, written);
    _bench->engine().setHisCallsign(u"w9xyz"_s);
    _bench->engine().appendMessage(text);
    QCOMPARE(_bench->written(), written);
}

void WinKeyerUsbSendingTest::everyCommandIsOneWrite_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("writes");
    QTest::newRow("merged letters") << u"{AR"_s << 1;
    QTest::newRow("high speed") << u"%"_s << 1;
    QTest::newRow("a command and the character behind it") << u"%A"_s << 2;
}

void WinKeyerUsbSendingTest::everyCommandIsOneWrite() {
    QFETCH(QString, text);
    QFETCH(int, writes);
    const SystemCallFaults watched;
    _bench->engine().appendMessage(text);
    QCOMPARE(watched.count(SystemCall::Write), writes);
}

void WinKeyerUsbSendingTest::mergedLettersAtTheEndStall() {
    _bench->type(u"{A"_s);
    QCOMPARE(_bench->written(), "");
    QCOMPARE(_bench->engine().outputBufferIndex(), 1);
    _bench->type(u"{AB"_s);
    QCOMPARE(_bench->written(), ""); // still counted as sending: typing does not start it
    _bench->engine().send();
    QCOMPARE(_bench->written(), "41");
    _bench->receive({'A'});
    QCOMPARE(_bench->written(), "42");
}

void WinKeyerUsbSendingTest::endOfHighSpeedSwitchesItsControlOff() {
    _bench->engine().setHscwState(1);
    QTest::ignoreMessage(QtInfoMsg, "Begin HSCW");
    QTest::ignoreMessage(QtInfoMsg, "HSCW Speed = 10");
    QTest::ignoreMessage(QtInfoMsg, "HSCW command = <1d0a>");
    QTest::ignoreMessage(QtInfoMsg, "End HSCW");
    _bench->engine().appendMessage(u"%^A"_s);
    QCOMPARE(_bench->engine().hscwState(), 0);
    QCOMPARE(_bench->written(), "1d 0a 1e 41");
}

void WinKeyerUsbSendingTest::highSpeedReadsItsSetting_data() {
    QTest::addColumn<QString>("speed");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("1000 lpm") << u"1000 lpm"_s << QByteArray("1d 0a");
    QTest::newRow("cut, not rounded") << u"1999"_s << QByteArray("1d 13");
    QTest::newRow("below 100") << u"99"_s << QByteArray("1d 00");
    QTest::newRow("no number") << u"fast"_s << QByteArray("1d 00");
    QTest::newRow("wrapped") << u"25700"_s << QByteArray("1d 01");
}

void WinKeyerUsbSendingTest::highSpeedReadsItsSetting() {
    QFETCH(QString, speed);
    QFETCH(QByteArray, written);
    _bench->settings().setObject(speed, WKHSCWSpeed);
    _bench->engine().appendMessage(u"%"_s);
    QCOMPARE(_bench->written(), written);
}

void WinKeyerUsbSendingTest::stoppingClearsTheKeyersBufferToo() {
    _bench->engine().setBeaconState(1);
    _bench->type(u"CQ"_s);
    _bench->engine().stopMessageSending(nullptr);
    QCOMPARE(_bench->written(), "43 0a");
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    QCOMPARE(_bench->engine().beaconState(), 0);
    _bench->type(u"E"_s);
    QCOMPARE(_bench->written(), "45");
}

void WinKeyerUsbSendingTest::stoppingWhileNotConnectedOnlyForgets() {
    QVERIFY(_bench->engine().disconnect(nullptr));
    static_cast<void>(_bench->written());
    _bench->type(u"CQ"_s);
    _bench->engine().stopMessageSending(nullptr);
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbSendingTest::stoppingWhileThePortIsClosedOnlyForgets() {
    _bench->type(u"CQ"_s);
    QVERIFY(_bench->port().close());
    const LogKeeper log;
    _bench->engine().stopMessageSending(nullptr);
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    QCOMPARE(log.lines(), QStringList());
}

void WinKeyerUsbSendingTest::nothingIsSentWhilePaused() {
    auto& engine = _bench->engine();
    engine.setPauseState(1);
    engine.appendMessage(u"{ARA"_s);
    engine.send();
    _bench->receive({'U'});
    QCOMPARE(_bench->written(), "06 01");
    engine.setPauseState(0);
    QCOMPARE(_bench->written(), "06 00 1b 41 52 41");
}

void WinKeyerUsbSendingTest::textStaysAfterItWasSent() {
    _bench->type(u"E"_s);
    _bench->receive({'E'});
    QCOMPARE(_bench->engine().keyboardBuffer(), u"E"_s);
    QCOMPARE(_bench->engine().outputBufferIndex(), 1);
    _bench->engine().appendMessage(u"T"_s);
    QCOMPARE(_bench->written(), "45 20");
}

void WinKeyerUsbSendingTest::theFirstCharacterIsLostWhileNotConnected() {
    QVERIFY(_bench->engine().disconnect(nullptr));
    _bench->type(u"A"_s);
    _bench->type(u"ABC"_s);
    QVERIFY(_bench->connect());
    _bench->engine().send();
    QCOMPARE(_bench->written(), "42");
}

void WinKeyerUsbSendingTest::controlCharactersCostNoStack() {
    // As deep as the text is long, this would overflow the stack.
    _bench->engine().setPauseState(1);
    QVERIFY(_bench->engine().disconnect(nullptr));
    _bench->type(QString(1'000'000, u'~') + u'A');
    _bench->engine().setPauseState(0);
    QCOMPARE(_bench->engine().outputBufferIndex(), 1'000'001);
}

void WinKeyerUsbSendingTest::charactersThatAreNoTextNeverReachTheKeyer() {
    _bench->engine().appendMessage(u"A\n\x0B\u00C4"_s + QChar(0x3A9));
    QCOMPARE(_bench->engine().keyboardBuffer(), u"A"_s);
    _bench->receive({'A'});
    static_cast<void>(_bench->written());

    _bench->engine().setHisCallsign(u"K\u03A9\u00C4\n1\t"_s);
    _bench->engine().appendMessage(u"~E"_s);
    for (int echo = 0; echo < 4; ++echo) {
        _bench->receive({'E'});
    }
    QCOMPARE(_bench->written(), "20 4b 31 45");
}

// Six bytes are on the line for 55 ms.

void WinKeyerUsbSendingTest::aLongRunIsWrittenAsTheLineSendsIt() {
    _bench->engine().setRunLimit(6);
    _bench->type(u"A||||||{AR%|||E|"_s);
    QCOMPARE(_bench->written(), "41");
    _bench->receive({'A'});
    QCOMPARE(_bench->written(), "7c 7c 7c 7c 7c 7c");
    // Ahead of the moment at which the line would fall idle.
    _bench->clock().advance(27ms);
    QCOMPARE(_bench->written(), "");
    _bench->clock().advance(1ms);
    QCOMPARE(_bench->written(), "1b 41 52");
    _bench->clock().advance(1h);
    QCOMPARE(_bench->written(), "1d 0a 7c 7c 7c 45");
    _bench->receive({'E'});
    QCOMPARE(_bench->written(), "7c");
}

void WinKeyerUsbSendingTest::aRunIsNotHurried() {
    _bench->engine().setRunLimit(6);
    _bench->type(u"||||||||AB"_s);
    _bench->receive({0xC0});
    _bench->receive({'U'});
    _bench->engine().appendMessage(u"C"_s);
    QCOMPARE(_bench->written(), "7c 7c 7c 7c 7c 7c");
    _bench->clock().advance(28ms);
    QCOMPARE(_bench->written(), "7c 7c 41");
    _bench->receive({'A'});
    QCOMPARE(_bench->written(), "42");
}

void WinKeyerUsbSendingTest::aStopEndsARun() {
    _bench->engine().setRunLimit(6);
    _bench->type(QString(20'000, u'|'));
    _bench->clock().advance(200ms);
    static_cast<void>(_bench->written());
    _bench->engine().stopMessageSending(nullptr);
    QCOMPARE(_bench->written(), "0a");
    _bench->clock().advance(1h);
    QCOMPARE(_bench->written(), "");
    _bench->type(u"|E"_s);
    QCOMPARE(_bench->written(), "7c 45");
}

void WinKeyerUsbSendingTest::aPauseHoldsARun() {
    _bench->engine().setRunLimit(6);
    _bench->type(QString(7, u'|') + u'E');
    _bench->receive({0xC1});
    QCOMPARE(_bench->written(), "7c 7c 7c 7c 7c 7c 06 01");
    _bench->clock().advance(1h);
    QCOMPARE(_bench->written(), "");
    _bench->receive({0xC0});
    QCOMPARE(_bench->written(), "06 00 7c 45");
}

void WinKeyerUsbSendingTest::whatEndsTheKeyingOvertakesWhatWaits_data() {
    QTest::addColumn<QString>("end");
    QTest::addColumn<int>("waiting");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("stop") << u"stop"_s << 5 << QByteArray("13 13 13 13 0a");
    QTest::newRow("a stop behind a command") << u"stop"_s << 4 << QByteArray("0a");
    QTest::newRow("the end of tune") << u"tune"_s << 5 << QByteArray("13 13 13 13 0b 00");
    QTest::newRow("silence") << u"silence"_s << 5 << QByteArray("13 13 13 13 0b 00 0a");
    QTest::newRow("leaving host mode") << u"close"_s << 5 << QByteArray("13 13 13 13 00 03");
}

void WinKeyerUsbSendingTest::whatEndsTheKeyingOvertakesWhatWaits() {
    QFETCH(QString, end);
    QFETCH(int, waiting);
    QFETCH(QByteArray, written);
    auto& engine = _bench->engine();
    _bench->clock().advance(1s);
    SystemCallFaults faults;
    faults.setOutputWaiting(waiting);
    if (end == u"stop") {
        engine.stopMessageSending(nullptr);
    } else if (end == u"tune") {
        engine.tune(nullptr);
    } else if (end == u"silence") {
        engine.silence();
    } else {
        QVERIFY(engine.closeHostMode(nullptr));
    }
    QCOMPARE(_bench->written(), written);
}

void WinKeyerUsbSendingTest::aStopLeavesTheKeyUpAheadOfItAlone() {
    auto& engine = _bench->engine();
    _bench->clock().advance(1s);
    SystemCallFaults faults;
    faults.setOutputWaiting(20);
    engine.keyUp();
    engine.stopMessageSending(nullptr);
    QCOMPARE(_bench->written(), "13 13 13 13 0b 00 0a");
    // A line that has not moved since is stuck.
    _bench->clock().advance(100ms);
    engine.stopMessageSending(nullptr);
    QCOMPARE(_bench->written(), "13 13 13 13 0a");
}

void WinKeyerUsbSendingTest::nothingIsCutFromABlock_data() {
    QTest::addColumn<bool>("isMemory");
    QTest::newRow("settings") << false;
    QTest::newRow("the keyer's memory") << true;
}

void WinKeyerUsbSendingTest::nothingIsCutFromABlock() {
    QFETCH(bool, isMemory);
    SystemCallFaults faults;
    if (isMemory) {
        _bench->clock().advance(1s);
        QVERIFY(_bench->engine().writeEeprom(nullptr));
        static_cast<void>(_bench->written());
    }
    faults.setOutputWaiting(100);
    _bench->engine().stopMessageSending(nullptr);
    QCOMPARE(_bench->written(), "0a");
    _bench->clock().advance(3s);
    _bench->engine().stopMessageSending(nullptr);
    QCOMPARE(_bench->written(), "13 13 13 13 0a");
}

static const RegisteredTest<WinKeyerUsbSendingTest> registered;
#include "WinKeyerUsbSendingTest.moc"
