#include "tests/app/keyboard/KeyboardStation.h"
#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTextBlock>
#include <QVBoxLayout>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

/// The ways other than plain keys by which text gets into the keyboard view, and out of it.
class KeyboardViewInputTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void whatIsBeingComposedIsNoText();
    void composedTextIsFiltered();
    void aCompositionSurvivesWhatTheEngineAdds_data();
    void aCompositionSurvivesWhatTheEngineAdds();
    void aCompositionSurvivesABreakOfItsParagraph();
    void textFromElsewhereIsFiltered_data();
    void textFromElsewhereIsFiltered();
    void richTextBecomesPlain();
    void whatIsNoTextChangesNothing();
    void movingTextIsOneEdit();
    void copiedTextHasSpacesForParagraphEnds();
    void returnBetweenWordsIsASpace();
    void returnDeletesNothing();
    void aWordBehindAMessageIsOneOfItsOwn_data();
    void aWordBehindAMessageIsOneOfItsOwn();
    void theSpaceBehindAMessageCanBeTakenOut();
    void aWordBehindAMessageIsUndoneAndTypedAnew();
    void textInsideAMessageStaysAsTyped();
    void aKeyWithAltTypesNothing();
    void tabLeavesTheView();
    void assistiveProgramsReadTheTextWithItsSpaces();
    void assistiveProgramsWorkTheCaretAndTheSelection();
    void assistiveProgramsEditThroughTheFilter();
    void assistiveProgramsLearnHowMuchWaits();

  private:
    [[nodiscard]] QString text() { return _station->engine().keyboardBuffer(); }
    void compose(const QString& composed, const QString& committed = {});
    [[nodiscard]] QStringList compositions();
    void drop(const QMimeData& mimeData, int position);
    [[nodiscard]] QAccessibleInterface& accessible() {
        return *QAccessible::queryAccessibleInterface(&_station->view);
    }

    std::optional<KeyboardStation> _station;
};

void KeyboardViewInputTest::init() {
    _station.emplace();
    QVERIFY(_station->isReady);
}

void KeyboardViewInputTest::compose(const QString& composed, const QString& committed) {
    QInputMethodEvent event(composed, {});
    event.setCommitString(committed);
    QApplication::sendEvent(&_station->view, &event);
}

QStringList KeyboardViewInputTest::compositions() {
    QStringList found;
    const auto* document = _station->view.document();
    for (auto block = document->firstBlock(); block.isValid(); block = block.next()) {
        if (const auto composed = block.layout()->preeditAreaText(); !composed.isEmpty()) {
            const auto place = block.position() + block.layout()->preeditAreaPosition();
            found.append(u"%1 at %2"_s.arg(composed).arg(place));
        }
    }
    return found;
}

void KeyboardViewInputTest::whatIsBeingComposedIsNoText() {
    compose(u"k"_s);
    compose(u"ka"_s);
    QCOMPARE(text(), u""_s);
    QCOMPARE(_station->bench.written(), "");
    QCOMPARE(compositions(), (QStringList{u"ka at 0"_s}));
}

void KeyboardViewInputTest::composedTextIsFiltered() {
    compose(u"ka"_s);
    compose(u""_s, u"k\u304b`\na"_s);
    QCOMPARE(text(), u"KN0CALL A"_s);
    QCOMPARE(_station->view.text(), u"KN0CALL A"_s);
    QCOMPARE(_station->bench.written(), "4b");
    QCOMPARE(compositions(), QStringList());
}

void KeyboardViewInputTest::aCompositionSurvivesWhatTheEngineAdds_data() {
    QTest::addColumn<int>("caret");
    QTest::addColumn<QString>("composition");
    QTest::addColumn<QString>("result");
    QTest::addRow("at the end, with which it goes") << 2 << u"ka at 7"_s << u"AB TEST C"_s;
    QTest::addRow("inside the text") << 1 << u"ka at 1"_s << u"ACB TEST"_s;
}

void KeyboardViewInputTest::aCompositionSurvivesWhatTheEngineAdds() {
    QFETCH(const int, caret);
    _station->pause();
    _station->keys(u"ab"_s);
    auto cursor = _station->view.textCursor();
    cursor.setPosition(caret);
    _station->view.setTextCursor(cursor);
    compose(u"ka"_s);
    _station->engine().appendMessage(u"test"_s);
    QFETCH(const QString, composition);
    QCOMPARE(compositions(), (QStringList{composition}));
    QCOMPARE(text(), u"AB TEST"_s);
    compose(u""_s, u"c"_s);
    QCOMPARE(compositions(), QStringList());
    QTEST(text(), "result");
    QCOMPARE(_station->view.text(), text());
}

