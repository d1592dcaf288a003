#include "formatters/MessageFormatter.h"

#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

class MessageFormatterTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void replacesText_data();
    void replacesText();
    void theSelectionMovesBackWithADeletion();
    void objectValues();
    void aStoredMessageReadsAsItIsSent();
    void aFieldShowsTheReplacement();
    void theInsertionPointStays();
    void pastedTextLosesOneCharacterAPass();
    void typingCanBeTakenBack();
    void aCommitOfAnInputMethodIsReplaced();
    void textFromAnAssistiveTechnologyIsReplaced();
    void returnIsNoEdit();
    void aRefusedCharacterOverASelectionChangesNothing();
    void aRefusedCharacterMakesAPassOverWhatIsLeft();
    void aMessageMayBeOfAnyLength();
};

void MessageFormatterTest::replacesText_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("lower case") << u"cq test"_s << u"CQ TEST"_s;
    QTest::newRow("tokens and control signs stay") << u"`~#{%^|"_s << u"`~#{%^|"_s;
    QTest::newRow("an ampersand goes") << u"A&"_s << u"A"_s;
    QTest::newRow("an exclamation mark goes") << u"A!"_s << u"A"_s;
    QTest::newRow("an underscore goes") << u"A_"_s << u"A"_s;
    QTest::newRow("only the first of several goes") << u"A&B*C"_s << u"AB*C"_s;
    QTest::newRow("letters of other alphabets go") << u"\u00C9"_s << u""_s;
}

void MessageFormatterTest::replacesText() {
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    TextRange selection;
    QString error;
    QVERIFY(!MessageFormatter().isPartialStringValid(&typed, &selection, {}, {}, &error));
    QCOMPARE(typed, shown);
    QVERIFY(error.isNull());
}

void MessageFormatterTest::theSelectionMovesBackWithADeletion() {
    const MessageFormatter formatter;
    QString text = u"AB&"_s;
    TextRange selection{3, 0};
    formatter.isPartialStringValid(&text, &selection, u"ABCD"_s, {2, 2}, nullptr);
    QVERIFY((selection == TextRange{2, 2}));

    text = u"&"_s;
    selection = {0, 0};
    formatter.isPartialStringValid(&text, &selection, {}, {}, nullptr);
    QVERIFY((selection == TextRange{0, 0}));

    text = u"ok"_s;
    selection = {1, 1};
    formatter.isPartialStringValid(&text, &selection, {}, {0, 0}, nullptr);
    QVERIFY((selection == TextRange{1, 1}));
}

void MessageFormatterTest::objectValues() {
    const MessageFormatter formatter;
    QCOMPARE(formatter.stringForObjectValue(u"cq!"_s), u"CQ!"_s);
    QVERIFY(formatter.stringForObjectValue(QVariant()).isNull());
    QVariant object;
    QVERIFY(formatter.getObjectValue(&object, u"cq!"_s, nullptr));
    QCOMPARE(object, QVariant(u"CQ!"_s));
}

void MessageFormatterTest::aStoredMessageReadsAsItIsSent() {
    auto stored = u"cq test & `"_s;
    MessageFormatter().fixup(stored);
    QCOMPARE(stored, u"CQ TEST & `"_s); // nothing is lost by looking at it
}

void MessageFormatterTest::aFieldShowsTheReplacement() {
    QLineEdit field;
    MessageFormatter formatter;
    field.setValidator(&formatter);
    QTest::keyClicks(&field, u"cq! `&"_s);
    QCOMPARE(field.text(), u"CQ `"_s);
}

void MessageFormatterTest::theInsertionPointStays() {
    QLineEdit field;
    MessageFormatter formatter;
    field.setValidator(&formatter);
    field.setText(u"CQ TEST"_s);
    field.setCursorPosition(2);
    QTest::keyClick(&field, Qt::Key_Ampersand);
    QCOMPARE(field.text(), u"CQ TEST"_s);
    QCOMPARE(field.cursorPosition(), 2);
}

