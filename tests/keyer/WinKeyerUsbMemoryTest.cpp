#include "keyer/KeyerMemory.h"
#include "keyer/KeyerSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/SystemCallFaults.h"

#include <QTest>

#include <cerrno>
#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class WinKeyerUsbMemoryTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _bench.reset(); }

    void theImageFollowsItsCommand();
    void theImageIsOneWrite();
    void settingsOfTheImage_data();
    void settingsOfTheImage();
    void messagesAreStoredInUpperCaseAndUnsubstituted();
    void aMessageThatDoesNotFitIsAnEmptySlot();
    void aCharacterWithoutACodeLoadsNothing();
    void aRefusedCommandKeepsTheImageBack();
    void aRefusedImageFails();
    void withoutAPortNothingIsSent();
    void textWaitsUntilTheImageIsOut();
    void textUnderWayGoesOnWhenTheImageIsOut();
    void theEndOfALoadSendsNothingUnasked();
    void aLoadEndsWithTheLink();
    void textThatWaitsIsNoPartOfAGreeting();
    void aLoadIsForeseen();
    void aSecondLoadQueuesBehindTheFirst();
    void aLoadEndsAMessageOfTheKeyersOwn();
    void noStandaloneMessageGoesBehindALoad();
    void standaloneMessagesAreSentByNumber_data();
    void standaloneMessagesAreSentByNumber();

  private:
    void clearMessages();
    [[nodiscard]] QByteArray loadedImage();

    std::optional<EngineBench> _bench;
};

void WinKeyerUsbMemoryTest::init() {
    _bench.emplace();
    QVERIFY(_bench->connect());
}

void WinKeyerUsbMemoryTest::clearMessages() {
    for (const auto key : WKStandaloneMessages) {
        _bench->settings().setObject(u""_s, key);
    }
}

QByteArray WinKeyerUsbMemoryTest::loadedImage() {
    if (!_bench->engine().writeEeprom(nullptr)) {
        return "refused";
    }
    const auto written = QByteArray::fromHex(_bench->written());
    return written.startsWith(QByteArray::fromHex("000d")) ? written.mid(2) : "no command";
}

void WinKeyerUsbMemoryTest::theImageFollowsItsCommand() {
    Error error;
    QVERIFY(_bench->engine().writeEeprom(&error));
    QCOMPARE(error.code, 0);
    const auto written = QByteArray::fromHex(_bench->written());
    QCOMPARE(written.size(), 2 + 256);
    QCOMPARE(written.left(2 + 24).toHex(' '),
             "00 0d a5 11 00 8a 32 00 0a 0d 20 00 00 0a 32 32 06 0c 0a 4e "
             "18 21 2a 33 3c 45");
}

void WinKeyerUsbMemoryTest::theImageIsOneWrite() {
    const SystemCallFaults watched;
    QVERIFY(_bench->engine().writeEeprom(nullptr));
    QCOMPARE(watched.count(SystemCall::Write), 2);
}

void WinKeyerUsbMemoryTest::settingsOfTheImage_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("byte");

    const auto row = [](const char* name, const QString& key, const QVariant& value, int offset,
                        int byte) { QTest::newRow(name) << key << value << offset << byte; };
    row("paddle echo is never on", u"WKPaddleEchoback"_s, true, 0x01, 0x11);
    row("serial echo is never on", u"WKSerialEchoback"_s, true, 0x01, 0x11);
    row("the watchdog is off", u"WKDisablePaddleWatchdog"_s, true, 0x01, 0x91);
    row("iambic B", u"WKKeyMode"_s, u"Iambic B"_s, 0x01, 0x01);
    row("bug", u"WKKeyMode"_s, u"Bug"_s, 0x01, 0x31);
    row("swap", u"WKPaddleSwap"_s, true, 0x01, 0x19);
    row("autospace", u"WKAutospace"_s, true, 0x01, 0x13);
    row("speed is never written", u"WKSpeed"_s, 25, 0x02, 0x00);
    row("sidetone", u"WKSidetoneFrequency"_s, u"800 Hz"_s, 0x03, 0x85);
    row("weighting", u"WKWeighting"_s, -60, 0x04, 0xF6);
    row("lead", u"WKPTTLeadTime"_s, 3, 0x05, 3);
    row("tail", u"WKPTTTailTime"_s, 4, 0x06, 4);
    row("pot minimum", u"WKSpeedPotMinimum"_s, 5, 0x07, 5);
    row("pot range", u"WKSpeedPotRange"_s, 6, 0x08, 6);
    row("first extension", u"WKFirstExtension"_s, 7, 0x09, 7);
    row("compensation", u"WKKeyingCompensation"_s, 8, 0x0A, 8);
    row("Farnsworth", u"WKFarnsworthSpeed"_s, 9, 0x0B, 9);
    row("switchpoint", u"WKPaddleSwitchpoint"_s, 11, 0x0C, 11);
    row("the switchpoint stands without dit and dah memory", u"WKEnableDitDahMemory"_s, false, 0x0C,
        50);
    row("ratio", u"WKRatio"_s, 2.5, 0x0D, 41);
    row("dashes first", u"WKDitDahPriority"_s, u"Dashes"_s, 0x0E, 0x46);
    row("hang", u"WKPaddleHang"_s, u"2.0"_s, 0x0E, 0x36);
    row("no message break", u"WKStandaloneEnableMessageBreak"_s, false, 0x0F, 0x08);
    row("no cut numbers", u"WKStandaloneCutSerialNumbers"_s, false, 0x0F, 0x04);
    row("command speed", u"WKStandaloneCommandSpeed"_s, 300, 0x10, 44);
}