void KeyboardViewInputTest::aCompositionSurvivesABreakOfItsParagraph() {
    _station->pause();
    _station->engine().appendMessage(u"PARIS "_s.repeated(160));
    compose(u"ka"_s);
    _station->engine().appendMessage(u"PARIS "_s.repeated(160));
    QVERIFY(_station->view.blockCount() > 1);
    QCOMPARE(compositions(), (QStringList{u"ka at 1921"_s}));
    compose(u""_s, u"c"_s);
    QVERIFY(text().endsWith(u"PARIS C"_s));
    QCOMPARE(_station->view.text(), text());
}

void KeyboardViewInputTest::drop(const QMimeData& mimeData, int position) {
    auto& view = _station->view;
    auto cursor = view.textCursor();
    cursor.setPosition(position);
    const auto point = view.cursorRect(cursor).center();
    QDragEnterEvent enter(point, Qt::CopyAction, &mimeData, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &enter);
    QDropEvent event(point, Qt::CopyAction, &mimeData, Qt::LeftButton, Qt::NoModifier);
    event.setAccepted(false);
    if (enter.isAccepted()) {
        QApplication::sendEvent(view.viewport(), &event);
    }
}

void KeyboardViewInputTest::textFromElsewhereIsFiltered_data() {
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("taken");
    for (const auto& way : {u"pasted"_s, u"dropped"_s, u"committed"_s, u"by assistive program"_s}) {
        const auto row = [&](const QString& name, const QString& given, const QString& taken) {
            QTest::addRow("%s, %s", qUtf8Printable(way), qUtf8Printable(name))
                << way << given << taken;
        };
        row(u"lower case"_s, u"cq"_s, u"CQ"_s);
        row(u"line ends"_s, u"a\nb\r\nc\u2029d\u2028e"_s, u"A B C D E"_s);
        row(u"a tab"_s, u"a\tb"_s, u"A B"_s);
        row(u"other letters"_s, u"a\u00e9b\u0416c"_s, u"ABC"_s);
        row(u"own call"_s, u"de `"_s, u"DE N0CALL"_s);
        row(u"two forbidden characters in a row, of which the second stays"_s, u"a!!b"_s, u"A!B"_s);
    }
}

void KeyboardViewInputTest::textFromElsewhereIsFiltered() {
    QFETCH(const QString, way);
    QFETCH(const QString, given);
    QFETCH(const QString, taken);
    _station->pause();
    _station->keys(u"x"_s);
    if (way == u"pasted") {
        QGuiApplication::clipboard()->setText(given);
        _station->keys(QKeySequence::Paste);
    } else if (way == u"dropped") {
        QMimeData mimeData;
        mimeData.setText(given);
        drop(mimeData, 1);
    } else if (way == u"committed") {
        compose(u""_s, given);
    } else {
        accessible().editableTextInterface()->insertText(1, given);
    }
    QCOMPARE(text(), u'X' + taken);
    QCOMPARE(_station->view.text(), text());
    _station->view.undoTyping();
    QCOMPARE(text(), u"X"_s);
}

void KeyboardViewInputTest::richTextBecomesPlain() {
    auto mimeData = std::make_unique<QMimeData>();
    mimeData->setHtml(u"<b>cq</b><p>de"_s);
    mimeData->setText(u"cq\nde"_s);
    QGuiApplication::clipboard()->setMimeData(mimeData.release());
    _station->view.paste();
    QCOMPARE(text(), u"CQ DE"_s);
    QCOMPARE(_station->view.textCursor().charFormat().fontWeight(), int(QFont::Normal));
}

void KeyboardViewInputTest::whatIsNoTextChangesNothing() {
    auto picture = std::make_unique<QMimeData>();
    picture->setImageData(QImage(2, 2, QImage::Format_RGB32));
    _station->keys(u"e"_s);
    drop(*picture, 0);
    QCOMPARE(text(), u"E"_s);
    _station->keys(QKeySequence::SelectAll);
    QGuiApplication::clipboard()->setMimeData(picture.release());
    _station->keys(QKeySequence::Paste);
    QCOMPARE(text(), u"E"_s);
}

