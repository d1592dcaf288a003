#include "tests/support/RegisteredTest.h"
#include "tests/virtualkeyer/core/KeyerBench.h"

#include <QtTest>

#include <numeric>

using namespace Qt::StringLiterals;
using virtualkeyer::Register;

namespace {

void sendAll(KeyerBench& bench, const QByteArray& bytes) {
    for (const char byte : bytes) {
        bench.send({static_cast<std::uint8_t>(byte)});
    }
}

} // namespace

/// What each admin and immediate command answers and changes.
class KeyerCommandsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void adminCommandsAnswer_data();
    void adminCommandsAnswer();
    void registersAreSet_data();
    void registersAreSet();
    void closedKeyerTakesAdminCommandsOnly();
    void parametersAreNoText();
    void closeRestoresTheStandaloneSettings();
    void closeLetsGoOfTheKeySilently();
    void everyOpenSelectsVersion1Mode();
    void resetIsAColdStart();
    void pushButtonsAreReportedInVersion2Mode();
    void pushButtonsAreNotReportedInVersion1Mode();
    void potStepsAreReported();
    void potSetsTheSpeedWhenTheHostDoesNot();
    void statusIsAnsweredWhileSending();
    void memoryImageComesBackAsLoaded();
    void memoryLoadTakesExactly256RawBytes();
    void loadedSettingsHoldWhileClosed();
    void storedMessagesAreKeyed_data();
    void storedMessagesAreKeyed();
    void messagesAreKeyedWhileClosedAndSilently();
    void lineSpeedIsAnnouncedOnChange();
    void softwarePaddleKeys_data();
    void softwarePaddleKeys();
};

void KeyerCommandsTest::adminCommandsAnswer_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("closed");
    QTest::addColumn<QString>("open");

    const auto row = [](const char* name, const QByteArray& bytes, const QString& closed,
                        const QString& open) { QTest::newRow(name) << bytes << closed << open; };
    row("calibrate", "\0\0\xFF\0\x04U"_ba, u"55"_s, u"55"_s);
    row("open", "\0\x02"_ba, u"17"_s, u"17"_s);
    row("close", "\0\x03"_ba, u""_s, u""_s);
    row("echo", "\0\x04\xE7"_ba, u"E7"_s, u"E7"_s);
    row("echo of a zero", "\0\x04\0\0\x04U"_ba, u"00 55"_s, u"00 55"_s);
    row("paddle A/D", "\0\x05"_ba, u"00"_s, u"00"_s);
    row("speed A/D", "\0\x06"_ba, u"00"_s, u"00"_s);
    row("get values", "\0\x07"_ba, u"00 00 05 32 00 00 0A 0F 00 00 00 32 32 07 00"_s,
        u"04 14 05 32 00 00 0A 0F 00 00 00 32 32 07 00"_s);
    row("debug", "\0\x08"_ba, u""_s, u""_s);
    row("calibrated A/D", "\0\x09"_ba, u"00"_s, u"00"_s);
    row("version 1 status mode", "\0\x0A"_ba, u""_s, u""_s);
    row("version 2 status mode", "\0\x0B"_ba, u""_s, u"C8"_s);
    row("a message slot that is empty", "\0\x0E\x01\0\x04U"_ba, u"55"_s, u"55"_s);
    row("load X1MODE takes one parameter", "\0\x0F\0\0\x04U"_ba, u"55"_s, u"55"_s);
    row("unknown numbers are consumed", "\0\x10\0\x13\0\xFF\0\x04U"_ba, u"55"_s, u"55"_s);
}

void KeyerCommandsTest::adminCommandsAnswer() {
    QFETCH(QByteArray, bytes);
    KeyerBench closed;
    sendAll(closed, bytes);
    QTEST(closed.bytes(), "closed");
    KeyerBench open;
    open.open();
    sendAll(open, bytes);
    QTEST(open.bytes(), "open");
}

