#include "app/window/HeldMessages.h"

#include "app/keyboard/KeyboardView.h"
#include "app/window/MessageButton.h"
#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QLabel>
#include <QTextBlock>

using namespace Qt::StringLiterals;

/// Messages pressed while the paddle is in use.
class HeldMessagesTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { close(); }

    void aMessageIsHeldUntilTheKeyerIsIdle_data();
    void aMessageIsHeldUntilTheKeyerIsIdle();
    void oneThatWaitsIsShown();
    void severalGoInOrderAndEachOnce();
    void whatStopsTheSendingDropsThem_data();
    void whatStopsTheSendingDropsThem();
    void laterMessagesAreNotHeld();
    void theNumberIsThatOfTheMomentOfThePress();
    void theCallOfAHeldMessageIsNotWipedBefore_data();
    void theCallOfAHeldMessageIsNotWipedBefore();
    void aWipedCallIsTheOneThatIsTypedAnew();
    void typedTextIsHeldToo();
    void heldTextCanBeCorrected();
    void textAndMessagesKeepTheirOrder_data();
    void textAndMessagesKeepTheirOrder();
    void textTypedBehindAHeldMessageStaysBehindIt();
    void whatIsHeldIsCounted();
    void whatIsTypedBehindAHeldMessageComesBehindIt_data();
    void whatIsTypedBehindAHeldMessageComesBehindIt();
    void aHeldMessageThatEndsInASignJoinsNothing();
    void heldTextIsDroppedWithTheMessages();

  private:
    [[nodiscard]] QString text() { return _bench->engine().keyboardBuffer(); }
    [[nodiscard]] KeyboardView& view() { return *find<KeyboardView>(u"keyboardView"_s); }
    [[nodiscard]] MessageButton& button(int number) {
        return *find<MessageButton>(u"message%1Button"_s.arg(number));
    }
    [[nodiscard]] QString status() { return find<QLabel>(u"keyerStatusLabel"_s)->text(); }
};

void HeldMessagesTest::init() {
    open();
    _bench->receive({0xC6});
}

void HeldMessagesTest::aMessageIsHeldUntilTheKeyerIsIdle_data() {
    QTest::addColumn<bool>("isByKey");
    QTest::addRow("by key") << true;
    QTest::addRow("by click") << false;
}

void HeldMessagesTest::aMessageIsHeldUntilTheKeyerIsIdle() {
    QFETCH(const bool, isByKey);
    if (isByKey) {
        press(Qt::Key_F2);
    } else {
        click(button(2));
    }
    QCOMPARE(text(), u""_s);
    _bench->receive({0xC4}); // still in the break-in's hang time
    QCOMPARE(text(), u""_s);
    QCOMPARE(_bench->written(), "");
    _bench->receive({0xC0});
    QCOMPARE(text(), u"5NN NH"_s);
    QCOMPARE(_bench->written(), "35");
    QVERIFY(!button(2).isHeld());
    // Once.
    _bench->receive({0xC6});
    _bench->receive({0xC0});
    QCOMPARE(text(), u""_s);
}

void HeldMessagesTest::oneThatWaitsIsShown() {
    const auto before = button(2).grab().toImage();
    QVERIFY(!status().contains(u"for the paddle"));
    press(Qt::Key_F2);
    QVERIFY(button(2).isHeld());
    QVERIFY(!button(1).isHeld());
    QVERIFY(button(2).grab().toImage() != before);
    QCOMPARE(button(2).accessibleDescription(), u"Waits for the paddle: 5NN NH"_s);
    QVERIFY(status().contains(u"for the paddle to be free: Esc drops it"));
    _bench->receive({0xC0});
    QCOMPARE(button(2).grab().toImage(), before);
    QCOMPARE(button(2).accessibleDescription(), u"5NN NH"_s);
    QVERIFY(!status().contains(u"for the paddle"));
}

void HeldMessagesTest::severalGoInOrderAndEachOnce() {
    press(Qt::Key_F7);
    press(Qt::Key_F2);
    press(Qt::Key_F7);
    _bench->receive({0xC0});
    QCOMPARE(text(), u"? 5NN NH"_s);
}

void HeldMessagesTest::whatStopsTheSendingDropsThem_data() {
    QTest::addColumn<QString>("way");
    for (const auto* way : {"Escape", "the Stop button", "a link that goes"}) {
        QTest::addRow("%s", way) << QString::fromLatin1(way);
    }
}