void KeyboardViewInputTest::movingTextIsOneEdit() {
    _station->pause();
    _station->keys(u"ab cd"_s);
    // What a drop in the view that the text was dragged from does.
    QTextCursor from(_station->view.document());
    from.setPosition(3);
    from.setPosition(5, QTextCursor::KeepAnchor);
    QTextCursor to(_station->view.document());
    to.beginEditBlock();
    from.removeSelectedText();
    to.insertText(u"CD"_s);
    to.endEditBlock();
    QCOMPARE(text(), u"CDAB "_s);
    QCOMPARE(_station->view.text(), u"CDAB "_s);
    _station->view.undoTyping();
    QCOMPARE(text(), u"AB CD"_s);
}

void KeyboardViewInputTest::copiedTextHasSpacesForParagraphEnds() {
    _station->pause();
    const auto words = u"PARIS "_s.repeated(400);
    _station->engine().appendMessage(words);
    QVERIFY(_station->view.blockCount() > 1);
    _station->keys(QKeySequence::SelectAll);
    _station->keys(QKeySequence::Copy);
    const auto* copied = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(copied->text(), words);
    QVERIFY(!copied->hasHtml());
}

void KeyboardViewInputTest::returnBetweenWordsIsASpace() {
    _station->pause();
    _station->key(Qt::Key_Return);
    QCOMPARE(text(), u""_s);
    _station->keys(u"cq"_s);
    _station->key(Qt::Key_Return);
    _station->key(Qt::Key_Return);
    _station->keys(u"de "_s);
    _station->key(Qt::Key_Enter, Qt::KeypadModifier);
    _station->keys(u"k"_s);
    QCOMPARE(text(), u"CQ DE K"_s);
    QCOMPARE(_station->view.text(), u"CQ DE K"_s);
}

void KeyboardViewInputTest::returnDeletesNothing() {
    _station->pause();
    _station->keys(u"abc"_s);
    _station->key(Qt::Key_Left, Qt::ShiftModifier);
    for (const auto modifiers : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier}) {
        _station->key(Qt::Key_Return, modifiers);
        _station->key(Qt::Key_Enter, modifiers);
    }
    QCOMPARE(text(), u"ABC"_s);
    QCOMPARE(_station->view.text(), u"ABC"_s);
    QCOMPARE(_station->view.textCursor().selectedText(), u"C"_s);
}

void KeyboardViewInputTest::aWordBehindAMessageIsOneOfItsOwn_data() {
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("result");
    QTest::addRow("typed at once") << u"ur 5nn tt1"_s << u"tu 73"_s << u"UR 5NN TT1 TU 73"_s;
    QTest::addRow("with a space of the operator's") << u"tt1"_s << u" tu"_s << u"TT1 TU"_s;
    QTest::addRow("behind a message that ends in a space") << u"tt1 "_s << u"tu"_s << u"TT1 TU"_s;
    QTest::addRow("two letters in one") << u"tt1"_s << u"{sn"_s << u"TT1 {SN"_s;
}

void KeyboardViewInputTest::aWordBehindAMessageIsOneOfItsOwn() {
    QFETCH(const QString, message);
    QFETCH(const QString, typed);
    _station->pause();
    _station->engine().appendMessage(message);
    _station->keys(typed);
    QTEST(text(), "result");
    QCOMPARE(_station->view.text(), text());
}

void KeyboardViewInputTest::theSpaceBehindAMessageCanBeTakenOut() {
    _station->pause();
    _station->engine().appendMessage(u"n0call"_s);
    _station->keys(u"x"_s);
    _station->key(Qt::Key_Backspace);
    QCOMPARE(text(), u"N0CALL "_s);
    _station->key(Qt::Key_Backspace);
    _station->keys(u"/p"_s);
    QCOMPARE(text(), u"N0CALL/P"_s);
}

void KeyboardViewInputTest::aWordBehindAMessageIsUndoneAndTypedAnew() {
    _station->pause();
    _station->engine().appendMessage(u"tt1"_s);
    _station->keys(u"tu"_s);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u"TT1"_s);
    _station->keys(u"k"_s);
    QCOMPARE(text(), u"TT1 K"_s);
}

