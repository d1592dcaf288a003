#include "virtualkeyer/core/Parser.h"

#include "tests/support/RegisteredTest.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace virtualkeyer;

/// How bytes become commands.
class ParserTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void commandsTakeTheirParameters_data();
    void commandsTakeTheirParameters();
    void everyCodeHasItsParameterCount();
    void everyTextByteIsOneCharacter();
    void bytesAbove7FAreDiscarded();
    void closedKeyerSeesAdminCommandsOnly();
    void resetForgetsACommandThatHasBegun();
};

void ParserTest::commandsTakeTheirParameters_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("parameters");
    const auto row = [](const char* name, const QByteArray& bytes, CommandKind kind, int code,
                        int parameters) {
        QTest::newRow(name) << bytes << static_cast<int>(kind) << code << parameters;
    };
    row("calibrate", "\0\0\xFF"_ba, CommandKind::Admin, 0, 1);
    row("open", "\0\x02"_ba, CommandKind::Admin, 2, 0);
    row("echo", "\0\x04U"_ba, CommandKind::Admin, 4, 1);
    row("get values", "\0\x07"_ba, CommandKind::Admin, 7, 0);
    row("load memory", "\0\x0D"_ba + QByteArray(256, '\0'), CommandKind::Admin, 13, 256);
    row("play message", "\0\x0E\x01"_ba, CommandKind::Admin, 14, 1);
    row("load X1MODE", "\0\x0F\0"_ba, CommandKind::Admin, 15, 1);
    row("9600 baud", "\0\x11"_ba, CommandKind::Admin, 17, 0);
    row("unknown admin number", "\0\xFF"_ba, CommandKind::Admin, 255, 0);
    row("speed", "\x02\x14"_ba, CommandKind::Immediate, 2, 1);
    row("PTT", "\x04\0\0"_ba, CommandKind::Immediate, 4, 2);
    row("pot set-up with text for parameters", "\x05TXT"_ba, CommandKind::Immediate, 5, 3);
    row("null", "\x13"_ba, CommandKind::Immediate, 0x13, 0);
    row("pointer reset", "\x16\0"_ba, CommandKind::Immediate, 0x16, 1);
    row("pointer overwrite", "\x16\x01\0"_ba, CommandKind::Immediate, 0x16, 2);
    row("pointer append", "\x16\x02\0"_ba, CommandKind::Immediate, 0x16, 2);
    row("pointer nulls", "\x16\x03\0"_ba, CommandKind::Immediate, 0x16, 2);
    row("pointer of no kind", "\x16\x04"_ba, CommandKind::Immediate, 0x16, 1);
    row("buffered PTT", "\x18\x01"_ba, CommandKind::Buffered, 0x18, 1);
    row("merged letters", "\x1B\x1C\x1D"_ba, CommandKind::Buffered, 0x1B, 2);
    row("cancel", "\x1E"_ba, CommandKind::Buffered, 0x1E, 0);
    row("text", "A"_ba, CommandKind::Text, 'A', 0);
}

void ParserTest::commandsTakeTheirParameters() {
    QFETCH(QByteArray, bytes);
    Parser parser;
    for (qsizetype i = 0; i + 1 < bytes.size(); ++i) {
        QVERIFY(!parser.take(static_cast<std::uint8_t>(bytes[i]), true));
    }
    const auto command = parser.take(static_cast<std::uint8_t>(bytes.back()), true);
    QVERIFY(command);
    QTEST(static_cast<int>(command->kind), "kind");
    QTEST(int{command->code}, "code");
    QTEST(static_cast<int>(command->parameters.size()), "parameters");
    const QByteArray tail = bytes.last(static_cast<qsizetype>(command->parameters.size()));
    QVERIFY(std::ranges::equal(command->parameters, tail, {}, {},
                               [](char c) { return static_cast<std::uint8_t>(c); }));
    // The next byte begins anew.
    QCOMPARE(int{parser.take('Z', true)->code}, int{'Z'});
}

void ParserTest::everyCodeHasItsParameterCount() {
    const std::array<std::size_t, 0x20> counts{0, 1, 1, 1, 2, 3, 1, 0, 0, 1, 0, 1, 1, 1, 1, 15,
                                               1, 1, 1, 0, 1, 0, 1, 1, 1, 1, 1, 2, 1, 1, 0, 0};
    for (std::uint8_t code = 1; code < std::uint8_t{0x20}; ++code) {
        QCOMPARE(parameterCount(code), counts[code]);
        Parser parser;
        auto command = parser.take(code, true);
        for (std::size_t i = 0; i < counts[code]; ++i) {
            QVERIFY(!command);
            command = parser.take(0, true);
        }
        QVERIFY(command);
        QCOMPARE(command->kind, code < 0x18 ? CommandKind::Immediate : CommandKind::Buffered);
    }
}

void ParserTest::everyTextByteIsOneCharacter() {
    Parser parser;
    for (std::uint8_t byte = 0x20; byte <= 0x7F; ++byte) {
        const auto command = parser.take(byte, true);
        QVERIFY(command && command->kind == CommandKind::Text && command->code == byte);
    }
}

void ParserTest::bytesAbove7FAreDiscarded() {
    Parser parser;
    for (int byte = 0x80; byte <= 0xFF; ++byte) {
        QVERIFY(!parser.take(static_cast<std::uint8_t>(byte), true));
    }
    QVERIFY(parser.take('A', true));
}

void ParserTest::closedKeyerSeesAdminCommandsOnly() {
    Parser parser;
    for (int byte = 1; byte <= 0xFF; ++byte) {
        QVERIFY(!parser.take(static_cast<std::uint8_t>(byte), false));
    }
    QVERIFY(!parser.take(0, false));
    QCOMPARE(parser.take(2, false)->kind, CommandKind::Admin);
}

void ParserTest::resetForgetsACommandThatHasBegun() {
    Parser parser;
    QVERIFY(!parser.take(0x02, true));
    parser.reset();
    QCOMPARE(parser.take('A', true)->kind, CommandKind::Text);
    QVERIFY(!parser.take(0, true));
    parser.reset();
    QCOMPARE(parser.take('A', true)->kind, CommandKind::Text);
}

static const RegisteredTest<ParserTest> registered;
#include "ParserTest.moc"