void HeldMessagesTest::whatStopsTheSendingDropsThem() {
    QFETCH(const QString, way);
    press(Qt::Key_F2);
    if (way == u"Escape") {
        press(Qt::Key_Escape);
    } else if (way == u"the Stop button") {
        click(*find<QWidget>(u"stopButton"_s));
    } else {
        QVERIFY(_bench->engine().disconnect(nullptr));
        QVERIFY(_bench->connect());
    }
    QVERIFY(!button(2).isHeld());
    static_cast<void>(_bench->written());
    _bench->receive({0xC0});
    QCOMPARE(text(), u""_s);
    QCOMPARE(_bench->written(), "");
}

void HeldMessagesTest::laterMessagesAreNotHeld() {
    _bench->receive({0xC0});
    press(Qt::Key_F7);
    QCOMPARE(_bench->written(), "3f");
}

/// The operator is at the next contact by then.
void HeldMessagesTest::theNumberIsThatOfTheMomentOfThePress() {
    _bench->settings().setObject(u"5nn # `"_s, u"Message2"_s);
    _bench->engine().setSerialNumber(7);
    press(Qt::Key_F2);
    press(Qt::Key_F11);
    QCOMPARE(_bench->engine().serialNumber(), 8);
    _bench->receive({0xC0});
    QCOMPARE(text(), u"5NN TT7 N0CALL"_s);
}

void HeldMessagesTest::theCallOfAHeldMessageIsNotWipedBefore_data() {
    QTest::addColumn<bool>("isTyped");
    QTest::addRow("a message") << false;
    QTest::addRow("typed text") << true;
}

void HeldMessagesTest::theCallOfAHeldMessageIsNotWipedBefore() {
    QFETCH(const bool, isTyped);
    _bench->settings().setObject(u"~"_s, u"Message6"_s);
    _bench->engine().setHisCallsign(u"W9"_s);
    if (isTyped) {
        type(u"~"_s);
    } else {
        press(Qt::Key_F5);
    }
    press(Qt::Key_F11);
    QCOMPARE(_bench->engine().hisCallsign(), u""_s);
    type(u"K1A"_s);
    press(Qt::Key_F6);
    QCOMPARE(_bench->engine().hisCallsign(), u"K1A"_s);
    _bench->receive({0xC0});
    QByteArray sent = QByteArray::fromHex(_bench->written());
    for (int i = 0; i < 12; ++i) {
        _bench->receive({'E'});
        sent += QByteArray::fromHex(_bench->written());
    }
    QCOMPARE(sent, "W9 K1A");
}

void HeldMessagesTest::aWipedCallIsTheOneThatIsTypedAnew() {
    _bench->settings().setObject(u"~"_s, u"Message6"_s);
    _bench->engine().setHisCallsign(u"W9"_s);
    press(Qt::Key_F6);
    press(Qt::Key_W, Qt::AltModifier);
    type(u"K1A"_s);
    _bench->receive({0xC0});
    QByteArray sent = QByteArray::fromHex(_bench->written());
    for (int i = 0; i < 6; ++i) {
        _bench->receive({'E'});
        sent += QByteArray::fromHex(_bench->written());
    }
    QCOMPARE(sent, "K1A");
}

void HeldMessagesTest::typedTextIsHeldToo() {
    type(u"tu 73"_s);
    QCOMPARE(text(), u""_s);
    QCOMPARE(_bench->written(), "");
    QVERIFY(status().contains(u"for the paddle to be free: Esc drops it"));
    QCOMPARE(view().document()->firstBlock().layout()->preeditAreaText(), u"tu 73"_s);
    QCOMPARE(view().waitingCount(), 5);
    _bench->receive({0xC4});
    type(u" k"_s);
    QCOMPARE(_bench->written(), "");
    _bench->receive({0xC0});
    QCOMPARE(text(), u"TU 73 K"_s);
    QCOMPARE(view().text(), text());
    QCOMPARE(_bench->written(), "54");
    QVERIFY(!status().contains(u"for the paddle"));
    type(u"e"_s);
    QCOMPARE(text(), u"TU 73 KE"_s);
}

void HeldMessagesTest::heldTextCanBeCorrected() {
    type(u"tu{a"_s);
    press(Qt::Key_Backspace);
    press(Qt::Key_Backspace);
    press(Qt::Key_Backspace);
    type(u"est"_s);
    press(Qt::Key_Left); // there is nowhere to go
    _bench->receive({0xC0});
    QCOMPARE(text(), u"TEST"_s);
}

void HeldMessagesTest::textAndMessagesKeepTheirOrder_data() {
    QTest::addColumn<bool>("isTextFirst");
    QTest::addColumn<QString>("result");
    QTest::addRow("the text first") << true << u"TU 5NN NH"_s;
    QTest::addRow("the message first") << false << u"5NN NH TU"_s;
}