void KeyerCommandsTest::registersAreSet_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("values");

    const auto row = [](const char* name, const QByteArray& bytes, const QString& values) {
        QTest::newRow(name) << bytes << values;
    };
    const QString unchanged = u"04 14 05 32 00 00 0A 0F 00 00 00 32 32 07 00"_s;
    row("sidetone", "\x01\x8A"_ba, u"04 14 8A 32 00 00 0A 0F 00 00 00 32 32 07 00"_s);
    row("sidetone without a divider", "\x01\x80"_ba, unchanged);
    row("speed", "\x02\x63"_ba, u"04 63 05 32 00 00 0A 0F 00 00 00 32 32 07 00"_s);
    row("speed from the pot", "\x02\0"_ba, u"04 00 05 32 00 00 0A 0F 00 00 00 32 32 07 00"_s);
    row("speed beyond the range", "\x02\x64"_ba, unchanged);
    row("weighting", "\x03\x5A"_ba, u"04 14 05 5A 00 00 0A 0F 00 00 00 32 32 07 00"_s);
    row("PTT", "\x04\x19\x01"_ba, u"04 14 05 32 19 01 0A 0F 00 00 00 32 32 07 00"_s);
    row("PTT beyond the range", "\x04\x1A\x1A"_ba, unchanged);
    row("pot set-up", "\x05\x0F\x14\x55"_ba, u"04 14 05 32 00 00 0F 14 00 00 00 32 32 07 00"_s);
    row("pin configuration", "\x09\xFF"_ba, u"04 14 05 32 00 00 0A 0F 00 00 00 32 32 FF 00"_s);
    row("Farnsworth", "\x0D\x63"_ba, u"04 14 05 32 00 00 0A 0F 00 00 63 32 32 07 00"_s);
    row("Farnsworth below the range", "\x0D\x09"_ba, unchanged);
    row("mode", "\x0E\xFB"_ba, u"FB 14 05 32 00 00 0A 0F 00 00 00 32 32 07 00"_s);
    row("load defaults", "\x0F\x15\x1E\x03\x37\x02\x03\x0C\x10\x05\x06\x0B\x28\x34\x05\0"_ba,
        u"15 1E 03 37 02 03 0C 10 05 06 0B 28 34 05 00"_s);
    row("first extension", "\x10\xFA"_ba, u"04 14 05 32 00 00 0A 0F FA 00 00 32 32 07 00"_s);
    row("compensation", "\x11\xFA"_ba, u"04 14 05 32 00 00 0A 0F 00 FA 00 32 32 07 00"_s);
    row("switchpoint", "\x12\x0A"_ba, u"04 14 05 32 00 00 0A 0F 00 00 00 0A 32 07 00"_s);
    row("no paddle memory", "\x12\0"_ba, u"04 14 05 32 00 00 0A 0F 00 00 00 00 32 07 00"_s);
    row("null", "\x13"_ba, unchanged);
    row("ratio", "\x17\x42"_ba, u"04 14 05 32 00 00 0A 0F 00 00 00 32 42 07 00"_s);
    row("ratio beyond the range", "\x17\x43"_ba, unchanged);
}

void KeyerCommandsTest::registersAreSet() {
    QFETCH(QByteArray, bytes);
    KeyerBench bench;
    bench.open();
    sendAll(bench, bytes);
    bench.send({0x00, 7});
    QTEST(bench.bytes(), "values");
}

void KeyerCommandsTest::closedKeyerTakesAdminCommandsOnly() {
    KeyerBench bench;
    for (int byte = 1; byte <= 0xFF; ++byte) {
        bench.send({byte});
    }
    QVERIFY(bench.finish());
    QCOMPARE(bench.log({}), QString());
    QCOMPARE(bench.keyer.registers().block(), virtualkeyer::Registers(20).block());
}

void KeyerCommandsTest::parametersAreNoText() {
    KeyerBench bench;
    bench.open();
    bench.send({0x0E, 'E', 0x09, 'A', 0x13, 0x16, 0x01, 'E', 0x14, 0x00});
    QVERIFY(bench.finish());
    QCOMPARE(bench.log({}), QString());
    QCOMPARE(int{bench.keyer.registers().value(Register::Mode)}, int{'E'});
}

void KeyerCommandsTest::closeRestoresTheStandaloneSettings() {
    KeyerBench bench;
    bench.open();
    bench.send({0x03, 70, 0x01, 3, 0x0C, 30, 0x00, 3, 0x00, 7});
    QCOMPARE(bench.bytes(), u"00 00 05 32 00 00 0A 0F 00 00 00 32 32 07 00"_s);
    QCOMPARE(bench.keyer.registers().wpm(), 20);
}

void KeyerCommandsTest::closeLetsGoOfTheKeySilently() {
    KeyerBench bench;
    bench.open();
    bench.text("TEST");
    bench.waitUntil(50);
    bench.send({0x0B, 1});
    bench.forget();
    bench.send({0x00, 3});
    QVERIFY(bench.log(u"key"_s).endsWith(u"up 1"_s));
    QVERIFY(bench.log(u"ptt"_s).endsWith(u"off"_s));
    QVERIFY(bench.log(u"tone"_s).endsWith(u"off"_s));
    QVERIFY(!bench.keyer.nextEvent());
    QCOMPARE(bench.bytes(), QString());
}

