#include "tests/support/RegisteredTest.h"
#include "tests/virtualkeyer/core/KeyerBench.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// The buffer as the host sees it: XOFF, overflow, clear, pause, pointers.
class KeyerBufferTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void xoffIsSetAboveTwoThirds();
    void xoffChangesWhileSending();
    void bytesBeyondTheBufferAreLost();
    void backspaceDropsTheNewestByte();
    void clearInMidLetterReportsIdleAtOnceAndLetsItFinish();
    void clearWhenIdleSendsNothing();
    void clearBeforeKeyingHasBegunKeysNothing();
    void clearEndsEverythingTheHostHasBegun_data();
    void clearEndsEverythingTheHostHasBegun();
    void textAfterAClearIsSpaced();
    void pauseFinishesTheLetterAndStaysBusy();
    void pausedTextGoesOnAfterResume();
    void pausedTextIsForgottenAtClear();
    void textThatComesInAPauseWaits();
    void pointersRewriteQueuedText_data();
    void pointersRewriteQueuedText();
};

void KeyerBufferTest::xoffIsSetAboveTwoThirds() {
    KeyerBench bench;
    bench.open();
    bench.text(std::string(85, 'E'));
    QCOMPARE(bench.bytes(), QString());
    bench.text("E");
    QCOMPARE(bench.bytes(), u"C1"_s);
    bench.send({0x08});
    QCOMPARE(bench.bytes(), u"C1 C0"_s);
}

void KeyerBufferTest::xoffChangesWhileSending() {
    KeyerBench bench;
    bench.open();
    bench.text(std::string(87, 'E'));
    bench.waitUntil(250);
    QCOMPARE(bench.host(), u"-9.167 C1, 0 C5, 120 45, 240 C4"_s);
}

void KeyerBufferTest::bytesBeyondTheBufferAreLost() {
    KeyerBench bench;
    bench.open();
    bench.text(std::string(128, 'E') + "TTT");
    bench.forget();
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes().count(u"45"_s), 128);
    QCOMPARE(bench.bytes().count(u"54"_s), 0);
}

void KeyerBufferTest::backspaceDropsTheNewestByte() {
    KeyerBench bench;
    bench.open();
    bench.send({'E', 'T', 'I', 0x08, 0x08, 'S', 0x08, 0x08, 0x08, 0x08, 'A'});
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes(), u"C4 41 C0"_s);
}

void KeyerBufferTest::clearInMidLetterReportsIdleAtOnceAndLetsItFinish() {
    KeyerBench bench;
    bench.open();
    bench.text("STOP");
    bench.waitUntil(90);
    bench.send({0x0A});
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 90 C0, 360 53"_s);
    QCOMPARE(bench.keying(), u"60 60 60 60 60"_s);
    QCOMPARE(bench.log(u"ptt"_s), u"0 on, 480 off"_s);
}

void KeyerBufferTest::clearWhenIdleSendsNothing() {
    KeyerBench bench;
    bench.open();
    bench.send({0x0A});
    QVERIFY(bench.finish());
    QCOMPARE(bench.log({}), QString());
}

void KeyerBufferTest::clearBeforeKeyingHasBegunKeysNothing() {
    KeyerBench bench;
    bench.open();
    bench.send({0x04, 5, 0});
    bench.text("E");
    bench.wait(5);
    bench.send({0x0A});
    QVERIFY(bench.finish());
    QCOMPARE(bench.log({}), QString());
    bench.text("E");
    bench.wait(20);
    bench.send({0x0A});
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes(), QString());
    QCOMPARE(bench.keying(), QString());
    QVERIFY(bench.log(u"ptt"_s).endsWith(u"off"_s));
}

void KeyerBufferTest::clearEndsEverythingTheHostHasBegun_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("host");

    QTest::newRow("tune") << "\x0B\x01"_ba << u"0 D8, 0 DC, 1000 C0"_s;
    QTest::newRow("a timed key-down") << "\x19\x63"_ba << u"0 D4, 1000 C0"_s;
    QTest::newRow("a wait") << "E\x1A\x63"_ba << u"0 C4, 120 45, 240 D4, 1000 C0"_s;
    QTest::newRow("a pause") << "E\x06\x01"_ba << QString();
    QTest::newRow("a word space") << "\x02\x05"
                                     "E "_ba
                                  << u"0 C4, 480 45, 1000 C0"_s;
    QTest::newRow("buffered PTT") << "\x18\x01"
                                     "E"_ba
                                  << u"0 C4, 120 45, 240 C0"_s;
}