void HeldMessagesTest::textAndMessagesKeepTheirOrder() {
    QFETCH(const bool, isTextFirst);
    if (!isTextFirst) {
        press(Qt::Key_F2);
    }
    type(u"tu"_s);
    if (isTextFirst) {
        press(Qt::Key_F2);
    }
    _bench->receive({0xC0});
    QTEST(text(), "result");
}

/// The paddle is free by then, and the keyer not idle yet.
void HeldMessagesTest::textTypedBehindAHeldMessageStaysBehindIt() {
    press(Qt::Key_F2);
    _bench->receive({0xC4});
    type(u"tu"_s);
    QCOMPARE(_bench->written(), "");
    _bench->receive({0xC0});
    QCOMPARE(text(), u"5NN NH TU"_s);
    QCOMPARE(_bench->written(), "35");
    type(u"e"_s);
    QCOMPARE(text(), u"5NN NH TUE"_s);
}

void HeldMessagesTest::whatIsHeldIsCounted() {
    const auto* waiting = find<QLabel>(u"waitingLabel"_s);
    press(Qt::Key_F2);
    QCOMPARE(waiting->text(), u"6 waiting"_s);
    type(u"tu"_s);
    QCOMPARE(waiting->text(), u"9 waiting"_s);
    press(Qt::Key_F7);
    QCOMPARE(waiting->text(), u"11 waiting"_s);
    QCOMPARE(view().waitingCount(), 11); // which screen readers are told
    _bench->receive({0xC0});
    QCOMPARE(text().size(), 11);
    _bench->receive({0xC6});
    press(Qt::Key_F2);
    press(Qt::Key_Escape);
    QCOMPARE(waiting->text(), u""_s);
}

void HeldMessagesTest::whatIsTypedBehindAHeldMessageComesBehindIt_data() {
    QTest::addColumn<QString>("entered"); // a digit for a message's key, "<" for Backspace
    QTest::addColumn<QString>("result");
    QTest::addRow("on both sides") << u"tu2ee"_s << u"TU 5NN NH EE"_s;
    QTest::addRow("with spaces") << u" tu 2 ee "_s << u" TU 5NN NH EE "_s;
    QTest::addRow("between two messages") << u"2tu7ee"_s << u"5NN NH TU ? EE"_s;
    QTest::addRow("messages alone in the end") << u"tu27"_s << u"TU 5NN NH ?"_s;
    QTest::addRow("a sign of two letters begun") << u"tu{a2re"_s << u"TU 5NN NH {ARE"_s;
    QTest::addRow("corrected") << u"tu2ex<e"_s << u"TU 5NN NH EE"_s;
    QTest::addRow("corrected ahead of the message") << u"tu2<<<ee"_s << u"EE 5NN NH"_s;
}

void HeldMessagesTest::whatIsTypedBehindAHeldMessageComesBehindIt() {
    QFETCH(const QString, entered);
    for (const auto each : entered) {
        if (each.isDigit()) {
            press(static_cast<Qt::Key>(Qt::Key_F1 + each.digitValue() - 1));
        } else if (each == u'<') {
            press(Qt::Key_Backspace);
        } else {
            type(each);
        }
    }
    const auto counted = view().waitingCount();
    _bench->receive({0xC0});
    QTEST(text(), "result");
    QCOMPARE(counted, text().size());
    QCOMPARE(view().text(), text());
    QVERIFY(!view().isHoldingText());
}

void HeldMessagesTest::aHeldMessageThatEndsInASignJoinsNothing() {
    _bench->settings().setObject(u"tu {a"_s, u"Message7"_s);
    press(Qt::Key_F7);
    type(u"sn"_s);
    press(Qt::Key_F2);
    _bench->receive({0xC0});
    QCOMPARE(text(), u"TU A SN 5NN NH"_s);
    QCOMPARE(view().text(), text());
}

void HeldMessagesTest::heldTextIsDroppedWithTheMessages() {
    type(u"tu"_s);
    press(Qt::Key_Escape);
    QCOMPARE(view().document()->firstBlock().layout()->preeditAreaText(), u""_s);
    QVERIFY(!status().contains(u"for the paddle"));
    _bench->receive({0xC0});
    QCOMPARE(text(), u""_s);
    type(u"k"_s);
    QCOMPARE(text(), u"K"_s);
}

static const RegisteredTest<HeldMessagesTest> registered;
#include "HeldMessagesTest.moc"
