#include "virtualkeyer/window/WireWords.h"

#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/core/Registers.h"

#include <QTest>

#include <set>

using namespace Qt::StringLiterals;
using namespace virtualkeyer;
using Kind = WireLine::Kind;

namespace {

WireLine lineOf(Kind kind, const QByteArray& raw) {
    return {.kind = kind, .at = {}, .bytes = {raw.begin(), raw.end()}};
}

} // namespace

class WireWordsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyCommandHasItsWords_data();
    void everyCommandHasItsWords();
    void everyOpcodeIsTried();
    void whatTheKeyerSays_data();
    void whatTheKeyerSays();
    void anAnswerSaysWhatItAnswers_data();
    void anAnswerSaysWhatItAnswers();
    void bytesAreHexadecimal();
};

void WireWordsTest::everyCommandHasItsWords_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("words");
    const auto row = [](const char* bytes, const QString& words) {
        QTest::newRow(bytes) << QByteArray::fromHex(bytes) << words;
    };
    row("00 00 FF", u"Calibrate"_s);
    row("00 01", u"Reset the keyer"_s);
    row("00 02", u"Open the keyer"_s);
    row("00 03", u"Close the keyer"_s);
    row("00 04 55", u"Echo test 55"_s);
    row("00 05", u"Ask for the paddle A/D"_s);
    row("00 06", u"Ask for the speed A/D"_s);
    row("00 07", u"Ask for all values"_s);
    row("00 08", u"Debug"_s);
    row("00 09", u"Ask for the calibration"_s);
    row("00 0A", u"Version 1 status"_s);
    row("00 0B", u"Version 2 status"_s);
    row("00 0C", u"Ask for the memory"_s);
    row("00 0D A5", u"Load the memory"_s);
    row("00 0E 03", u"Play message 3"_s);
    row("00 0F 80", u"Load X1MODE 80"_s);
    row("00 10", u"Admin command 16, unknown"_s);
    row("00 11", u"Line at 9600 baud"_s);
    row("00 12", u"Line at 1200 baud"_s);
    row("01 85", u"Set the tone: Sidetone: 800 Hz, for the paddle only"_s);
    row("01 0B", u"Set the tone: 0B"_s);
    row("02 21", u"Set speed 33 WPM"_s);
    row("02 00", u"Leave the speed to the knob"_s);
    row("03 3C", u"Set weighting 60 %"_s);
    row("04 00 0A", u"Set PTT lead/tail 0, 100 ms"_s);
    row("05 0A 1E 00", u"Set the knob's range 10 to 40 WPM"_s);
    row("06 01", u"Pause"_s);
    row("06 00", u"Resume"_s);
    row("07", u"Ask for the knob"_s);
    row("08", u"Backspace"_s);
    row("09 0E", u"Set the pins: Ultimatic priority: the last one closed; Key outputs: 1 and 2; "
                 "PTT: off; Hang time: word space and 1 dits"_s);
    row("0A", u"Clear buffer"_s);
    row("0B 01", u"Key down"_s);
    row("0B 00", u"Key up"_s);
    row("0C 05", u"Set high speed 100 WPM"_s);
    row("0D 0F", u"Set Farnsworth 15 WPM"_s);
    row("0D 00", u"No Farnsworth"_s);
    row("0E 54", u"Set the mode: Word space: 7 dits; Paddle keying: iambic A; Paddle swapped: off; "
                 "Paddle watchdog: on; Autospace: off; Paddle echo: on; Serial echo: on"_s);
    row("10 07", u"Set first extension 7 ms"_s);
    row("11 08", u"Set key compensation 8 ms"_s);
    row("12 32", u"Set paddle memory 50 (50: a dit)"_s);
    row("13", u"Null"_s);
    row("14 00", u"Paddle by the host: none"_s);
    row("14 01", u"Paddle by the host: dit"_s);
    row("14 02", u"Paddle by the host: dah"_s);
    row("14 03", u"Paddle by the host: both"_s);
    row("15", u"Ask for the status"_s);
    row("16 00", u"Buffer: to its beginning"_s);
    row("16 01 05", u"Buffer: overwrite at 5"_s);
    row("16 02 06", u"Buffer: append at 6"_s);
    row("16 03 07", u"Buffer: insert 7 nulls"_s);
    row("16 09", u"Buffer: move 9, unknown"_s);
    row("17 37", u"Set dah to dit 55 (50: 3 to 1)"_s);
    row("18 01", u"In the buffer: PTT on"_s);
    row("18 00", u"In the buffer: PTT off"_s);
    row("19 05", u"In the buffer: key down, 5 s"_s);
    row("1A 06", u"In the buffer: wait, 6 s"_s);
    row("1B 41 52", u"In the buffer: merge AR"_s);
    row("1C 1E", u"In the buffer: 30 WPM"_s);
    row("1D 00", u"In the buffer: key output 1"_s);
    row("1D 01", u"In the buffer: key output 2"_s);
    row("1D 0A", u"In the buffer: high speed, 200 WPM"_s);
    row("1E", u"In the buffer: the speed that was set"_s);
    row("1F", u"In the buffer: null"_s);
    row("41", u"text A"_s);
    row("20", u"text space"_s);
    row("7C", u"text |"_s);
    // Of the fifteen values each is told with its unit; one out of its range is told as it stands.
    row("0F 04 14 05 32 05 0A 0A 1E 00 00 00 32 32 07 00",
        u"Load defaults: Speed: 20 WPM; Knob's range: 10 to 40 WPM; Farnsworth: off; "
        "Weighting: 50 %; Dah to dit: 3.00 to 1; Key compensation: 0 ms; First extension: 0 ms; "
        "Word space: 7 dits; Paddle keying: iambic B; Ultimatic priority: the last one closed; "
        "Paddle swapped: off; Paddle memory: after 1 dit lengths; Paddle watchdog: on; "
        "Autospace: off; Paddle echo: off; Serial echo: on; Sidetone: 800 Hz; Key outputs: 1; "
        "PTT: on; Lead-in: 50 ms; Tail: 100 ms; Hang time: word space and 1 dits"_s);
    row("0F 04 FF 05 32 05 0A 0A 1E 00 00 00 32 32 07 00",
        u"Load defaults: 04 FF 05 32 05 0A 0A 1E 00 00 00 32 32 07 00"_s);
}

