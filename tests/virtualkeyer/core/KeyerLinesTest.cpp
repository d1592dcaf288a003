#include "tests/support/RegisteredTest.h"
#include "tests/virtualkeyer/core/KeyerBench.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// Key outputs, PTT, sidetone and tune.
class KeyerLinesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void pttLeadsInAndTails();
    void pttStaysOnThroughWordSpaces();
    void disabledPttHasNoLeadIn();
    void bufferedPttIsHeldUntilLetGo();
    void leadInComesOncePerTransmission();
    void outputsAreSelected_data();
    void outputsAreSelected();
    void selectedOutputMovesUnderThePinConfiguration();
    void sidetoneFollowsTheKey_data();
    void sidetoneFollowsTheKey();
    void tuneReportsInBothModes_data();
    void tuneReportsInBothModes();
    void tuneWaitsForTheLeadIn();
    void tuneHoldsBackText();
    void tuneDuringTextLetsTheLetterFinish();
    void textAfterATuneKeepsItsLetterSpace_data();
    void textAfterATuneKeepsItsLetterSpace();
    void textAfterATuneKeepsItsLetterSpaceWhenAPauseEndsWithIt();
    void textThatArrivesBehindATuneKeepsItsLetterSpace();
    void tuneHasNoLimitByDefault();
    void tuneLimitLetsGo();
    void textAfterTheTuneLimitGoesOn();
};

void KeyerLinesTest::pttLeadsInAndTails() {
    KeyerBench bench;
    bench.open();
    bench.send({0x04, 10, 5, 'E'});
    QVERIFY(bench.finish());
    QCOMPARE(bench.log(u"ptt"_s), u"-100 on, 290 off"_s);
    QCOMPARE(bench.host(), u"0 C4, 120 45, 240 C0"_s);
}

