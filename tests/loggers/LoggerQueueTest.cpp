#include "keyer/KeyerSettings.h"
#include "tests/loggers/LoggerQueueFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Whose text is keyed when, and what is told of it.
class LoggerQueueTest : public QObject, private LoggerQueueFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void aTextIsHandedOverOneByOne();
    void repliesComeWithTheLastEcho();
    void theReplyWaitsForTheLastEchoBehindASpace();
    void withoutEchoesTheReplyComesWhenTheKeyerIsIdle();
    void aReplyWaitsNoLongerForALostEcho();
    void aReplyIsForTheNextTextAlone();
    void repliesGoToWhoeverAsked();
    void textsGoInTheirOrder();
    void anothersTextIsAWordOfItsOwn();
    void singleCharactersMakeOneWord();
    void theOperatorComesBeforeWhatHasNotBegun();
    void theOperatorComesBehindWhatHasBegun();
    void aTextIsHandedOverOnlyWhenTheKeyerIsIdle();
    void whatStopsTheSendingDropsAll_data();
    void whatStopsTheSendingDropsAll();
    void textIsRefused_data();
    void textIsRefused();
    void aPauseDropsWhatWaits();
    void theKeyersOwnPauseDropsNothing();
    void abortStopsATextAndWhatWaits();
    void abortLeavesTheOperatorsTextAlone();
    void abortTakesOutWhatTheOperatorsTextIsBehind();
    void inWordModeAbortIsNotHeeded();
    void aTextThatTheOperatorChangesIsDropped();
    void aTextThatIsMovedIsDropped();
    void theOperatorMayComeBetweenPieces();
    void anIdleKeyerIsNoEcho();
};

void LoggerQueueTest::aTextIsHandedOverOneByOne() {
    take("cq");
    QCOMPARE(_bench->written(), "43");
    QCOMPARE(engine().keyboardBuffer(), u"CQ"_s);
    QCOMPARE(echo(), "51");
    QCOMPARE(echo(), "");
}

void LoggerQueueTest::repliesComeWithTheLastEcho() {
    take("\x1Bhid");
    take("cq^");
    echo();
    QCOMPARE(replies(), QStringList());
    echo();
    QCOMPARE(replies(), QStringList({u"4001 hid"_s, u"4001 cq"_s}));
}

/// The keyer tells that it is idle behind a space, when the next letter is on its way already: so
/// one more is written, and from then on two are with the keyer.
void LoggerQueueTest::theReplyWaitsForTheLastEchoBehindASpace() {
    take("e ti^");
    _bench->receive({0xC4});
    _bench->receive({'E'});
    _bench->receive({' '});
    _bench->receive({0xC0});
    QCOMPARE(_bench->written(), QByteArray("45 20 54 49"));
    _bench->receive({0xC4});
    _bench->receive({'T'});
    QCOMPARE(replies(), QStringList());
    _bench->receive({'I'});
    QCOMPARE(replies(), QStringList(u"4001 e ti"_s));
}

void LoggerQueueTest::withoutEchoesTheReplyComesWhenTheKeyerIsIdle() {
    _bench->settings().setObject(false, WKSerialEchoback);
    take("e^");
    _bench->receive({0xC4});
    QCOMPARE(replies(), QStringList());
    _bench->receive({0xC0});
    QCOMPARE(replies(), QStringList(u"4001 e"_s));
}

void LoggerQueueTest::aReplyWaitsNoLongerForALostEcho() {
    take("e^");
    _bench->receive({0xC4});
    _bench->receive({0xC0});
    QCOMPARE(replies(), QStringList());
    _bench->clock().advance(std::chrono::seconds(2));
    QCOMPARE(replies(), QStringList(u"4001 e"_s));
}

void LoggerQueueTest::aReplyIsForTheNextTextAlone() {
    take("\x1Bh1");
    take("e");
    echo();
    take("e");
    echo();
    QCOMPARE(replies(), QStringList(u"4001 h1"_s));
}

void LoggerQueueTest::repliesGoToWhoeverAsked() {
    take("\x1Bh1");
    take("e^", other);
    take("t");
    echo();
    QCOMPARE(replies(), QStringList(u"4002 e"_s));
    echo(2); // a space, and the other text
    QCOMPARE(replies(), QStringList(u"4001 h1"_s));
}

void LoggerQueueTest::textsGoInTheirOrder() {
    take("a^");
    take("b^", other);
    take("c^");
    QCOMPARE(_bench->written(), "41");
    QCOMPARE(echo(), "20");
    QCOMPARE(echo(), "42");
    QCOMPARE(echo(4), "20 43");
    QCOMPARE(replies(), QStringList({u"4001 a"_s, u"4002 b"_s, u"4001 c"_s}));
}