void KeyerCommandsTest::everyOpenSelectsVersion1Mode() {
    KeyerBench bench;
    bench.open();
    bench.send({0x00, 11, 0x00, 2, 0x0B, 1});
    QCOMPARE(bench.bytes(), u"C8 17 D8 DC"_s);
}

void KeyerCommandsTest::resetIsAColdStart() {
    KeyerBench bench;
    bench.open();
    bench.send({0x00, 17, 0x00, 1});
    QCOMPARE(bench.log(u"line"_s), u"0 9600 baud, 0 1200 baud"_s);
    bench.text("E");
    bench.send({0x15});
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes(), QString());
    QCOMPARE(int{bench.keyer.registers().value(Register::Mode)}, 0);
}

void KeyerCommandsTest::pushButtonsAreReportedInVersion2Mode() {
    KeyerBench bench;
    bench.open();
    bench.keyer.setPushButtons(0x01, bench.now);
    bench.send({0x00, 11});
    for (const std::uint8_t mask :
         std::initializer_list<std::uint8_t>{0x00, 0x02, 0x06, 0x06, 0x14, 0x10, 0x00}) {
        bench.keyer.setPushButtons(mask, bench.now);
    }
    bench.forget();
    for (const std::uint8_t mask :
         std::initializer_list<std::uint8_t>{0x01, 0x02, 0x04, 0x10, 0x10, 0x07, 0x08, 0x00}) {
        bench.keyer.setPushButtons(mask, bench.now);
    }
    bench.send({});
    QCOMPARE(bench.bytes(), u"C9 CA CC D8 CF C8"_s);
}

void KeyerCommandsTest::pushButtonsAreNotReportedInVersion1Mode() {
    KeyerBench bench;
    bench.open();
    bench.send({0x00, 11, 0x00, 10});
    bench.forget();
    bench.keyer.setPushButtons(0x01, bench.now);
    bench.send({});
    QCOMPARE(bench.bytes(), QString());
}

void KeyerCommandsTest::potStepsAreReported() {
    KeyerBench bench;
    bench.keyer.setPot(18, bench.now);
    bench.open();
    for (const int wpm : {19, 20, 20, 24, 25, 40, 10, 3}) {
        bench.keyer.setPot(wpm, bench.now);
    }
    bench.send({0x07, 0x02, 30, 0x05, 12, 10, 0, 0x07});
    QCOMPARE(bench.bytes(), u"89 8A 8E 8F 80 80 80"_s);
}

void KeyerCommandsTest::potSetsTheSpeedWhenTheHostDoesNot() {
    KeyerBench bench;
    bench.open();
    bench.keyer.setPot(24, bench.now);
    QCOMPARE(bench.keyer.registers().wpm(), 20);
    bench.send({0x02, 0});
    QCOMPARE(bench.keyer.registers().wpm(), 24);
    bench.keyer.setPot(99, bench.now);
    QCOMPARE(bench.keyer.registers().wpm(), 25);
    bench.send({'E'});
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"48"_s);
}

void KeyerCommandsTest::statusIsAnsweredWhileSending() {
    KeyerBench bench;
    bench.open();
    bench.send({0x15, 'T', 0x15});
    bench.waitUntil(30);
    bench.send({0x15});
    QCOMPARE(bench.bytes(), u"C0 C0 C4 C4"_s);
}

void KeyerCommandsTest::memoryImageComesBackAsLoaded() {
    KeyerBench bench;
    bench.send({0x00, 12});
    QCOMPARE(bench.events().size(), 256U);
    QVERIFY(bench.bytes().startsWith(
        u"A5 00 00 05 32 00 00 0A 0F 00 00 00 32 32 07 00 0F 18 18 18 18 18 18 18 00"_s));
    bench.forget();
    bench.send({0x00, 13});
    for (int i = 0; i < 256; ++i) {
        bench.send({255 - i});
    }
    QCOMPARE(bench.bytes(), QString());
    bench.send({0x00, 12});
    QVERIFY(bench.bytes().startsWith(u"FF FE FD"_s));
    QVERIFY(bench.bytes().endsWith(u"02 01 00"_s));
}

