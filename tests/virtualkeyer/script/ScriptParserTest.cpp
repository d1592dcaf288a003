#include "virtualkeyer/script/ScriptParser.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;

namespace {

ScriptStep step(decltype(ScriptStep::what) what) {
    return {std::nullopt, Time{0}, std::move(what)};
}

} // namespace

class ScriptParserTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyInstructionIsRead_data();
    void everyInstructionIsRead();
    void whatIsNoneIsToldHowItIsWritten_data();
    void whatIsNoneIsToldHowItIsWritten();
    void linesThatSayNothingArePassedOver_data();
    void linesThatSayNothingArePassedOver();
};

void ScriptParserTest::everyInstructionIsRead_data() {
    QTest::addColumn<ScriptStep>("expected");
    const auto row = [](const char* line, const ScriptStep& expected) {
        QTest::newRow(line) << expected;
    };
    row("paddle dit down", step(MovePaddle{true, std::nullopt}));
    row("paddle dah up", step(MovePaddle{std::nullopt, false}));
    row("paddle both down", step(MovePaddle{true, true}));
    row("knob 28", step(TurnKnob{28}));
    row("button 2", step(MoveButton{2, std::nullopt}));
    row("button 4 down", step(MoveButton{4, true}));
    row("button 4 up", step(MoveButton{4, false}));
    row("message 6", step(PlayMessage{6}));
    row("plug", step(MovePlug{true}));
    row("pull", step(MovePlug{false}));
    row("profile late-echo,boot-loader", step(ChangeProfile{u"late-echo,boot-loader"_s}));
    row("trouble none", step(ChangeTroubles{u"none"_s}));
    row("trouble lost:0.5,no-echo", step(ChangeTroubles{u"lost:0.5,no-echo"_s}));
    row("send 00 02 fF", step(SendBytes{{0x00, 0x02, 0xFF}}));
    row("send \"CQ #1 \\\"\" 0a", step(SendBytes{{'C', 'Q', ' ', '#', '1', ' ', '"', 0x0A}}));
    row("expect keyed \" cq de \"", step(Expect{ExpectKeyed{u"CQ DE"_s}}));
    row("expect keyed \"\"", step(Expect{ExpectKeyed{u""_s}}));
    row("expect reply 17 C8", step(Expect{ExpectReply{{0x17, 0xC8}}}));
    row("expect key down", step(Expect{ExpectKey{true}}));
    row("expect ptt off", step(Expect{ExpectPtt{false}}));
    row("within 0.25 expect key up", step(Expect{ExpectKey{false}, 250ms}));
    row("at 2.5", {Time{2500ms}, Time{0}, std::monostate{}});
    row("  at 0.0001\tknob 5 # the slowest", {Time{100us}, Time{0}, TurnKnob{5}});
    row("after 3 pull", {std::nullopt, Time{3s}, MovePlug{false}});
    row("after 1 within 2 expect ptt on",
        {std::nullopt, Time{1s}, Expect{ExpectPtt{true}, Time{2s}}});
}

void ScriptParserTest::everyInstructionIsRead() {
    QFETCH(ScriptStep, expected);
    const auto meaning = readScriptLine(QString::fromLatin1(QTest::currentDataTag()));
    const auto* read = std::get_if<ScriptStep>(&meaning);
    QVERIFY(read != nullptr);
    QVERIFY(*read == expected);
}

void ScriptParserTest::whatIsNoneIsToldHowItIsWritten_data() {
    QTest::addColumn<QString>("usage");
    const auto row = [](const char* line, const QString& usage) { QTest::newRow(line) << usage; };
    const QString all = scriptUsage();
    for (const char* line : {"padle dit down", "at 2 padle dit down", "\"paddle\" dit down",
                             "Paddle dit down", "dit down"}) {
        row(line, all);
    }
    const QString time = u"[at|after SECONDS] ..."_s;
    for (const char* line : {"at", "at soon", "after -1 pull", "at nan", "at inf", "at 1e9"}) {
        row(line, time);
    }
    const QString paddle = u"paddle dit|dah|both down|up"_s;
    for (const char* line :
         {"paddle", "paddle dit", "paddle down", "paddle dit dah down", "paddle dit down now"}) {
        row(line, paddle);
    }
    for (const char* line : {"knob", "knob 4", "knob 100", "knob 20.5"}) {
        row(line, u"knob 5...99"_s);
    }
    row("button 5", u"button 1...4 [down|up]"_s);
    row("button 1 left", u"button 1...4 [down|up]"_s);
    row("message 0", u"message 1...6"_s);
    row("pull hard", u"pull"_s);
    for (const char* line : {"send", "send 0", "send 123", "send CQ", "send \"CQ"}) {
        row(line, u"send \"TEXT\"|HEX..."_s);
    }
    const QString expect = u"expect keyed \"TEXT\"|reply HEX...|key down|up|ptt on|off"_s;
    for (const char* line : {"expect", "expect keyed CQ", "expect reply", "expect key", "expect it",
                             "expect ptt on off"}) {
        row(line, expect);
    }
    row("within 1 key up", u"within SECONDS expect ..."_s);
    row("within expect key up", u"within SECONDS expect ..."_s);
}

void ScriptParserTest::whatIsNoneIsToldHowItIsWritten() {
    QFETCH(QString, usage);
    const auto meaning = readScriptLine(QString::fromLatin1(QTest::currentDataTag()));
    const auto* mistake = std::get_if<ScriptMistake>(&meaning);
    QVERIFY(mistake != nullptr);
    QCOMPARE(mistake->usage, usage);
}

void ScriptParserTest::linesThatSayNothingArePassedOver_data() {
    QTest::addColumn<QString>("line");
    QTest::newRow("empty") << QString();
    QTest::newRow("blank") << u" \t"_s;
    QTest::newRow("comment") << u"# knob 28"_s;
    QTest::newRow("comment without a space") << u"  #knob 28 \""_s;
}

void ScriptParserTest::linesThatSayNothingArePassedOver() {
    QFETCH(QString, line);
    QVERIFY(std::holds_alternative<EmptyLine>(readScriptLine(line)));
}

static const RegisteredTest<ScriptParserTest> registered;
#include "ScriptParserTest.moc"
