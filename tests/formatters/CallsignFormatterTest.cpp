#include "formatters/CallsignFormatter.h"

#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class CallsignFormatterTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void replacesText_data();
    void replacesText();
    void objectValues();
    void aFieldShowsTheReplacement();
    void theInsertionPointStays();
    void theInsertionPointStaysBeforeAHyphenThatWasPassedOver();
    void pastedTextIsPassedOverOnceAnEdit();
    void typingCanBeTakenBack();
    void aCommitOfAnInputMethodIsReplaced();
    void textFromAnAssistiveTechnologyIsReplaced();
    void textPutInByTheProgramIsReplaced();
    void returnIsNoEdit();
    void leavingTheFieldIsNoEdit();
    void anEditThatLeavesTheTextAsItWasIsOne();
    void aRefusedCharacterChangesNothing();
    void aRefusedCharacterOverASelectionChangesNothing();
    void aRefusedCommitOverASelectionChangesNothing();
    void refusedTextPastedOverASelectionChangesNothing();
    void anAcceptedCharacterReplacesTheSelection();
    void whatIsTakenBackBringsNoRefusedCharacterBack();
};

namespace {

void paste(QLineEdit& field, const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
}

} // namespace

void CallsignFormatterTest::replacesText_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("lower case") << u"w9xyz/p"_s << u"W9XYZ/P"_s;
    QTest::newRow("a hyphen goes") << u"AB-C"_s << u"ABC"_s;
    QTest::newRow("the second of two hyphens stays") << u"AB--C"_s << u"AB-C"_s;
    QTest::newRow("and goes at the next pass") << u"AB-C"_s << u"ABC"_s;
    QTest::newRow("a space goes") << u"K1 A"_s << u"K1A"_s;
    QTest::newRow("letters of other alphabets go") << u"\u00C91"_s << u"1"_s;
}

void CallsignFormatterTest::replacesText() {
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QString replacement;
    QString error;
    QVERIFY(!CallsignFormatter().isPartialStringValid(typed, &replacement, &error));
    QCOMPARE(replacement, shown);
    QVERIFY(error.isNull());
}

void CallsignFormatterTest::objectValues() {
    const CallsignFormatter formatter;
    QCOMPARE(formatter.stringForObjectValue(u"k1a"_s), u"K1A"_s);
    QVERIFY(formatter.stringForObjectValue(12).isNull());
    QVariant object;
    QVERIFY(formatter.getObjectValue(&object, u"k1-a"_s, nullptr));
    QCOMPARE(object, QVariant(u"K1-A"_s));
}

void CallsignFormatterTest::aFieldShowsTheReplacement() {
    QLineEdit field;
    CallsignFormatter formatter;
    field.setValidator(&formatter);
    QTest::keyClicks(&field, u"w9-xyz/p"_s);
    QCOMPARE(field.text(), u"W9XYZ/P"_s);
}

void CallsignFormatterTest::theInsertionPointStays() {
    QLineEdit field;
    CallsignFormatter formatter;
    field.setValidator(&formatter);
    field.setText(u"W9XYZ"_s);
    field.setCursorPosition(2);
    QTest::keyClick(&field, Qt::Key_Minus);
    QCOMPARE(field.cursorPosition(), 2);
    QTest::keyClicks(&field, u"a"_s);
    QCOMPARE(field.text(), u"W9AXYZ"_s);
    QCOMPARE(field.cursorPosition(), 3);
}

void CallsignFormatterTest::theInsertionPointStaysBeforeAHyphenThatWasPassedOver() {
    QLineEdit field;
    CallsignFormatter formatter;
    field.setValidator(&formatter);
    QGuiApplication::clipboard()->setText(u"a--c"_s);
    field.paste();
    QCOMPARE(field.text(), u"A-C"_s);
    field.setCursorPosition(1);
    QTest::keyClick(&field, Qt::Key_Minus);
    QCOMPARE(field.text(), u"A-C"_s);
    QCOMPARE(field.cursorPosition(), 1);
}

void CallsignFormatterTest::pastedTextIsPassedOverOnceAnEdit() {
    QLineEdit field;
    CallsignFormatter formatter;
    field.setValidator(&formatter);
    QGuiApplication::clipboard()->setText(u"dl1--abc"_s);
    field.paste();
    QCOMPARE(field.text(), u"DL1-ABC"_s);
    QTest::keyClicks(&field, u"/"_s);
    QCOMPARE(field.text(), u"DL1ABC/"_s);
}

void CallsignFormatterTest::typingCanBeTakenBack() {
    QLineEdit field;
    field.setValidator(new CallsignFormatter(&field));
    QTest::keyClicks(&field, u"w9xyz"_s);
    QCOMPARE(field.text(), u"W9XYZ"_s);
    field.undo();
    QCOMPARE(field.text(), u""_s);
    field.redo();
    QCOMPARE(field.text(), u"W9XYZ"_s);
}

void CallsignFormatterTest::aCommitOfAnInputMethodIsReplaced() {
    QLineEdit field;
    CallsignFormatter formatter;
    field.setValidator(&formatter);
    field.setText(u"W9"_s);
    field.setCursorPosition(1);
    QInputMethodEvent composing(u"k-"_s, {});
    QCoreApplication::sendEvent(&field, &composing);
    QCOMPARE(field.text(), u"W9"_s);
    QInputMethodEvent commit;
    commit.setCommitString(u"k-1"_s);
    QCoreApplication::sendEvent(&field, &commit);
    QCOMPARE(field.text(), u"WK19"_s);
    QCOMPARE(field.cursorPosition(), 3);
}

