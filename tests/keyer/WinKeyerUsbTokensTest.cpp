#include "keyer/GeneralSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// What the signs that stand for the calls and the number become, and when.
class WinKeyerUsbTokensTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _bench.reset(); }

    void tokensAreSubstituted_data();
    void tokensAreSubstituted();
    void whatTokensMakeOfATextIsBounded_data();
    void whatTokensMakeOfATextIsBounded();
    void aCallSignWithItsOwnTokenDoesNotRunAway();
    void hisCallsignIsReadWhenItIsReached();
    void noCallsignSendsNothingForIt_data();
    void noCallsignSendsNothingForIt();

  private:
    std::optional<EngineBench> _bench;
};

void WinKeyerUsbTokensTest::init() {
    _bench.emplace();
    _bench->settings().setObject(u"N0CALL"_s, MyCall);
    QVERIFY(_bench->connect());
}

void WinKeyerUsbTokensTest::tokensAreSubstituted_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("substituted");
    QTest::newRow("own call, its zero not cut") << u"TU `"_s << u"TU N0CALL"_s;
    QTest::newRow("own call twice") << u"` `"_s << u"N0CALL N0CALL"_s;
    QTest::newRow("serial number twice") << u"# #"_s << u"TT1 TT1"_s;
    QTest::newRow("his call stays") << u"~ `"_s << u"~ N0CALL"_s;
    QTest::newRow("control signs stay") << u"{AR|%^"_s << u"{AR|%^"_s;
}

void WinKeyerUsbTokensTest::tokensAreSubstituted() {
    QFETCH(QString, text);
    QFETCH(QString, substituted);
    QCOMPARE(_bench->engine().substituteTokens(text), substituted);
    QCOMPARE(_bench->engine().serialNumber(), 1);
}

void WinKeyerUsbTokensTest::whatTokensMakeOfATextIsBounded_data() {
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("substituted");
    QTest::addColumn<bool>("isTold");
    const auto doubled = u"``"_s;
    const QString many(5000, u'`');
    const QString less(2500, u'`');
    const QString plain(20'000, u'A');
    const auto call = u"N0CALL"_s;
    QTest::newRow("the longest that feeds itself") << doubled << many << many + many << false;
    QTest::newRow("one more") << doubled << many + u"`A"_s << u"A"_s << true;
    QTest::newRow("the longest, by way of the number")
        << u"`#"_s << less << u"`TT1"_s.repeated(2500) << false;
    QTest::newRow("one more number") << u"`#"_s << less + u"#A"_s << u"A"_s << true;
    QTest::newRow("its own token alone adds nothing")
        << u"`"_s << many.repeated(4) << many.repeated(4) << false;
    QTest::newRow("a long text without tokens") << doubled << plain << plain << false;
    QTest::newRow("a long text with one") << doubled << plain + u'`' << plain << true;
    QTest::newRow("of another call, as much as anybody may ask for")
        << call << many.repeated(40) << call.repeated(200'000) << false;
    QTest::newRow("more than that") << call << many.repeated(40) + u"`A"_s << u"A"_s << true;
    QTest::newRow("another call in a long text")
        << call << plain.repeated(100) + u'`' << plain.repeated(100) + call << false;
    QTest::newRow("no call in a long text") << u""_s << many.repeated(400) << u""_s << false;
}

void WinKeyerUsbTokensTest::whatTokensMakeOfATextIsBounded() {
    QFETCH(QString, call);
    QFETCH(QString, text);
    QFETCH(QString, substituted);
    QFETCH(bool, isTold);
    _bench->settings().setObject(call, MyCall);
    const LogKeeper log;
    QVERIFY(_bench->engine().substituteTokens(text) == substituted);
    const auto line =
        u"Text too long with the call sign and serial number in it: they are left out"_s;
    QCOMPARE(log.lines(), isTold ? QStringList{line} : QStringList());
}

void WinKeyerUsbTokensTest::aCallSignWithItsOwnTokenDoesNotRunAway() {
    _bench->settings().setObject(u"A``"_s, MyCall);
    auto& engine = _bench->engine();
    for (int change = 0; change < 100; ++change) {
        _bench->type(engine.keyboardBuffer() + u'`');
        QVERIFY(engine.keyboardBuffer().size() <= 10'000);
    }
}

void WinKeyerUsbTokensTest::hisCallsignIsReadWhenItIsReached() {
    auto& engine = _bench->engine();
    engine.setHisCallsign(u"K1"_s);
    engine.appendMessage(u"A~B"_s);
    engine.setHisCallsign(u"w9"_s);
    _bench->receive({'A'});
    _bench->receive({'W'});
    _bench->receive({'9'});
    QCOMPARE(_bench->written(), "41 57 39 42");
    engine.appendMessage(u"~"_s);
    _bench->receive({'B'});
    _bench->receive({' '});
    QCOMPARE(_bench->written(), "20 57 39");
}

void WinKeyerUsbTokensTest::noCallsignSendsNothingForIt_data() {
    QTest::addColumn<QString>("callsign");
    QTest::newRow("nil") << QString();
    QTest::newRow("empty") << u""_s;
}

void WinKeyerUsbTokensTest::noCallsignSendsNothingForIt() {
    QFETCH(QString, callsign);
    _bench->engine().setHisCallsign(callsign);
    _bench->engine().appendMessage(u"~A"_s);
    QCOMPARE(_bench->written(), "41");
}

static const RegisteredTest<WinKeyerUsbTokensTest> registered;
#include "WinKeyerUsbTokensTest.moc"
