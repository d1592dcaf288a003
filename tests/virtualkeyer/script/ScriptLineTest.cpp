#include "virtualkeyer/script/ScriptLine.h"

#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/script/ScriptParser.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;

class ScriptLineTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void whatIsWrittenIsReadAsItWas_data();
    void whatIsWrittenIsReadAsItWas();
};

void ScriptLineTest::whatIsWrittenIsReadAsItWas_data() {
    QTest::addColumn<ScriptAction>("action");
    const auto row = [](const char* line, const ScriptAction& action) {
        QTest::newRow(line) << action;
    };
    row("at 12.000345", std::monostate{});
    row("at 12.000345 paddle dit down", MovePaddle{true, {}});
    row("at 12.000345 paddle dah up", MovePaddle{{}, false});
    row("at 12.000345 paddle both down", MovePaddle{true, true});
    row("at 12.000345 knob 28", TurnKnob{28});
    row("at 12.000345 button 4 up", MoveButton{4, false});
    row("at 12.000345 button 2", MoveButton{2, {}});
    row("at 12.000345 message 6", PlayMessage{6});
    row("at 12.000345 plug", MovePlug{true});
    row("at 12.000345 pull", MovePlug{false});
    row("at 12.000345 profile default,late-echo", ChangeProfile{u"default,late-echo"_s});
    row("at 12.000345 trouble lost:0.5,no-echo", ChangeTroubles{u"lost:0.5,no-echo"_s});
    row("at 12.000345 send 00 FF", SendBytes{{0x00, 0xFF}});
    row("at 12.000345 expect keyed \"A\\\"B\\\\\"", Expect{ExpectKeyed{u"A\"B\\"_s}});
    row("at 12.000345 expect reply C0", Expect{ExpectReply{{0xC0}}});
    row("at 12.000345 within 0.250000 expect key down", Expect{ExpectKey{true}, 250ms});
    row("at 12.000345 expect ptt off", Expect{ExpectPtt{false}});
}

void ScriptLineTest::whatIsWrittenIsReadAsItWas() {
    QFETCH(ScriptAction, action);
    constexpr Time at = std::chrono::microseconds{12'000'345};
    const QString line = scriptLine(at, action);
    QCOMPARE(line, QString::fromLatin1(QTest::currentDataTag()));
    const auto meaning = readScriptLine(line);
    const auto* step = std::get_if<ScriptStep>(&meaning);
    QVERIFY(step != nullptr);
    QVERIFY(*step == (ScriptStep{at, Time{0}, action}));
}

static const RegisteredTest<ScriptLineTest> registered;
#include "ScriptLineTest.moc"