void CallsignFormatterTest::textFromAnAssistiveTechnologyIsReplaced() {
    QLineEdit field;
    CallsignFormatter formatter;
    field.setValidator(&formatter);
    auto* text = QAccessible::queryAccessibleInterface(&field)->editableTextInterface();
    text->insertText(0, u"w9xyz"_s);
    QCOMPARE(field.text(), u"W9XYZ"_s);
    text->insertText(2, u"-a"_s);
    QCOMPARE(field.text(), u"W9AXYZ"_s);
    text->replaceText(2, 4, u"k m"_s);
    QCOMPARE(field.text(), u"W9KMYZ"_s);
    text->deleteText(0, 2);
    QCOMPARE(field.text(), u"KMYZ"_s);
}

void CallsignFormatterTest::textPutInByTheProgramIsReplaced() {
    QLineEdit field;
    CallsignFormatter formatter;
    field.setValidator(&formatter);
    field.setText(u"k1-a"_s);
    QCOMPARE(field.text(), u"K1A"_s);
    field.insert(u"/p"_s);
    QCOMPARE(field.text(), u"K1A/P"_s);
}

void CallsignFormatterTest::returnIsNoEdit() {
    QLineEdit field;
    field.setValidator(new CallsignFormatter(&field));
    paste(field, u"W9----X"_s);
    QCOMPARE(field.text(), u"W9--X"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(field.text(), u"W9--X"_s);
    field.setCursorPosition(3);
    QTest::keyClick(&field, Qt::Key_Backspace);
    QCOMPARE(field.text(), u"W9X"_s);
}

void CallsignFormatterTest::leavingTheFieldIsNoEdit() {
    QWidget window;
    QLineEdit field(&window);
    QLineEdit other(&window);
    field.setValidator(new CallsignFormatter(&field));
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    field.setFocus();
    paste(field, u"W9----X"_s);
    QTest::keyClick(&field, Qt::Key_Tab);
    QVERIFY(other.hasFocus());
    QTest::keyClick(&other, Qt::Key_Backtab);
    QVERIFY(field.hasFocus());
    QCOMPARE(field.text(), u"W9--X"_s);
    QTest::keyClick(&field, Qt::Key_End);
    QTest::keyClick(&field, Qt::Key_Left);
    QTest::keyClick(&field, Qt::Key_Backspace);
    QCOMPARE(field.text(), u"W9X"_s);
}

void CallsignFormatterTest::anEditThatLeavesTheTextAsItWasIsOne() {
    QLineEdit field;
    field.setValidator(new CallsignFormatter(&field));
    paste(field, u"W9----X"_s);
    QTest::keyClick(&field, Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(field.selectedText(), u"X"_s);
    QTest::keyClick(&field, Qt::Key_X);
    QCOMPARE(field.text(), u"W9-X"_s);
    QCOMPARE(field.cursorPosition(), 4);
}

void CallsignFormatterTest::aRefusedCharacterChangesNothing() {
    QLineEdit field;
    field.setValidator(new CallsignFormatter(&field));
    QTest::keyClicks(&field, u"w9x"_s);
    QTest::keyClick(&field, Qt::Key_Left);
    QTest::keyClick(&field, Qt::Key_Minus);
    QCOMPARE(field.text(), u"W9X"_s);
    QCOMPARE(field.cursorPosition(), 2);
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(field.text(), u""_s);
}

void CallsignFormatterTest::aRefusedCharacterOverASelectionChangesNothing() {
    QLineEdit field;
    field.setValidator(new CallsignFormatter(&field));
    QTest::keyClicks(&field, u"w9xyz"_s);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    const QSignalSpy changes(&field, &QLineEdit::textChanged);
    QTest::keyClick(&field, Qt::Key_Minus);
    QCOMPARE(field.text(), u"W9XYZ"_s);
    QCOMPARE(field.selectedText(), u"W9XYZ"_s);
    QCOMPARE(changes.size(), 0);
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(field.text(), u""_s);
}

void CallsignFormatterTest::aRefusedCommitOverASelectionChangesNothing() {
    QLineEdit field;
    field.setValidator(new CallsignFormatter(&field));
    QTest::keyClicks(&field, u"w9xyz"_s);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QInputMethodEvent commit;
    commit.setCommitString(u"\u00E9"_s);
    QCoreApplication::sendEvent(&field, &commit);
    QCOMPARE(field.text(), u"W9XYZ"_s);
    QVERIFY(field.isUndoAvailable());
}

void CallsignFormatterTest::refusedTextPastedOverASelectionChangesNothing() {
    QLineEdit field;
    field.setValidator(new CallsignFormatter(&field));
    QTest::keyClicks(&field, u"w9xyz"_s);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    paste(field, u"-"_s);
    QCOMPARE(field.text(), u"W9XYZ"_s);
    QVERIFY(field.isUndoAvailable());
}

void CallsignFormatterTest::anAcceptedCharacterReplacesTheSelection() {
    QLineEdit field;
    field.setValidator(new CallsignFormatter(&field));
    QTest::keyClicks(&field, u"w9xyz"_s);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    paste(field, u"k-"_s);
    QCOMPARE(field.text(), u"K"_s);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_K);
    QCOMPARE(field.text(), u"K"_s);
    QCOMPARE(field.selectedText(), u""_s);
}

void CallsignFormatterTest::whatIsTakenBackBringsNoRefusedCharacterBack() {
    QLineEdit field;
    field.setValidator(new CallsignFormatter(&field));
    paste(field, u"a--c"_s);
    QCOMPARE(field.text(), u"A-C"_s);
    field.setCursorPosition(1);
    QTest::keyClick(&field, Qt::Key_Delete);
    QCOMPARE(field.text(), u"AC"_s);
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(field.text(), u"AC"_s);
}

static const RegisteredTest<CallsignFormatterTest> registered;
#include "CallsignFormatterTest.moc"