void WireWordsTest::everyCommandHasItsWords() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, words);
    QCOMPARE(WireWords::of(lineOf(Kind::Command, bytes)), words);
}

/// The rows above leave none out.
void WireWordsTest::everyOpcodeIsTried() {
    std::set<QString> words;
    for (int code = 1; code < firstText; ++code) {
        const QByteArray bytes = QByteArray(1, static_cast<char>(code)) + QByteArray(15, '\x01');
        words.insert(WireWords::of(lineOf(Kind::Command, bytes)));
    }
    QCOMPARE(words.size(), std::size_t{firstText - 1});
    QVERIFY(!words.contains(QString()));
    for (const QString& each : words) {
        QVERIFY2(!each.contains(u"%1"_s) && !each.contains(u"%2"_s), qPrintable(each));
    }
}

void WireWordsTest::whatTheKeyerSays_data() {
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("words");
    const auto row = [](Kind kind, const char* bytes, const QString& words) {
        QTest::addRow("%d %s", static_cast<int>(kind), bytes)
            << kind << QByteArray::fromHex(bytes) << words;
    };
    row(Kind::Echo, "43", u"echo C"_s);
    row(Kind::Echo, "20", u"echo space"_s);
    row(Kind::Status, "C0", u"status: idle"_s);
    row(Kind::Status, "C4", u"status: busy"_s);
    row(Kind::Status, "C6", u"status: busy, break-in"_s);
    row(Kind::Status, "DD", u"status: wait, key down, busy, XOFF"_s);
    row(Kind::Buttons, "C8", u"push-buttons: none"_s);
    row(Kind::Buttons, "DF", u"push-buttons: 1, 2, 3, 4"_s);
    row(Kind::Knob, "8D", u"knob: 23 WPM"_s);
    row(Kind::Discarded, "41", u"discarded by the keyer"_s);
    row(Kind::Lost, "41", u"lost, the keyer is starting"_s);
    row(Kind::Unfinished, "04 00", u"unfinished command"_s);
    row(Kind::Restarted, "", u"the keyer starts anew"_s);
}

void WireWordsTest::whatTheKeyerSays() {
    QFETCH(Kind, kind);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, words);
    WireLine line = lineOf(kind, bytes);
    line.knobMinimum = 10;
    QCOMPARE(WireWords::of(line), words);
}

void WireWordsTest::anAnswerSaysWhatItAnswers_data() {
    QTest::addColumn<AdminCommand>("question");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("words");
    QTest::newRow("open") << AdminCommand::Open << QByteArray::fromHex("17")
                          << u"open, version 23"_s;
    QTest::newRow("echo") << AdminCommand::Echo << QByteArray::fromHex("55") << u"echo test 55"_s;
    QTest::newRow("speed") << AdminCommand::ReadSpeed << QByteArray::fromHex("00") << u"answer 0"_s;
    QTest::newRow("memory") << AdminCommand::DumpMemory << QByteArray(256, '\xA5')
                            << u"memory, 256 bytes"_s;
}

void WireWordsTest::anAnswerSaysWhatItAnswers() {
    QFETCH(AdminCommand, question);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, words);
    WireLine line = lineOf(Kind::Answer, bytes);
    line.question = question;
    QCOMPARE(WireWords::of(line), words);
    line.question = AdminCommand::ReadValues;
    line.bytes.assign(Registers::blockSize, 0);
    QCOMPARE(WireWords::of(line), u"values: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"_s);
    const auto block = Registers(20).block();
    line.bytes.assign(block.begin(), block.end());
    QVERIFY(WireWords::of(line).startsWith(u"values: Speed: "_s));
}

void WireWordsTest::bytesAreHexadecimal() {
    QCOMPARE(WireWords::bytes(lineOf(Kind::Command, QByteArray::fromHex("04000A"))), u"04 00 0A"_s);
}

static const RegisteredTest<WireWordsTest> registered;
#include "WireWordsTest.moc"