void KeyerLinesTest::pttStaysOnThroughWordSpaces() {
    KeyerBench bench;
    bench.open();
    bench.text("E E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.log(u"ptt"_s), u"0 on, 720 off"_s);
}

void KeyerLinesTest::disabledPttHasNoLeadIn() {
    KeyerBench bench;
    bench.open();
    bench.send({0x09, 0x06, 0x04, 10, 5});
    bench.now = KeyerBench::toTime(1000);
    bench.text("E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.log(u"ptt"_s), QString());
    QVERIFY(bench.events().front().at < KeyerBench::toTime(1010));
}

void KeyerLinesTest::bufferedPttIsHeldUntilLetGo() {
    KeyerBench bench;
    bench.open();
    bench.text("\x18\x01"
               "E");
    bench.waitUntil(10'000);
    QCOMPARE(bench.log(u"ptt"_s), u"0 on"_s);
    bench.send({0x18, 0});
    QVERIFY(bench.finish());
    QCOMPARE(bench.log(u"ptt"_s), u"0 on, 10009.167 off"_s);
}

void KeyerLinesTest::leadInComesOncePerTransmission() {
    KeyerBench bench;
    bench.open();
    bench.send({0x04, 5, 25, 'E'});
    bench.waitUntil(300);
    bench.text("E");
    bench.waitUntil(2000);
    bench.text("E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.log(u"key down"_s), u"0 1, 309.167 1, 2059.167 1"_s);
    QCOMPARE(bench.log(u"ptt"_s), u"-50 on, 799.167 off, 2009.167 on, 2549.167 off"_s);
}

void KeyerLinesTest::outputsAreSelected_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("downs");
    QTest::newRow("output 1 by default") << "E"_ba << u"0 1"_s;
    QTest::newRow("output 2 by pin configuration") << "\x09\x0B"
                                                      "E"_ba
                                                   << u"0 2"_s;
    QTest::newRow("both by pin configuration") << "\x09\x0F"
                                                  "E"_ba
                                               << u"0 1, 0 2"_s;
    QTest::newRow("neither by pin configuration") << "\x09\x03"
                                                     "E"_ba
                                                  << QString();
    QTest::newRow("by a buffered command in its place")
        << "E\x1D\x01T\x1D\0E"_ba << u"0 1, 240 2, 600 1"_s;
}

void KeyerLinesTest::outputsAreSelected() {
    QFETCH(QByteArray, bytes);
    KeyerBench bench;
    bench.open();
    bench.text(bytes.toStdString());
    QVERIFY(bench.finish());
    QTEST(bench.log(u"key down"_s), "downs");
}

void KeyerLinesTest::selectedOutputMovesUnderThePinConfiguration() {
    KeyerBench bench;
    bench.open();
    bench.text("T");
    bench.waitUntil(50);
    bench.send({0x09, 0x08});
    QVERIFY(bench.finish());
    QCOMPARE(bench.log(u"key"_s), u"0 down 1, 50 up 1, 50 down 2, 180 up 2"_s);
    QCOMPARE(bench.log(u"tone"_s), u"0 800, 50 off"_s);
    QCOMPARE(bench.log(u"ptt"_s), u"0 on, 50 off"_s);
}

void KeyerLinesTest::sidetoneFollowsTheKey_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("paddle");
    const auto row = [](const char* name, const QByteArray& bytes, const QString& text,
                        const QString& paddle) { QTest::newRow(name) << bytes << text << paddle; };
    row("800 Hz by default", {}, u"0 800, 60 off"_s, u"0 800, 60 off"_s);
    row("4000 Hz", "\x01\x01"_ba, u"0 4000, 60 off"_s, u"0 4000, 60 off"_s);
    row("400 Hz", "\x01\x0A"_ba, u"0 400, 60 off"_s, u"0 400, 60 off"_s);
    row("4000/6 Hz", "\x01\x06"_ba, u"0 666, 60 off"_s, u"0 666, 60 off"_s);
    row("for the paddle only", "\x01\x85"_ba, QString(), u"0 800, 60 off"_s);
    row("off", "\x09\x05"_ba, QString(), QString());
}

void KeyerLinesTest::sidetoneFollowsTheKey() {
    QFETCH(QByteArray, bytes);
    KeyerBench bench;
    bench.open();
    bench.text(bytes.toStdString());
    bench.text("E");
    QVERIFY(bench.finish());
    QTEST(bench.log(u"tone"_s), "text");
    bench.forget();
    bench.paddle(true, false);
    bench.paddle(false, false);
    QVERIFY(bench.finish());
    QTEST(bench.log(u"tone"_s), "paddle");
}

void KeyerLinesTest::tuneReportsInBothModes_data() {
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("host");
    QTest::newRow("version 1 has a tune bit") << 10 << u"0 D8, 0 DC, 700 C0"_s;
    QTest::newRow("version 2 has none") << 11 << u"0 D0, 0 D4, 700 C0"_s;
}

void KeyerLinesTest::tuneReportsInBothModes() {
    QFETCH(int, mode);
    KeyerBench bench;
    bench.open();
    bench.send({0x00, mode});
    bench.forget();
    bench.send({0x0B, 1, 0x0B, 1});
    bench.waitUntil(700);
    bench.send({0x0B, 0, 0x0B, 0});
    QVERIFY(bench.finish());
    QTEST(bench.host(), "host");
    QCOMPARE(bench.keying(), u"700"_s);
    QCOMPARE(bench.log(u"tone"_s), u"0 800, 700 off"_s);
    QCOMPARE(bench.log(u"ptt"_s), u"0 on, 880 off"_s);
}

void KeyerLinesTest::tuneWaitsForTheLeadIn() {
    KeyerBench bench;
    bench.open();
    bench.send({0x00, 11, 0x04, 10, 0});
    bench.forget();
    bench.send({0x0B, 1});
    bench.waitUntil(50);
    QCOMPARE(bench.host(), u"-100 D0, 0 D4"_s);
}

void KeyerLinesTest::tuneHoldsBackText() {
    KeyerBench bench;
    bench.open();
    bench.send({0x00, 11});
    bench.forget();
    bench.send({0x0B, 1, 'E'});
    bench.waitUntil(700);
    bench.send({0x0B, 0});
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 D0, 0 D4, 700 C0, 709.167 C4, 829.167 45, 949.167 C0"_s);
}

void KeyerLinesTest::tuneDuringTextLetsTheLetterFinish() {
    KeyerBench bench;
    bench.open();
    bench.send({0x00, 11});
    bench.forget();
    bench.text("ET");
    bench.waitUntil(30);
    bench.send({0x0B, 1});
    bench.waitUntil(5000);
    QCOMPARE(bench.keying(), QString());
    QCOMPARE(bench.log(u"ptt"_s), u"0 on"_s);
    bench.send({0x0B, 0});
    QVERIFY(bench.finish());
    QCOMPARE(bench.host(), u"0 C4, 30 D4, 120 45, 5000 C4, 5420 54, 5540 C0"_s);
    QCOMPARE(bench.keying(), u"5000 180 180"_s);
    QCOMPARE(bench.log(u"ptt"_s), u"0 on, 5540 off"_s);
}

void KeyerLinesTest::textAfterATuneKeepsItsLetterSpace_data() {
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<QString>("keying");

    QTest::newRow("that outlasted the letter") << 30.0 << 900.0 << u"900 180 60"_s;
    QTest::newRow("within the letter") << 20.0 << 40.0 << u"60 180 60"_s;
    QTest::newRow("that ended in the letter space") << 30.0 << 200.0 << u"200 180 60"_s;
    QTest::newRow("that lay in the letter space") << 150.0 << 200.0 << u"60 90 50 180 60"_s;
}

void KeyerLinesTest::textAfterATuneKeepsItsLetterSpace() {
    QFETCH(double, from);
    QFETCH(double, to);
    KeyerBench bench;
    bench.open();
    bench.text("EE");
    bench.waitUntil(from);
    bench.send({0x0B, 1});
    bench.waitUntil(to);
    bench.send({0x0B, 0});
    QVERIFY(bench.finish());
    QTEST(bench.keying(), "keying");
}

void KeyerLinesTest::textAfterATuneKeepsItsLetterSpaceWhenAPauseEndsWithIt() {
    KeyerBench bench;
    bench.open();
    bench.text("EE");
    bench.waitUntil(30);
    bench.send({0x06, 1, 0x0B, 1});
    bench.waitUntil(900);
    bench.send({0x0B, 0});
    bench.waitUntil(1000);
    bench.send({0x06, 0});
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"900 180 60"_s);
}

void KeyerLinesTest::textThatArrivesBehindATuneKeepsItsLetterSpace() {
    KeyerBench bench;
    bench.open();
    bench.text("E");
    bench.waitUntil(30);
    bench.send({0x0B, 1});
    bench.waitUntil(900);
    bench.send({0x0B, 0});
    bench.waitUntil(950);
    bench.text("E");
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"900 180 60"_s);
}

void KeyerLinesTest::tuneHasNoLimitByDefault() {
    KeyerBench bench;
    bench.open();
    bench.send({0x0B, 1});
    QVERIFY(!bench.keyer.nextEvent());
}

void KeyerLinesTest::tuneLimitLetsGo() {
    virtualkeyer::Profile profile;
    profile.tuneLimit = std::chrono::seconds{100};
    KeyerBench bench(profile);
    bench.open();
    bench.send({0x00, 11});
    bench.forget();
    bench.send({0x0B, 1});
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"100000"_s);
    QCOMPARE(bench.host(), u"0 D0, 0 D4, 100000 C0"_s);
}

void KeyerLinesTest::textAfterTheTuneLimitGoesOn() {
    virtualkeyer::Profile profile;
    profile.tuneLimit = std::chrono::seconds{1};
    KeyerBench bench(profile);
    bench.open();
    bench.send({0x0B, 1, 'E'});
    QVERIFY(bench.finish());
    QCOMPARE(bench.keying(), u"1000 9.167 60"_s);
}

static const RegisteredTest<KeyerLinesTest> registered;
#include "KeyerLinesTest.moc"