void MessageFormatterTest::pastedTextLosesOneCharacterAPass() {
    QLineEdit field;
    MessageFormatter formatter;
    field.setValidator(&formatter);
    QGuiApplication::clipboard()->setText(u"a&b*c"_s);
    field.paste();
    QCOMPARE(field.text(), u"AB*C"_s);
    QTest::keyClicks(&field, u"d"_s);
    QCOMPARE(field.text(), u"ABCD"_s);
}

void MessageFormatterTest::typingCanBeTakenBack() {
    QLineEdit field;
    field.setValidator(new MessageFormatter(&field));
    QTest::keyClicks(&field, u"cq test"_s);
    QCOMPARE(field.text(), u"CQ TEST"_s);
    field.undo();
    QCOMPARE(field.text(), u""_s);
    field.redo();
    QCOMPARE(field.text(), u"CQ TEST"_s);
}

void MessageFormatterTest::aCommitOfAnInputMethodIsReplaced() {
    QLineEdit field;
    MessageFormatter formatter;
    field.setValidator(&formatter);
    field.setText(u"CQ"_s);
    field.setCursorPosition(1);
    QInputMethodEvent commit;
    commit.setCommitString(u"a&"_s);
    QCoreApplication::sendEvent(&field, &commit);
    QCOMPARE(field.text(), u"CAQ"_s);
    QCOMPARE(field.cursorPosition(), 2);
}

void MessageFormatterTest::textFromAnAssistiveTechnologyIsReplaced() {
    QLineEdit field;
    MessageFormatter formatter;
    field.setValidator(&formatter);
    auto* text = QAccessible::queryAccessibleInterface(&field)->editableTextInterface();
    text->insertText(0, u"cq&test"_s);
    QCOMPARE(field.text(), u"CQTEST"_s);
    text->insertText(2, u" `_"_s);
    QCOMPARE(field.text(), u"CQ `TEST"_s);
    text->replaceText(0, 2, u"qrz!"_s);
    QCOMPARE(field.text(), u"QRZ `TEST"_s);
}

void MessageFormatterTest::returnIsNoEdit() {
    QLineEdit field;
    field.setValidator(new MessageFormatter(&field));
    QGuiApplication::clipboard()->setText(u"a&b&c*"_s);
    field.paste();
    QCOMPARE(field.text(), u"AB&C*"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    QTest::keyClick(&field, Qt::Key_Home);
    QTest::keyClick(&field, Qt::Key_Right);
    QTest::keyClick(&field, Qt::Key_Right);
    QTest::keyClick(&field, Qt::Key_Delete); // which leaves what Return would have made of it
    QCOMPARE(field.text(), u"ABC"_s);
}

void MessageFormatterTest::aRefusedCharacterOverASelectionChangesNothing() {
    QLineEdit field;
    field.setValidator(new MessageFormatter(&field));
    QTest::keyClicks(&field, u"cq test"_s);
    QTest::keyClick(&field, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(field.selectedText(), u"TEST"_s);
    QTest::keyClick(&field, Qt::Key_Ampersand);
    QCOMPARE(field.text(), u"CQ TEST"_s);
    QCOMPARE(field.selectedText(), u"TEST"_s);
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(field.text(), u""_s);
}

void MessageFormatterTest::aRefusedCharacterMakesAPassOverWhatIsLeft() {
    QLineEdit field;
    field.setValidator(new MessageFormatter(&field));
    QGuiApplication::clipboard()->setText(u"a&b*c"_s);
    field.paste();
    QCOMPARE(field.text(), u"AB*C"_s);
    QTest::keyClick(&field, Qt::Key_Ampersand);
    QCOMPARE(field.text(), u"ABC&"_s); // only the first goes
    QTest::keyClick(&field, Qt::Key_Return);
    QTest::keyClick(&field, Qt::Key_Exclam);
    QCOMPARE(field.text(), u"ABC!"_s);
}

void MessageFormatterTest::aMessageMayBeOfAnyLength() {
    QLineEdit field;
    field.setValidator(new MessageFormatter(&field));
    QGuiApplication::clipboard()->setText(QString(40'000, u'E'));
    field.paste();
    QCOMPARE(field.text().size(), 40'000);
    QTest::keyClick(&field, Qt::Key_T);
    QCOMPARE(field.text().size(), 40'001);
}

static const RegisteredTest<MessageFormatterTest> registered;
#include "MessageFormatterTest.moc"