void KeyerBufferTest::clearEndsEverythingTheHostHasBegun() {
    QFETCH(QByteArray, bytes);
    KeyerBench bench;
    bench.open();
    bench.text(bytes.toStdString());
    bench.waitUntil(1000);
    bench.send({0x0A});
    bench.wait(10'000);
    QVERIFY(!bench.keyer.nextEvent());
    QCOMPARE(bench.log(u"ptt on"_s).isEmpty(), bench.log(u"ptt off"_s).isEmpty());
    QVERIFY(!bench.log(u"key"_s).endsWith(u"down 1"_s));
    QTEST(bench.host(), "host");
    bench.forget();
    bench.text("E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.bytes(), u"C4 45 C0"_s);
}

void KeyerBufferTest::textAfterAClearIsSpaced() {
    KeyerBench bench;
    bench.open();
    bench.text("EEEE");
    bench.waitUntil(30);
    bench.send({0x0A, 'T'});
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 30 C0, 120 45, 240 C4, 480 54, 600 C0"_s);
}

void KeyerBufferTest::pauseFinishesTheLetterAndStaysBusy() {
    KeyerBench bench;
    bench.open();
    bench.text("IT");
    bench.waitUntil(30);
    bench.send({0x06, 1});
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 240 49"_s);
    QCOMPARE(bench.keying(), u"60 60 60"_s);
    bench.send({0x15});
    QCOMPARE(bench.bytes(), u"C4 49 C4"_s);
}

void KeyerBufferTest::pausedTextGoesOnAfterResume() {
    KeyerBench bench;
    bench.open();
    bench.text("IT");
    bench.waitUntil(30);
    bench.send({0x06, 1});
    bench.waitUntil(5000);
    bench.send({0x06, 0});
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 240 49, 5240 54, 5360 C0"_s);
    bench.forget();
    bench.send({'E'});
    bench.waitUntil(30);
    bench.send({0x06, 1});
    bench.waitUntil(5000);
    bench.send({0x06, 0});
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 120 45, 5000 C0"_s);
}

void KeyerBufferTest::pausedTextIsForgottenAtClear() {
    KeyerBench bench;
    bench.open();
    bench.text("IT");
    bench.waitUntil(30);
    bench.send({0x06, 1});
    bench.waitUntil(5000);
    bench.send({0x0A});
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 240 49, 5000 C0"_s);
}

void KeyerBufferTest::textThatComesInAPauseWaits() {
    KeyerBench bench;
    bench.open();
    bench.send({0x06, 1, 'E'});
    bench.wait(5000);
    QCOMPARE(bench.log({}), QString());
    bench.send({0x06, 0});
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 120 45, 240 C0"_s);
}

void KeyerBufferTest::pointersRewriteQueuedText_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("sent");

    QTest::newRow("reset forgets the text") << "EEE\x16\0T"_ba << u"C4 54 C0"_s;
    QTest::newRow("overwrite replaces from a position on")
        << "\x16\0ABCD\x16\x01\x01ST"_ba << u"C4 41 53 54 44 C0"_s;
    QTest::newRow("overwrite goes on behind the end")
        << "\x16\0ABCD\x16\x01\x03ST"_ba << u"C4 41 42 43 53 54 C0"_s;
    QTest::newRow("append adds where it is told")
        << "\x16\0ABCD\x16\x01\x01S\x16\x02\x04T"_ba << u"C4 41 53 43 44 54 C0"_s;
    QTest::newRow("nulls keep places free and send nothing") << "\x16\0A\x16\x03\x03"
                                                                "B\x16\x01\x02T"_ba
                                                             << u"C4 41 54 42 C0"_s;
    QTest::newRow("a position behind the end is the end") << "\x16\0A\x16\x01\x7F"
                                                             "B"_ba
                                                          << u"C4 41 42 C0"_s;
    QTest::newRow("an unknown pointer command takes no position") << "\x16\x04"
                                                                     "E"_ba
                                                                  << u"C4 45 C0"_s;
}

void KeyerBufferTest::pointersRewriteQueuedText() {
    QFETCH(QByteArray, bytes);
    KeyerBench bench;
    bench.open();
    bench.text(bytes.toStdString());
    QVERIFY(bench.finish());
    QTEST(bench.bytes(), "sent");
}

static const RegisteredTest<KeyerBufferTest> registered;
#include "KeyerBufferTest.moc"
