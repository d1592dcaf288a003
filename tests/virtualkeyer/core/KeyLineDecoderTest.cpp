#include "virtualkeyer/core/KeyLineDecoder.h"
#include "tests/support/RegisteredTest.h"
#include "tests/virtualkeyer/core/KeyerBench.h"

#include <QtTest>

#include <random>

using namespace Qt::StringLiterals;
using namespace virtualkeyer;
using namespace std::chrono_literals;

namespace {

/// Every character whose elements are its own.
constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.,?/+=@-()'\">$[;";

std::string randomText(std::mt19937& random, std::size_t words) {
    std::string text;
    for (std::size_t word = 0; word < words; ++word) {
        const std::size_t length = 1 + random() % 6;
        for (std::size_t i = 0; i < length; ++i) {
            text += alphabet[random() % alphabet.size()];
        }
        text += ' ';
    }
    return text;
}

/// What the decoder reads of `text` as a keyer with these settings keys it.
std::string readBack(const QByteArray& settings, const std::string& text) {
    KeyerBench bench;
    bench.open();
    bench.text(settings.toStdString());
    bench.text(text);
    if (!bench.finish()) {
        return "does not end";
    }
    KeyLineDecoder decoder;
    decoder.setTiming(timingOf(bench.keyer.registers()));
    for (const Event& event : bench.events()) {
        if (const auto* line = std::get_if<KeyLine>(&event.what)) {
            decoder.key(line->isDown, event.at);
        }
    }
    decoder.advance(bench.now + 1h);
    return decoder.takeText();
}

} // namespace

/// Reading a key line.
class KeyLineDecoderTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void randomTextsComeBack_data();
    void randomTextsComeBack();
    void everySpeedComesBack();
    void everyWeightingComesBack();
    void aLetterIsDeliveredWhenItsSpaceIsCertain();
    void edgesAloneDeliverLettersToo();
    void nothingIsAwaitedWhileTheKeyIsDown();
    void unknownElementsAreMarked();
    void repeatedEdgesAreOne();
    void onlyOneSpaceIsDelivered();
};

void KeyLineDecoderTest::randomTextsComeBack_data() {
    QTest::addColumn<QByteArray>("settings");
    QTest::newRow("neutral") << ""_ba;
    QTest::newRow("5 wpm") << "\x02\x05"_ba;
    QTest::newRow("99 wpm") << "\x02\x63"_ba;
    QTest::newRow("light weighting") << "\x03\x0A"_ba;
    QTest::newRow("heavy weighting") << "\x03\x5A"_ba;
    QTest::newRow("short dahs") << "\x17\x21"_ba;
    QTest::newRow("long dahs") << "\x17\x42"_ba;
    QTest::newRow("compensation") << "\x11\x1E"_ba;
    QTest::newRow("contest spacing") << "\x0E\x05"_ba;
    QTest::newRow("Farnsworth") << "\x02\x0A\x0D\x28"_ba;
    QTest::newRow("weighting and contest spacing") << "\x03\x46\x0E\x05"_ba;
    QTest::newRow("200 wpm") << "\x0C\x0A"_ba;
    QTest::newRow("5100 wpm") << "\x0C\xFF"_ba;
}

void KeyLineDecoderTest::randomTextsComeBack() {
    QFETCH(QByteArray, settings);
    const unsigned seed = 20261121;
    qInfo("seed %u", seed);
    std::mt19937 random(seed);
    for (int run = 0; run < 5; ++run) {
        const std::string text = randomText(random, 15);
        QCOMPARE(readBack(settings, text), text);
    }
}

void KeyLineDecoderTest::everySpeedComesBack() {
    for (char wpm = 5; wpm <= 99; ++wpm) {
        QCOMPARE(readBack(QByteArray("\x02") + wpm, "PARIS 73 "), std::string("PARIS 73 "));
    }
}

void KeyLineDecoderTest::everyWeightingComesBack() {
    for (char weighting = 10; weighting <= 90; ++weighting) {
        QCOMPARE(readBack(QByteArray("\x03") + weighting, "CQ DE K "), std::string("CQ DE K "));
    }
}

void KeyLineDecoderTest::aLetterIsDeliveredWhenItsSpaceIsCertain() {
    KeyLineDecoder decoder;
    QVERIFY(!decoder.nextEvent());
    decoder.key(true, 1000ms);
    decoder.key(false, 1180ms);
    QCOMPARE(decoder.nextEvent(), std::optional<Time>(1300ms));
    decoder.advance(1299ms);
    QCOMPARE(decoder.takeText(), std::string());
    decoder.advance(1300ms);
    QCOMPARE(decoder.takeText(), std::string("T"));
    QCOMPARE(decoder.nextEvent(), std::optional<Time>(1480ms));
    decoder.advance(1479ms);
    QCOMPARE(decoder.takeText(), std::string());
    decoder.advance(1480ms);
    QCOMPARE(decoder.takeText(), std::string(" "));
    QVERIFY(!decoder.nextEvent());
}

void KeyLineDecoderTest::edgesAloneDeliverLettersToo() {
    KeyLineDecoder decoder;
    decoder.key(true, 0ms);
    decoder.key(false, 60ms);
    decoder.key(true, 240ms);
    QCOMPARE(decoder.takeText(), std::string("E"));
    decoder.key(false, 420ms);
    decoder.key(true, 840ms);
    QCOMPARE(decoder.takeText(), std::string("T "));
}

void KeyLineDecoderTest::nothingIsAwaitedWhileTheKeyIsDown() {
    KeyLineDecoder decoder;
    decoder.key(true, 0ms);
    QVERIFY(!decoder.nextEvent());
    decoder.advance(1h);
    QCOMPARE(decoder.takeText(), std::string());
    decoder.key(false, 1h);
    QVERIFY(decoder.nextEvent());
}

void KeyLineDecoderTest::unknownElementsAreMarked() {
    KeyLineDecoder decoder;
    for (int i = 0; i < 8; ++i) {
        decoder.key(true, i * 120ms);
        decoder.key(false, i * 120ms + 60ms);
    }
    decoder.advance(10s);
    QCOMPARE(decoder.takeText(), std::string("* "));
}

void KeyLineDecoderTest::repeatedEdgesAreOne() {
    KeyLineDecoder decoder;
    decoder.key(false, 0ms);
    decoder.key(true, 100ms);
    decoder.key(true, 200ms);
    decoder.key(false, 280ms);
    decoder.key(false, 300ms);
    decoder.advance(399ms);
    QCOMPARE(decoder.takeText(), std::string());
    decoder.advance(400ms);
    QCOMPARE(decoder.takeText(), std::string("T"));
}

void KeyLineDecoderTest::onlyOneSpaceIsDelivered() {
    KeyLineDecoder decoder;
    decoder.key(true, 0ms);
    decoder.key(false, 60ms);
    for (int i = 0; i < 10; ++i) {
        decoder.advance(60ms + i * 1s);
    }
    QCOMPARE(decoder.takeText(), std::string("E "));
}

static const RegisteredTest<KeyLineDecoderTest> registered;
#include "KeyLineDecoderTest.moc"
