#include "virtualkeyer/core/TextBuffer.h"

#include "tests/support/RegisteredTest.h"

#include <QtTest>

#include <string>
#include <string_view>
#include <vector>

using namespace virtualkeyer;

namespace {

void put(TextBuffer& buffer, std::string_view text) {
    for (const char character : text) {
        const auto byte = static_cast<std::uint8_t>(character);
        buffer.put(std::span(&byte, 1));
    }
}

std::string takeAll(TextBuffer& buffer) {
    std::string text;
    while (const auto byte = buffer.take()) {
        text += static_cast<char>(*byte);
    }
    return text;
}

} // namespace

/// The queue of text and its input pointer.
class TextBufferTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void bytesComeOutAsTheyWentIn();
    void whatDoesNotFitIsLostAsAWhole();
    void overwritingAFullBufferFits();
    void backspaceDropsBeforeThePointer();
    void positionsCountSentBytes();
    void resetCountsAnew();
    void nullsAreLimitedByTheCapacity();
};

void TextBufferTest::bytesComeOutAsTheyWentIn() {
    TextBuffer buffer(128);
    QVERIFY(buffer.isEmpty());
    put(buffer, "ABC");
    QCOMPARE(buffer.size(), 3U);
    QCOMPARE(takeAll(buffer), std::string("ABC"));
    QVERIFY(buffer.isEmpty() && !buffer.take());
}

void TextBufferTest::whatDoesNotFitIsLostAsAWhole() {
    TextBuffer buffer(4);
    put(buffer, "ABC");
    const std::vector<std::uint8_t> command{0x1C, 20};
    buffer.put(command);
    QCOMPARE(buffer.size(), 3U);
    put(buffer, "DE");
    QCOMPARE(takeAll(buffer), std::string("ABCD"));
}

void TextBufferTest::overwritingAFullBufferFits() {
    TextBuffer buffer(4);
    put(buffer, "ABCD");
    buffer.overwriteFrom(2);
    put(buffer, "STU");
    QCOMPARE(takeAll(buffer), std::string("ABST"));
}

void TextBufferTest::backspaceDropsBeforeThePointer() {
    TextBuffer buffer(128);
    buffer.backspace();
    put(buffer, "ABCD");
    buffer.backspace();
    buffer.appendFrom(2);
    buffer.backspace();
    QCOMPARE(takeAll(buffer), std::string("AC"));
}

void TextBufferTest::positionsCountSentBytes() {
    TextBuffer buffer(128);
    put(buffer, "ABCD");
    QCOMPARE(buffer.take(), std::optional<std::uint8_t>('A'));
    buffer.overwriteFrom(2);
    put(buffer, "S");
    buffer.overwriteFrom(0);
    put(buffer, "T");
    QCOMPARE(takeAll(buffer), std::string("TSD"));
}

void TextBufferTest::resetCountsAnew() {
    TextBuffer buffer(128);
    put(buffer, "ABCD");
    QVERIFY(buffer.take());
    buffer.overwriteFrom(2);
    buffer.reset();
    QVERIFY(buffer.isEmpty());
    QCOMPARE(buffer.capacity(), 128U);
    put(buffer, "XY");
    buffer.appendFrom(1);
    put(buffer, "S");
    QCOMPARE(takeAll(buffer), std::string("XSY"));
}

void TextBufferTest::nullsAreLimitedByTheCapacity() {
    TextBuffer buffer(128);
    put(buffer, "A");
    buffer.insertNulls(255);
    QCOMPARE(buffer.size(), 128U);
    QCOMPARE(takeAll(buffer), "A" + std::string(127, '\0'));
}

static const RegisteredTest<TextBufferTest> registered;
#include "TextBufferTest.moc"