void LoggerQueueTest::anothersTextIsAWordOfItsOwn() {
    _bench->type(u"TU"_s);
    echo(2);
    take("cq");
    QCOMPARE(engine().keyboardBuffer(), u"TU CQ"_s);
    echo(3);
    take(" k", other);
    QCOMPARE(engine().keyboardBuffer(), u"TU CQ K"_s);
}

void LoggerQueueTest::singleCharactersMakeOneWord() {
    for (const auto* character : {"t", "e", "s", "t"}) {
        take(character);
    }
    echo(4);
    take("x");
    QCOMPARE(engine().keyboardBuffer(), u"TESTX"_s);
}

void LoggerQueueTest::theOperatorComesBeforeWhatHasNotBegun() {
    _bench->type(u"A"_s);
    take("x^");
    _bench->type(u"AB"_s);
    QCOMPARE(_bench->written(), "41");
    QCOMPARE(echo(), "42");
    QCOMPARE(echo(), "20");
    QCOMPARE(echo(), "58");
    QCOMPARE(replies(), QStringList());
    echo();
    QCOMPARE(replies(), QStringList(u"4001 x"_s));
}

void LoggerQueueTest::theOperatorComesBehindWhatHasBegun() {
    take("xy^");
    take("z^");
    _bench->type(u"XYA"_s);
    echo();
    QCOMPARE(replies(), QStringList());
    QCOMPARE(echo(), "41");
    QCOMPARE(replies(), QStringList(u"4001 xy"_s));
    QCOMPARE(echo(), "20");
    QCOMPARE(echo(), "5a");
}

void LoggerQueueTest::aTextIsHandedOverOnlyWhenTheKeyerIsIdle() {
    _bench->receive({0xC4});
    take("e^");
    QCOMPARE(_bench->written(), "");
    _bench->receive({0xC0});
    QCOMPARE(_bench->written(), "45");
}

void LoggerQueueTest::whatStopsTheSendingDropsAll_data() {
    QTest::addColumn<int>("what");
    QTest::newRow("Stop") << 0;
    QTest::newRow("the paddle") << 1;
    QTest::newRow("the end of the link") << 2;
    QTest::newRow("the operator deletes all") << 3;
}

void LoggerQueueTest::whatStopsTheSendingDropsAll() {
    QFETCH(const int, what);
    take("ab^");
    take("cd^");
    take("ef");
    take("gh^", other);
    switch (what) {
    case 0:
        engine().stopMessageSending(nullptr);
        break;
    case 1:
        _bench->receive({0xC6});
        break;
    case 2:
        QVERIFY(engine().disconnect(nullptr));
        break;
    default:
        _bench->type(u""_s);
    }
    QCOMPARE(replies(), QStringList({u"4001 break"_s, u"4001 break"_s, u"4002 break"_s}));
    static_cast<void>(_bench->written());
    if (what != 2) {
        _bench->receive({'A'});
        _bench->receive({0xC4});
        _bench->receive({0xC0});
        QCOMPARE(_bench->written(), "");
    }
    QCOMPARE(replies(), QStringList());
}

void LoggerQueueTest::textIsRefused_data() {
    QTest::addColumn<int>("when");
    QTest::newRow("not connected") << 0;
    QTest::newRow("not heard yet") << 1;
    QTest::newRow("paused") << 2;
    QTest::newRow("the paddle is in use") << 3;
}

void LoggerQueueTest::textIsRefused() {
    QFETCH(const int, when);
    if (when <= 1) {
        QVERIFY(engine().disconnect(nullptr));
    }
    if (when == 1) {
        QVERIFY(_bench->connect());
    } else if (when == 2) {
        engine().setPauseState(1);
    } else if (when == 3) {
        _bench->receive({0xC6});
    }
    static_cast<void>(_bench->written());
    take("\x1Bh1");
    take("cq^");
    take("cq"); // unasked, it is dropped without a word
    take("\x1B"
         "c5");
    QCOMPARE(replies(), QStringList(u"4001 break"_s));
    if (when == 0) {
        QVERIFY(_bench->connect());
    }
    engine().setPauseState(0);
    static_cast<void>(_bench->written());
    _bench->receive({0xC4});
    _bench->receive({0xC0});
    QCOMPARE(_bench->written(), "");
    QCOMPARE(engine().keyboardBuffer(), u""_s);
    QCOMPARE(engine().tuneState(), 0);
}

