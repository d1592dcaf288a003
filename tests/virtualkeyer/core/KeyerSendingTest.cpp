#include "tests/support/RegisteredTest.h"
#include "tests/virtualkeyer/core/KeyerBench.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// How the host's text is keyed, echoed and reported.
class KeyerSendingTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void parisTakesFiftyDits();
    void textIsEchoedAndReported_data();
    void textIsEchoedAndReported();
    void keyingFollowsTheRegisters_data();
    void keyingFollowsTheRegisters();
    void firstKeyDownComesOneByteTimeAfterTheText();
    void spacingIsKeptByAHostThatAnswersEachEcho();
    void lateTextStartsAnew();
    void speedChangesAtTheNextElement();
    void firstExtensionComesOnceAfterReceive();
    void withoutSerialEchoOnlyStatusIsSent();
    void aWaitSetsItsBit();
    void aTimedKeyDownSetsTheWaitBit();
    void waitsAndTimedKeysOfNoSecondsAreNothing();
    void bufferedSpeedHoldsUntilCanceled_data();
    void bufferedSpeedHoldsUntilCanceled();
    void aCommandWithoutItsParameterIsDropped();
};

void KeyerSendingTest::parisTakesFiftyDits() {
    KeyerBench bench;
    bench.open();
    bench.text("PARIS PARIS");
    QVERIFY(bench.finish());
    std::vector<virtualkeyer::Time> downs;
    for (const auto& event : bench.events()) {
        const auto* line = std::get_if<virtualkeyer::KeyLine>(&event.what);
        if (line != nullptr && line->isDown) {
            downs.push_back(event.at);
        }
    }
    QCOMPARE(downs.size(), 28U);
    QCOMPARE((downs[14] - downs[0]).count(), 3'000'000'000);
    QCOMPARE(bench.host(), u"0 C4, 720 50, 1200 41, 1800 52, 2160 49, 2640 53, 3000 20, "
                           "3720 50, 4200 41, 4800 52, 5160 49, 5640 53, 5760 C0"_s);
}

void KeyerSendingTest::textIsEchoedAndReported_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("host");
    QTest::addColumn<QString>("keying");

    const auto row = [](const char* name, const char* bytes, const QString& host,
                        const QString& keying) {
        QTest::newRow(name) << QByteArray(bytes) << host << keying;
    };
    row("a letter echoes one dit after its last key-up, idle two dits later", "E",
        u"0 C4, 120 45, 240 C0"_s, u"60"_s);
    row("the letter space is three dits", "EE", u"0 C4, 120 45, 360 45, 480 C0"_s, u"60 180 60"_s);
    row("a space echoes seven dits after the last key-up with idle right behind", "E ",
        u"0 C4, 120 45, 480 20, 480 C0"_s, u"60"_s);
    row("every further space adds four dits", "E  ", u"0 C4, 120 45, 480 20, 720 20, 720 C0"_s,
        u"60"_s);
    row("lower case is keyed as upper case", "a", u"0 C4, 360 61, 480 C0"_s, u"60 60 180"_s);
    row("merged letters have no letter space and echo one by one",
        "\x1B"
        "AS",
        u"0 C4, 360 41, 720 53, 840 C0"_s, u"60 60 180 60 60 60 60 60 60"_s);
    row("letters after merged ones are spaced again",
        "\x1B"
        "ETE",
        u"0 C4, 120 45, 360 54, 600 45, 720 C0"_s, u"60 60 180 180 60"_s);
    row("a character without Morse in a merged pair is left out",
        "\x1B"
        "#E",
        u"0 C4, 120 45, 240 C0"_s, u"60"_s);
    row("a merged pair without any Morse is nothing",
        "\x1B"
        "#%E",
        u"0 C4, 120 45, 240 C0"_s, u"60"_s);
    row("a half space adds half a dit and is not echoed", "E|E", u"0 C4, 120 45, 390 45, 510 C0"_s,
        u"60 210 60"_s);
    row("a character without Morse is neither keyed nor echoed", "E#%E",
        u"0 C4, 120 45, 360 45, 480 C0"_s, u"60 180 60"_s);
    row("a buffered null command sends nothing",
        "E\x1F"
        "E",
        u"0 C4, 120 45, 360 45, 480 C0"_s, u"60 180 60"_s);
    row("bytes above 7F are no text",
        "E\x80\xFF"
        "E",
        u"0 C4, 120 45, 360 45, 480 C0"_s, u"60 180 60"_s);
    row("buffered speed counts from its place in the text",
        "E\x1C\x0A"
        "E",
        u"0 C4, 120 45, 480 45, 720 C0"_s, u"60 180 120"_s);
    row("buffered speed ends where it is cancelled",
        "\x1C\x0A"
        "E\x1E"
        "E",
        u"0 C4, 240 45, 600 45, 720 C0"_s, u"120 360 60"_s);
    row("an output above 1 is a high speed",
        "\x1D\x0A"
        "E",
        u"0 C4, 12 45, 24 C0"_s, u"6"_s);
}

