#include "keyer/GeneralSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

class WinKeyerUsbKeyboardTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _bench.reset(); }

    void theKeyboardSet();
    void typedTextIsSentOnEchoes();
    void textIsFiltered_data();
    void textIsFiltered();
    void deletingEverythingStartsOver();
    void deletingSentTextFromTheEndSendsNothingAgain();
    void deletingSentTextBeforeUnsentTextSkipsAsMuch();
    void insertingBeforeTheIndexSendsAgain();
    void textTypedWhilePausedIsSentOnResume();
    void editingIsAlwaysAllowed();
    void changesOfTheTextAreAnnounced();

  private:
    std::optional<EngineBench> _bench;
};

void WinKeyerUsbKeyboardTest::init() {
    _bench.emplace();
    _bench->settings().setObject(u"N0CALL"_s, MyCall);
    QVERIFY(_bench->connect());
}

void WinKeyerUsbKeyboardTest::theKeyboardSet() {
    QString members;
    for (char16_t code = 0; code < 0x800; ++code) {
        if (WinKeyerUsb::morseKeyboardCharacterSet().characterIsMember(code)) {
            members.append(code);
        }
    }
    QCOMPARE(members, u" \"#$%'()+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^`{|~"_s);
}

void WinKeyerUsbKeyboardTest::typedTextIsSentOnEchoes() {
    _bench->type(u"c"_s);
    _bench->type(u"Cq"_s);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"CQ"_s);
    QCOMPARE(_bench->written(), "43");
    _bench->receive({'C'});
    QCOMPARE(_bench->written(), "51");
    _bench->receive({'Q'});
    QCOMPARE(_bench->written(), "");
    _bench->type(u"CQE"_s);
    QCOMPARE(_bench->written(), "45");
}

void WinKeyerUsbKeyboardTest::textIsFiltered_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::newRow("lower case") << u"cq test"_s << u"CQ TEST"_s;
    QTest::newRow("a forbidden sign alone") << u"!"_s << u""_s;
    QTest::newRow("a forbidden sign at the end") << u"CQ!"_s << u"CQ"_s;
    QTest::newRow("the second of two forbidden signs stays") << u"A!!B"_s << u"A!B"_s;
    QTest::newRow("a third one goes again") << u"A!!!B"_s << u"A!B"_s;
    QTest::newRow("own call at once") << u"`"_s << u"N0CALL"_s;
    QTest::newRow("serial number at once") << u"#"_s << u"TT1"_s;
    QTest::newRow("his call stays a token") << u"~"_s << u"~"_s;
    QTest::newRow("line ends and tabs never stay") << u"A\n\nB\t\tC"_s << u"ABC"_s;
    QTest::newRow("letters of other alphabets never stay") << u"Aéèç"_s << u"A"_s;
}

void WinKeyerUsbKeyboardTest::textIsFiltered() {
    QFETCH(QString, typed);
    QFETCH(QString, text);
    _bench->type(typed);
    QCOMPARE(_bench->engine().keyboardBuffer(), text);
    QCOMPARE(_bench->written(), text == u"~"_s ? QByteArray() : text.left(1).toLatin1().toHex());
}

void WinKeyerUsbKeyboardTest::deletingEverythingStartsOver() {
    _bench->type(u"AB"_s);
    _bench->receive({'A'});
    _bench->receive({'B'});
    _bench->type(u""_s);
    QCOMPARE(_bench->engine().outputBufferIndex(), 0);
    _bench->type(u"C"_s);
    QCOMPARE(_bench->written(), "41 42 43");
}

void WinKeyerUsbKeyboardTest::deletingSentTextFromTheEndSendsNothingAgain() {
    _bench->type(u"ABC"_s);
    _bench->receive({'A'});
    _bench->receive({'B'});
    _bench->receive({'C'});
    _bench->type(u"AB"_s);
    QCOMPARE(_bench->engine().outputBufferIndex(), 2);
    QCOMPARE(_bench->written(), "41 42 43");
    _bench->type(u"ABD"_s);
    QCOMPARE(_bench->written(), "44");
}

void WinKeyerUsbKeyboardTest::deletingSentTextBeforeUnsentTextSkipsAsMuch() {
    _bench->type(u"ABCDEF"_s);
    _bench->receive({'A'});
    QCOMPARE(_bench->written(), "41 42");
    _bench->type(u"BCDEF"_s);
    QCOMPARE(_bench->engine().outputBufferIndex(), 2);
    _bench->receive({'B'});
    QCOMPARE(_bench->written(), "44");
}

void WinKeyerUsbKeyboardTest::insertingBeforeTheIndexSendsAgain() {
    _bench->type(u"AB"_s);
    _bench->receive({'A'});
    QCOMPARE(_bench->written(), "41 42");
    _bench->type(u"XAB"_s);
    _bench->receive({'B'});
    QCOMPARE(_bench->written(), "42");
}

void WinKeyerUsbKeyboardTest::textTypedWhilePausedIsSentOnResume() {
    _bench->engine().setPauseState(1);
    _bench->type(u"C"_s);
    _bench->type(u"CQ"_s);
    QCOMPARE(_bench->written(), "06 01");
    _bench->engine().setPauseState(0);
    QCOMPARE(_bench->written(), "06 00 43");
}

void WinKeyerUsbKeyboardTest::editingIsAlwaysAllowed() {
    QVERIFY(_bench->engine().textShouldBeginEditing(nullptr));
    QVERIFY(_bench->engine().textShouldEndEditing(nullptr));
}

void WinKeyerUsbKeyboardTest::changesOfTheTextAreAnnounced() {
    QStringList texts;
    auto& engine = _bench->engine();
    QObject::connect(&engine, &WinKeyerUsb::keyboardBufferChanged, this,
                     [&] { texts.append(engine.keyboardBuffer()); });
    engine.appendMessage(u"a"_s);
    engine.appendMessage(u"b"_s);
    engine.clearSending();
    engine.clearSending();
    QCOMPARE(texts, (QStringList{u"A"_s, u"A B"_s, u""_s}));
}

static const RegisteredTest<WinKeyerUsbKeyboardTest> registered;
#include "WinKeyerUsbKeyboardTest.moc"