void LoggerQueueTest::aPauseDropsWhatWaits() {
    take("ab^");
    take("cd^");
    engine().setPauseState(1);
    QCOMPARE(replies(), QStringList(u"4001 break"_s));
    static_cast<void>(echo());
    engine().setPauseState(0);
    echo();
    QCOMPARE(replies(), QStringList(u"4001 ab"_s));
}

void LoggerQueueTest::theKeyersOwnPauseDropsNothing() {
    take("ab^");
    take("cd^");
    _bench->receive({0xC5});
    QCOMPARE(engine().pauseState(), 1);
    _bench->receive({0xC4});
    QCOMPARE(replies(), QStringList());
    _bench->receive({'A'});
    _bench->receive({0xC0});
    echo(4);
    QCOMPARE(replies(), QStringList({u"4001 ab"_s, u"4001 cd"_s}));
}

void LoggerQueueTest::abortStopsATextAndWhatWaits() {
    take("ab^");
    take("cd^", other);
    take("\x1Bhx");
    static_cast<void>(_bench->written());
    take("\x1B"
         "4");
    QCOMPARE(_bench->written(), "0a");
    QCOMPARE(replies(), QStringList({u"4001 break"_s, u"4002 break"_s, u"4001 break"_s}));
    QCOMPARE(engine().keyboardBuffer(), u""_s);
    take("e^");
    _bench->receive({0xC0});
    echo();
    QCOMPARE(replies(), QStringList(u"4001 e"_s));
}

void LoggerQueueTest::abortLeavesTheOperatorsTextAlone() {
    _bench->type(u"AB"_s);
    take("x^");
    static_cast<void>(_bench->written());
    take("\x1B"
         "4");
    QCOMPARE(_bench->written(), "");
    QCOMPARE(replies(), QStringList(u"4001 break"_s));
    QCOMPARE(echo(), "42");
    QCOMPARE(echo(), "");
    QCOMPARE(engine().keyboardBuffer(), u"AB"_s);
}

void LoggerQueueTest::abortTakesOutWhatTheOperatorsTextIsBehind() {
    take("wxyz^");
    _bench->type(u"WXYZ AB"_s);
    static_cast<void>(echo());
    take("\x1B"
         "4");
    QCOMPARE(replies(), QStringList(u"4001 break"_s));
    QCOMPARE(engine().keyboardBuffer(), u"WX AB"_s);
    QCOMPARE(echo(), "20");
    QCOMPARE(echo(3), "41 42");
}

void LoggerQueueTest::inWordModeAbortIsNotHeeded() {
    take("ab^");
    take("\x1B"
         "6");
    take("\x1B"
         "4");
    QCOMPARE(replies(), QStringList());
    take("\x1B"
         "0");
    QCOMPARE(replies(), QStringList(u"4001 break"_s));
    take("ab^");
    take("\x1B"
         "4");
    QCOMPARE(replies(), QStringList(u"4001 break"_s));
}

void LoggerQueueTest::aTextThatTheOperatorChangesIsDropped() {
    take("abcd^");
    take("ef^");
    _bench->type(u"ABD"_s);
    QCOMPARE(replies(), QStringList(u"4001 break"_s));
    echo(2);
    QCOMPARE(echo(), "20");
    QCOMPARE(echo(3), "45 46");
    QCOMPARE(replies(), QStringList(u"4001 ef"_s));
}

void LoggerQueueTest::aTextThatIsMovedIsDropped() {
    _bench->type(u"TEST"_s);
    echo(4);
    take("abc^");
    echo();
    _bench->type(u"T ABC"_s); // which makes the engine skip as many
    QCOMPARE(replies(), QStringList(u"4001 break"_s));
}

void LoggerQueueTest::theOperatorMayComeBetweenPieces() {
    take("a+b^");
    _bench->type(u"A X"_s);
    QCOMPARE(_bench->written(), "41");
    QCOMPARE(echo(), "20");
    QCOMPARE(echo(), "58");
    QCOMPARE(echo(), "1c 1b 20");
    QCOMPARE(echo(), "42");
    QCOMPARE(replies(), QStringList());
    echo();
    QCOMPARE(replies(), QStringList(u"4001 a+b"_s));
}

void LoggerQueueTest::anIdleKeyerIsNoEcho() {
    take("ab^");
    _bench->receive({0xC1});
    _bench->receive({'A'});
    _bench->receive({0xC0}); // has the engine go on, and then once more
    QVERIFY(_bench->written().endsWith(" 42"));
    QCOMPARE(replies(), QStringList());
    echo();
    QCOMPARE(replies(), QStringList(u"4001 ab"_s));
}

static const RegisteredTest<LoggerQueueTest> registered;
#include "LoggerQueueTest.moc"