void WinKeyerUsbMemoryTest::settingsOfTheImage() {
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(int, offset);
    QFETCH(int, byte);
    _bench->settings().setObject(value, key);
    QCOMPARE(int{static_cast<std::uint8_t>(loadedImage().at(offset))}, byte);
}

void WinKeyerUsbMemoryTest::messagesAreStoredInUpperCaseAndUnsubstituted() {
    clearMessages();
    _bench->settings().setObject(u"cq `"_s, WKStandaloneMessages[1]);
    const auto image = loadedImage();
    QCOMPARE(image.mid(0x11, 7).toHex(' '), "1c 10 18 10 10 10 10");
    QCOMPARE(image.mid(0x18, 6).toHex(' '), "15 1b 1c 81 00 00");
}

void WinKeyerUsbMemoryTest::aMessageThatDoesNotFitIsAnEmptySlot() {
    clearMessages();
    _bench->settings().setObject(QString(232, u'E'), WKStandaloneMessages[0]);
    _bench->settings().setObject(u"CQ"_s, WKStandaloneMessages[1]);
    const auto image = loadedImage();
    QCOMPARE(image.size(), 256);
    QCOMPARE(image.mid(0x11, 7).toHex(' '), "1a 10 18 10 10 10 10");
}

void WinKeyerUsbMemoryTest::aCharacterWithoutACodeLoadsNothing() {
    _bench->settings().setObject(u"CQ \u00C9"_s, WKStandaloneMessages[5]);
    Error error;
    QVERIFY(!_bench->engine().writeEeprom(&error));
    QCOMPARE(error.code, 0);
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbMemoryTest::aRefusedCommandKeepsTheImageBack() {
    Error error;
    SystemCallFaults faults;
    faults.fail(SystemCall::Write, EIO, 1, 1);
    QVERIFY(!_bench->engine().writeEeprom(&error));
    QCOMPARE(faults.count(SystemCall::Write), 1);
    QCOMPARE(error.code, 0);
}

void WinKeyerUsbMemoryTest::aRefusedImageFails() {
    SystemCallFaults faults;
    faults.fail(SystemCall::Write, EIO, 2);
    QVERIFY(!_bench->engine().writeEeprom(nullptr));
    QCOMPARE(faults.count(SystemCall::Write), 2);
}

void WinKeyerUsbMemoryTest::withoutAPortNothingIsSent() {
    QVERIFY(_bench->engine().disconnect(nullptr));
    static_cast<void>(_bench->written());
    QVERIFY(!_bench->engine().writeEeprom(nullptr));
    _bench->engine().sendStandaloneMessage(1);
    QCOMPARE(_bench->written(), "");
}

// The command and the image are on the line for 2.365 s.

void WinKeyerUsbMemoryTest::textWaitsUntilTheImageIsOut() {
    auto& engine = _bench->engine();
    QVERIFY(engine.writeEeprom(nullptr));
    QVERIFY(engine.isLoadingMemory());
    static_cast<void>(_bench->written());
    _bench->type(u"CQ"_s);
    engine.appendMessage(u"TEST"_s);
    _bench->clock().advance(2364ms);
    QCOMPARE(_bench->written(), "");
    _bench->clock().advance(1ms);
    QVERIFY(!engine.isLoadingMemory());
    QCOMPARE(_bench->written(), "43");
    _bench->receive({'C'});
    QCOMPARE(_bench->written(), "51");
}

void WinKeyerUsbMemoryTest::textUnderWayGoesOnWhenTheImageIsOut() {
    _bench->type(u"CQ"_s);
    QVERIFY(_bench->engine().writeEeprom(nullptr));
    static_cast<void>(_bench->written());
    _bench->receive({'C'});
    QCOMPARE(_bench->written(), "");
    _bench->clock().advance(3s);
    QCOMPARE(_bench->written(), "51");
}

void WinKeyerUsbMemoryTest::theEndOfALoadSendsNothingUnasked() {
    _bench->type(u"CQ"_s);
    QVERIFY(_bench->engine().writeEeprom(nullptr));
    static_cast<void>(_bench->written());
    _bench->clock().advance(3s);
    QCOMPARE(_bench->written(), ""); // the echo of the first letter has not come yet
    QVERIFY(_bench->engine().writeEeprom(nullptr));
    _bench->receive({'C'});
    _bench->engine().stopMessageSending(nullptr);
    static_cast<void>(_bench->written());
    _bench->clock().advance(3s);
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbMemoryTest::aLoadEndsWithTheLink() {
    QVERIFY(_bench->engine().writeEeprom(nullptr));
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(!_bench->engine().isLoadingMemory());
    QVERIFY(_bench->connect());
    _bench->type(u"E"_s);
    QCOMPARE(_bench->written(), "45");
}

void WinKeyerUsbMemoryTest::aSecondLoadQueuesBehindTheFirst() {
    auto& engine = _bench->engine();
    QVERIFY(engine.writeEeprom(nullptr));
    _bench->clock().advance(1s);
    QVERIFY(engine.writeEeprom(nullptr));
    static_cast<void>(_bench->written());
    _bench->type(u"E"_s);
    _bench->clock().advance(3729ms);
    QVERIFY(engine.isLoadingMemory());
    QCOMPARE(_bench->written(), "");
    _bench->clock().advance(1ms);
    QVERIFY(!engine.isLoadingMemory());
    QCOMPARE(_bench->written(), "45");
}

void WinKeyerUsbMemoryTest::aLoadEndsAMessageOfTheKeyersOwn() {
    auto& engine = _bench->engine();
    engine.sendStandaloneMessage(1);
    _bench->receive({0xC4});
    QVERIFY(engine.writeEeprom(nullptr));
    auto written = _bench->written();
    QVERIFY2(written.startsWith("00 0e 01 0a 00 0d a5"), written);
    // One that has ended by itself.
    _bench->clock().advance(3s);
    engine.sendStandaloneMessage(1);
    _bench->receive({0xC4});
    _bench->receive({0xC0});
    QVERIFY(engine.writeEeprom(nullptr));
    written = _bench->written();
    QVERIFY2(written.startsWith("00 0e 01 00 0d a5"), written);
}

/// It would be keyed before the keyer is greeted, and once more afterwards.
void WinKeyerUsbMemoryTest::textThatWaitsIsNoPartOfAGreeting() {
    QVERIFY(_bench->engine().writeEeprom(nullptr));
    _bench->type(u"E"_s);
    static_cast<void>(_bench->written());
    _bench->engine().greetAgain();
    QVERIFY(_bench->written().startsWith("13 13 13 13 00 04 55"));
    _bench->receive({0x55});
    QCOMPARE(_bench->written(), "45");
    _bench->receive({'E'});
    QCOMPARE(_bench->written(), "");
}

void WinKeyerUsbMemoryTest::aLoadIsForeseen() {
    QStringList story;
    QObject::connect(&_bench->engine(), &WinKeyerUsb::willLoadMemory, this, [&] {
        story.append(QString::fromLatin1(_bench->written()));
        _bench->engine().tune(nullptr);
    });
    QVERIFY(_bench->engine().writeEeprom(nullptr));
    QCOMPARE(story, QStringList{QString(u""_s)});
    QVERIFY(_bench->written().startsWith("0b 00 00 0d a5"));
}

/// Nothing could stop it until the image is out.
void WinKeyerUsbMemoryTest::noStandaloneMessageGoesBehindALoad() {
    QVERIFY(_bench->engine().writeEeprom(nullptr));
    static_cast<void>(_bench->written());
    _bench->engine().sendStandaloneMessage(1);
    QCOMPARE(_bench->written(), "");
    _bench->clock().advance(3s);
    QCOMPARE(_bench->written(), "");
    _bench->engine().sendStandaloneMessage(1);
    QCOMPARE(_bench->written(), "00 0e 01");
}

void WinKeyerUsbMemoryTest::standaloneMessagesAreSentByNumber_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("first") << 1 << QByteArray("00 0e 01");
    QTest::newRow("sixth") << 6 << QByteArray("00 0e 06");
    QTest::newRow("any number is sent as one byte") << 0x107 << QByteArray("00 0e 07");
}

void WinKeyerUsbMemoryTest::standaloneMessagesAreSentByNumber() {
    QFETCH(int, number);
    QFETCH(QByteArray, written);
    _bench->engine().sendStandaloneMessage(number);
    QCOMPARE(_bench->written(), written);
}

static const RegisteredTest<WinKeyerUsbMemoryTest> registered;
#include "WinKeyerUsbMemoryTest.moc"