void KeyerSendingTest::textIsEchoedAndReported() {
    QFETCH(QByteArray, bytes);
    KeyerBench bench;
    bench.open();
    bench.text(bytes.toStdString());
    QVERIFY(bench.finish());
    QTEST(bench.host(), "host");
    QTEST(bench.keying(), "keying");
}

void KeyerSendingTest::keyingFollowsTheRegisters_data() {
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("keying");
    QTest::addColumn<QString>("host");

    const auto row = [](const char* name, const QByteArray& command, const QString& keying,
                        const QString& host) { QTest::newRow(name) << command << keying << host; };
    // The text is "AE E".
    row("neutral", "\x13", u"60 60 180 180 60 420 60"_s,
        u"0 C4, 360 41, 600 45, 960 20, 1080 45, 1200 C0"_s);
    row("speed", "\x02\x0C", u"100 100 300 300 100 700 100"_s,
        u"0 C4, 600 41, 1000 45, 1600 20, 1800 45, 2000 C0"_s);
    row("weighting lengthens elements and shortens the gaps after them", "\x03\x3C",
        u"72 48 192 168 72 408 72"_s, u"0 C4, 360 41, 600 45, 960 20, 1080 45, 1200 C0"_s);
    row("weighting below 50 does the reverse", "\x03\x28", u"48 72 168 192 48 432 48"_s,
        u"0 C4, 360 41, 600 45, 960 20, 1080 45, 1200 C0"_s);
    row("ratio stretches dahs only", "\x17\x3C", u"60 60 216 180 60 420 60"_s,
        u"0 C4, 396 41, 636 45, 996 20, 1116 45, 1236 C0"_s);
    row("compensation does not scale with speed", "\x11\x0A", u"70 50 190 170 70 410 70"_s,
        u"0 C4, 360 41, 600 45, 960 20, 1080 45, 1200 C0"_s);
    row("no gap is shorter than nothing", "\x11\x64", u"440 120 160 360 160"_s,
        u"0 C4, 440 41, 720 45, 1080 20, 1240 45, 1360 C0"_s);
    row("Farnsworth makes the letters faster and keeps the spaces", "\x0D\x28",
        u"30 30 90 180 30 420 30"_s, u"0 C4, 180 41, 390 45, 780 20, 840 45, 990 C0"_s);
    row("Farnsworth below the speed has no effect", "\x0D\x0A", u"60 60 180 180 60 420 60"_s,
        u"0 C4, 360 41, 600 45, 960 20, 1080 45, 1200 C0"_s);
    row("contest spacing shortens the word space to six dits", "\x0E\x05",
        u"60 60 180 180 60 360 60"_s, u"0 C4, 360 41, 600 45, 900 20, 1020 45, 1140 C0"_s);
    row("high-speed CW", "\x0C\x1E", u"2 2 6 6 2 14 2"_s,
        u"0 C4, 12 41, 20 45, 32 20, 36 45, 40 C0"_s);
    row("the first extension goes to the first element alone", "\x10\x14",
        u"80 60 180 180 60 420 60"_s, u"0 C4, 380 41, 620 45, 980 20, 1100 45, 1220 C0"_s);
}

void KeyerSendingTest::keyingFollowsTheRegisters() {
    QFETCH(QByteArray, command);
    KeyerBench bench;
    bench.open();
    bench.text(command.toStdString());
    bench.text("AE E");
    QVERIFY(bench.finish());
    QTEST(bench.keying(), "keying");
    QTEST(bench.host(), "host");
}