void KeyboardViewInputTest::textInsideAMessageStaysAsTyped() {
    _station->pause();
    _station->engine().appendMessage(u"tt1"_s);
    _station->key(Qt::Key_Left);
    _station->keys(u"x"_s);
    QCOMPARE(text(), u"TTX1"_s);
    // What comes behind it is apart from it as before.
    _station->key(Qt::Key_End);
    _station->keys(u"ab"_s);
    QCOMPARE(text(), u"TTX1 AB"_s);
    // Behind text of the operator's own nothing is put.
    _station->key(Qt::Key_Left);
    _station->keys(u"c"_s);
    QCOMPARE(text(), u"TTX1 ACB"_s);
}

void KeyboardViewInputTest::aKeyWithAltTypesNothing() {
    _station->key(Qt::Key_X, Qt::AltModifier);
    _station->key(Qt::Key_X, Qt::MetaModifier);
    QCOMPARE(text(), u""_s);
    QCOMPARE(_station->bench.written(), "");
}

void KeyboardViewInputTest::tabLeavesTheView() {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* view = new KeyboardView(_station->engine());
    auto* next = new QLineEdit;
    layout->addWidget(view);
    layout->addWidget(next);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Tab);
    QVERIFY(next->hasFocus());
    QCOMPARE(text(), u""_s);
}

void KeyboardViewInputTest::assistiveProgramsReadTheTextWithItsSpaces() {
    _station->pause();
    const auto words = u"PARIS "_s.repeated(400);
    _station->engine().appendMessage(words);
    QVERIFY(_station->view.blockCount() > 1);
    QCOMPARE(accessible().role(), QAccessible::EditableText);
    QVERIFY(accessible().state().editable && accessible().state().focusable);
    QCOMPARE(accessible().text(QAccessible::Value), words);
    auto* readable = accessible().textInterface();
    QCOMPARE(readable->characterCount(), 2400);
    QCOMPARE(readable->text(0, -1), u""_s);
    QCOMPARE(readable->text(0, 2400), words);
    QCOMPARE(readable->text(6, 9999), words.mid(6));
}

void KeyboardViewInputTest::assistiveProgramsWorkTheCaretAndTheSelection() {
    _station->pause();
    _station->keys(u"ab cd"_s);
    auto* readable = accessible().textInterface();
    readable->setCursorPosition(3);
    QCOMPARE(readable->cursorPosition(), 3);
    QCOMPARE(readable->selectionCount(), 0);
    readable->addSelection(3, 5);
    QCOMPARE(_station->view.textCursor().selectedText(), u"CD"_s);
    QCOMPARE(readable->selectionCount(), 1);
    int start = 0;
    int end = 0;
    readable->selection(0, &start, &end);
    QCOMPARE(std::pair(start, end), std::pair(3, 5));
    readable->removeSelection(0);
    QCOMPARE(readable->selectionCount(), 0);
    readable->setSelection(0, 0, 2);
    QCOMPARE(_station->view.textCursor().selectedText(), u"AB"_s);

    const auto character = readable->characterRect(3);
    QVERIFY(character.width() > 2 && character.height() > 5);
    QCOMPARE(readable->offsetAtPoint(character.topLeft() + QPoint(1, 2)), 3);
}

void KeyboardViewInputTest::assistiveProgramsEditThroughTheFilter() {
    _station->pause();
    auto* editable = accessible().editableTextInterface();
    editable->insertText(0, u"cq `"_s);
    QCOMPARE(text(), u"CQ N0CALL"_s);
    editable->replaceText(0, 2, u"qrz\n"_s);
    QCOMPARE(text(), u"QRZ N0CALL"_s);
    editable->deleteText(3, 99);
    QCOMPARE(text(), u"QRZ"_s);
    accessible().setText(QAccessible::Value, u"test"_s);
    QCOMPARE(text(), u"TEST"_s);
    QCOMPARE(_station->view.text(), u"TEST"_s);
    _station->view.undoTyping();
    QCOMPARE(text(), u"QRZ"_s);
}

void KeyboardViewInputTest::assistiveProgramsLearnHowMuchWaits() {
    const auto description = [this] { return accessible().text(QAccessible::Description); };
    QCOMPARE(description(), u"Nothing waits to be sent"_s);
    _station->keys(u"test"_s);
    QCOMPARE(description(), u"Characters still to be sent: 4"_s);
    _station->echo();
    QCOMPARE(description(), u"Characters still to be sent: 3"_s);
    _station->echo(3);
    QCOMPARE(description(), u"Nothing waits to be sent"_s);
}

static const RegisteredTest<KeyboardViewInputTest> registered;
#include "KeyboardViewInputTest.moc"