void KeyerCommandsTest::memoryLoadTakesExactly256RawBytes() {
    KeyerBench bench;
    bench.send({0x00, 13});
    for (int i = 0; i < 255; ++i) {
        bench.send({0x00});
    }
    // The last byte of the load, and the dump of a memory that is not the factory's any more.
    bench.send({0x04, 0x00, 4, 0x55});
    QCOMPARE(bench.bytes(), u"55"_s);
    bench.send({0x00, 12});
    QVERIFY(bench.bytes().startsWith(u"55 00 00"_s));
    QVERIFY(bench.bytes().endsWith(u"00 04"_s));
}

void KeyerCommandsTest::loadedSettingsHoldWhileClosed() {
    KeyerBench bench;
    const QByteArray settings("\xA5\x10\x1E\x03\x37\x02\x03\x0C\x10\x05\x06\x0B\x28\x34\x05");
    sendAll(bench, "\0\x0D"_ba + settings.leftJustified(256, '\0'));
    QCOMPARE(bench.keyer.registers().wpm(), 30);
    QCOMPARE(int{bench.keyer.registers().value(Register::PinConfiguration)}, 5);
    bench.open();
    QCOMPARE(bench.keyer.registers().wpm(), 20);
    bench.send({0x00, 3});
    QCOMPARE(bench.keyer.registers().wpm(), 30);
    sendAll(bench, "\0\x0D"_ba + settings.mid(1).leftJustified(256, '\0'));
    QCOMPARE(bench.keyer.registers().block(), virtualkeyer::Registers(20).block());
}

void KeyerCommandsTest::storedMessagesAreKeyed_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("keying");
    QTest::newRow("the first slot, ended by bit 7") << 1 << u"60 60 180 180 60 420 180"_s;
    QTest::newRow("another slot") << 2 << u"60"_s;
    QTest::newRow("a slot without its end stops at the free pointer") << 3 << u"180"_s;
    QTest::newRow("an empty slot") << 4 << QString();
    QTest::newRow("an address within the settings") << 5 << QString();
    QTest::newRow("no slot 0") << 0 << QString();
    QTest::newRow("no slot 7") << 7 << QString();
}

void KeyerCommandsTest::storedMessagesAreKeyed() {
    QFETCH(int, number);
    QByteArray image(256, '\0');
    image.replace(17, 7, "\x1E\x18\x1C\x1D\x1E\x02\xFF"_ba);
    // A is dit, dah, closing bit: 0 1 1 from bit 0 upward.
    image.replace(24, 8, "\x06\x02\x1C\x83\x82\x03\x83\x83"_ba);
    KeyerBench bench;
    bench.open();
    sendAll(bench, "\0\x0D"_ba + image);
    bench.send({0x00, 14, number});
    QVERIFY(bench.finish());
    QTEST(bench.keying(), "keying");
    QCOMPARE(bench.bytes(), bench.keying().isEmpty() ? QString() : u"C4 C0"_s);
}

void KeyerCommandsTest::messagesAreKeyedWhileClosedAndSilently() {
    QByteArray image(256, '\0');
    image.replace(17, 2, "\x19\x18"_ba);
    image[24] = '\x82';
    KeyerBench bench;
    sendAll(bench, "\0\x0D"_ba + image + "\0\x0E\x01"_ba);
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"60"_s);
    QCOMPARE(bench.bytes(), QString());
}

void KeyerCommandsTest::lineSpeedIsAnnouncedOnChange() {
    KeyerBench bench;
    bench.send({0x00, 18, 0x00, 17, 0x00, 17, 0x00, 18});
    QCOMPARE(bench.log(u"line"_s), u"0 9600 baud, 0 1200 baud"_s);
}

void KeyerCommandsTest::softwarePaddleKeys_data() {
    QTest::addColumn<int>("contacts");
    QTest::addColumn<QString>("keying");
    QTest::newRow("dits") << 1 << u"60 60 60 60 60 60"_s;
    QTest::newRow("dahs") << 2 << u"180 60"_s;
    QTest::newRow("both") << 3 << u"60 60 180 60"_s;
    QTest::newRow("none") << 0 << QString();
}

void KeyerCommandsTest::softwarePaddleKeys() {
    QFETCH(int, contacts);
    KeyerBench bench;
    bench.open();
    bench.send({0x14, contacts});
    bench.wait(361);
    const QString keying = bench.keying();
    bench.send({0x14, 0});
    QVERIFY(bench.finish());
    QTEST(keying, "keying");
}

static const RegisteredTest<KeyerCommandsTest> registered;
#include "KeyerCommandsTest.moc"