void KeyerSendingTest::firstKeyDownComesOneByteTimeAfterTheText() {
    KeyerBench bench;
    bench.open();
    bench.now = KeyerBench::toTime(1000);
    bench.text("E");
    QVERIFY(bench.finish());
    const auto& events = bench.events();
    QCOMPARE(virtualkeyer::transcriptLine(events.front()), std::string("1009.166 ptt on"));
    // The status byte comes with the key, and not with the text.
    QCOMPARE(bench.bytes(), u"C4 45 C0"_s);
}

void KeyerSendingTest::spacingIsKeptByAHostThatAnswersEachEcho() {
    KeyerBench bench;
    bench.open();
    bench.text("E");
    bench.waitUntil(239);
    bench.text("T");
    bench.waitUntil(599);
    bench.text(" ");
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 120 45, 480 54, 840 20, 840 C0"_s);
    QCOMPARE(bench.keying(), u"60 180 180"_s);
}

void KeyerSendingTest::lateTextStartsAnew() {
    KeyerBench bench;
    bench.open();
    bench.text("E");
    bench.waitUntil(240);
    bench.text("E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 120 45, 240 C0, 249.167 C4, 369.167 45, 489.167 C0"_s);
}

void KeyerSendingTest::speedChangesAtTheNextElement() {
    KeyerBench bench;
    bench.open();
    bench.text("I");
    bench.waitUntil(30);
    bench.send({0x02, 40});
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"60 30 30"_s);
}

void KeyerSendingTest::firstExtensionComesOnceAfterReceive() {
    KeyerBench bench;
    bench.open();
    bench.send({0x10, 40});
    bench.text("E");
    QVERIFY(bench.finish());
    bench.text("EE");
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"100 189.167 100 180 60"_s);
}

void KeyerSendingTest::withoutSerialEchoOnlyStatusIsSent() {
    KeyerBench bench;
    bench.open();
    bench.send({0x0E, 0});
    bench.text("EE ");
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes(), u"C4 C0"_s);
}

void KeyerSendingTest::aWaitSetsItsBit() {
    KeyerBench bench;
    bench.open();
    bench.text("E\x1A\x02"
               "E\x1A\x01");
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 120 45, 240 D4, 2240 C4, 2360 45, 2480 D4, 3480 C0"_s);
    QCOMPARE(bench.log(u"ptt"_s), u"0 on, 240 off, 2240 on, 2480 off"_s);
}

void KeyerSendingTest::aTimedKeyDownSetsTheWaitBit() {
    KeyerBench bench;
    bench.open();
    bench.text("\x19\x03"
               "E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"3000 0 60"_s);
    QCOMPARE(bench.host(), u"0 D4, 3000 C4, 3120 45, 3240 C0"_s);
}

void KeyerSendingTest::waitsAndTimedKeysOfNoSecondsAreNothing() {
    KeyerBench bench;
    bench.open();
    bench.send({0x1A, 0, 0x19, 0, 'E'});
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 120 45, 240 C0"_s);
}

void KeyerSendingTest::bufferedSpeedHoldsUntilCanceled_data() {
    QTest::addColumn<QByteArray>("between");
    QTest::addColumn<QString>("keying");
    QTest::newRow("for later text too") << QByteArray("\x13") << u"120 489.167 120"_s;
    QTest::newRow("not after a speed command") << QByteArray("\x02\x14") << u"120 489.167 60"_s;
    QTest::newRow("not after a clear") << QByteArray("\x0A") << u"120 489.167 60"_s;
    QTest::newRow("not after its cancel") << QByteArray("\x1E") << u"120 489.167 60"_s;
}

void KeyerSendingTest::bufferedSpeedHoldsUntilCanceled() {
    QFETCH(QByteArray, between);
    KeyerBench bench;
    bench.open();
    bench.text("\x1C\x0A"
               "E");
    bench.waitUntil(600);
    bench.text(between.toStdString());
    bench.text("E");
    QVERIFY(bench.finish());
    QTEST(bench.keying(), "keying");
}

void KeyerSendingTest::aCommandWithoutItsParameterIsDropped() {
    KeyerBench bench;
    bench.open();
    bench.text("E\x1C\x0A\x08");
    QVERIFY(bench.finish());
    bench.text("E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"60 189.167 60"_s);
}

static const RegisteredTest<KeyerSendingTest> registered;
#include "KeyerSendingTest.moc"
