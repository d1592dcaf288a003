#include "tests/app/keyboard/KeyboardStation.h"
#include "tests/support/RegisteredTest.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTimer>

#include <optional>

using namespace Qt::StringLiterals;

/// Taking back in the keyboard view.
class KeyboardViewEditingTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void waitingWordsAreTakenBackAndMadeAgain();
    void whatTheEngineMakesOfAKeyIsOneStepWithIt_data();
    void whatTheEngineMakesOfAKeyIsOneStepWithIt();
    void aWaitingMessageIsTakenBack();
    void aMessageOnItsWayIsNotTakenBack();
    void whatIsWithTheKeyerIsNotTakenBack();
    void deletedTextThatWasSentDoesNotComeBack_data();
    void deletedTextThatWasSentDoesNotComeBack();
    void nothingIsMadeAgainAmongSentText();
    void whatIsMadeAgainIsSentOnce();
    void stoppingForgetsWhatWasDone();
    void breakInForgetsWhatWasDone();
    void theCaretGoesWhereTheTextChanged();
    void itIsToldWhatCanBeTakenBack();
    void theContextMenuTakesBack();
    void noTextIsKeyedTwiceWhateverIsTakenBack();

  private:
    [[nodiscard]] QString text() { return _station->engine().keyboardBuffer(); }
    void chooseFromContextMenu(const QString& name);

    std::optional<KeyboardStation> _station;
};

void KeyboardViewEditingTest::init() {
    _station.emplace();
    QVERIFY(_station->isReady);
}

void KeyboardViewEditingTest::waitingWordsAreTakenBackAndMadeAgain() {
    _station->pause();
    _station->keys(u"cq test"_s);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u"CQ "_s);
    QCOMPARE(_station->view.text(), u"CQ "_s);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u""_s);
    _station->key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    _station->key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(text(), u"CQ TEST"_s);
    QCOMPARE(_station->view.text(), u"CQ TEST"_s);
}

void KeyboardViewEditingTest::whatTheEngineMakesOfAKeyIsOneStepWithIt_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("made");
    QTest::addRow("upper case") << u"b"_s << u"A B"_s;
    QTest::addRow("own call") << u"`"_s << u"A N0CALL"_s;
    QTest::addRow("serial number") << u"#"_s << u"A TT1"_s;
    QTest::addRow("nothing of what cannot be keyed, so that the step is the one before")
        << u"b!"_s << u"A B"_s;
}

void KeyboardViewEditingTest::whatTheEngineMakesOfAKeyIsOneStepWithIt() {
    QFETCH(const QString, typed);
    _station->pause();
    _station->keys(u"a "_s);
    _station->keys(typed);
    QTEST(text(), "made");
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u"A "_s);
    _station->keys(QKeySequence::Redo);
    QTEST(text(), "made");
}

void KeyboardViewEditingTest::aWaitingMessageIsTakenBack() {
    _station->pause();
    _station->keys(u"a"_s);
    _station->engine().appendMessage(u"test"_s);
    _station->keys(u"b"_s);
    _station->view.undoTyping();
    QCOMPARE(text(), u"A TEST"_s);
    _station->view.undoTyping();
    QCOMPARE(text(), u"A"_s);
    _station->view.redoTyping();
    QCOMPARE(text(), u"A TEST"_s);
}

void KeyboardViewEditingTest::aMessageOnItsWayIsNotTakenBack() {
    _station->engine().appendMessage(u"test"_s);
    _station->view.undoTyping();
    QCOMPARE(text(), u"TEST"_s);
    QCOMPARE(_station->bench.written(), "54");
}

void KeyboardViewEditingTest::whatIsWithTheKeyerIsNotTakenBack() {
    _station->keys(u"et"_s);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u"E"_s);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u"E"_s);
    _station->echo();
    QCOMPARE(_station->bench.written(), "45");
}

void KeyboardViewEditingTest::deletedTextThatWasSentDoesNotComeBack_data() {
    QTest::addColumn<QString>("typed");
    QTest::addRow("all of it") << u"e"_s;
    QTest::addRow("its end") << u"te"_s;
}

void KeyboardViewEditingTest::deletedTextThatWasSentDoesNotComeBack() {
    QFETCH(const QString, typed);
    _station->keys(typed);
    _station->echo(3);
    static_cast<void>(_station->bench.written());
    _station->key(Qt::Key_Backspace);
    const auto left = typed.chopped(1).toUpper();
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), left);
    _station->echo();
    QCOMPARE(_station->bench.written(), "");
}

void KeyboardViewEditingTest::nothingIsMadeAgainAmongSentText() {
    _station->pause();
    _station->keys(u"ab"_s);
    _station->key(Qt::Key_Left);
    _station->keys(u"x"_s);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u"AB"_s);
    QVERIFY(_station->view.canRedoTyping());
    _station->resume();
    _station->echo();
    QVERIFY(!_station->view.canRedoTyping());
    _station->keys(QKeySequence::Redo);
    QCOMPARE(text(), u"AB"_s);
}

void KeyboardViewEditingTest::whatIsMadeAgainIsSentOnce() {
    _station->keys(u"et k"_s);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u"ET "_s);
    _station->echo(3);
    QCOMPARE(_station->bench.written(), "45 54 20");
    _station->keys(QKeySequence::Redo);
    QCOMPARE(text(), u"ET K"_s);
    _station->echo(2);
    QCOMPARE(_station->bench.written(), "4b");
    _station->keys(QKeySequence::Undo);
    _station->keys(QKeySequence::Redo);
    QCOMPARE(text(), u"ET K"_s);
    QCOMPARE(_station->bench.written(), "");
}

void KeyboardViewEditingTest::stoppingForgetsWhatWasDone() {
    _station->pause();
    _station->keys(u"abc"_s);
    _station->keys(QKeySequence::SelectAll);
    _station->key(Qt::Key_Delete);
    QVERIFY(_station->view.canUndoTyping());
    _station->engine().stopMessageSending(nullptr);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u""_s);
    _station->keys(u"abc"_s);
    _station->keys(QKeySequence::Undo);
    QVERIFY(_station->view.canRedoTyping());
    _station->keys(u"d"_s);
    _station->engine().stopMessageSending(nullptr);
    QVERIFY(!_station->view.canUndoTyping());
    QVERIFY(!_station->view.canRedoTyping());
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u""_s);
}

void KeyboardViewEditingTest::breakInForgetsWhatWasDone() {
    _station->keys(u"cq test"_s);
    QVERIFY(_station->view.canUndoTyping());
    _station->bench.receive({0xC2});
    _station->keys(QKeySequence::Undo);
    _station->keys(QKeySequence::Redo);
    QCOMPARE(text(), u""_s);
    QCOMPARE(_station->bench.written(), "43");
}

void KeyboardViewEditingTest::theCaretGoesWhereTheTextChanged() {
    _station->pause();
    _station->keys(u"abcd"_s);
    _station->key(Qt::Key_Left);
    _station->key(Qt::Key_Left);
    _station->keys(u"x"_s);
    _station->key(Qt::Key_Home);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(_station->view.textCursor().position(), 2);
    _station->key(Qt::Key_Home);
    _station->keys(QKeySequence::Redo);
    QCOMPARE(_station->view.textCursor().position(), 3);
}

void KeyboardViewEditingTest::itIsToldWhatCanBeTakenBack() {
    const QSignalSpy undo(&_station->view, &KeyboardView::canUndoTypingChanged);
    const QSignalSpy redo(&_station->view, &KeyboardView::canRedoTypingChanged);
    _station->keys(u"et"_s);
    QCOMPARE(undo, (QList<QVariantList>{{true}}));
    _station->view.undoTyping();
    QCOMPARE(undo, (QList<QVariantList>{{true}, {false}}));
    QCOMPARE(redo, (QList<QVariantList>{{true}}));
    _station->view.redoTyping();
    QCOMPARE(redo, (QList<QVariantList>{{true}, {false}}));
    _station->echo();
    QCOMPARE(undo, (QList<QVariantList>{{true}, {false}, {true}, {false}}));
}

void KeyboardViewEditingTest::chooseFromContextMenu(const QString& name) {
    bool isChosen = false;
    QTimer::singleShot(0, &_station->view, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        if (auto* action = menu->findChild<QAction*>(name); action->isEnabled()) {
            action->trigger();
            isChosen = true;
        }
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                            _station->view.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(_station->view.viewport(), &event);
    QVERIFY2(isChosen, "disabled");
}

void KeyboardViewEditingTest::theContextMenuTakesBack() {
    _station->pause();
    _station->keys(u"abc"_s);
    chooseFromContextMenu(u"edit-undo"_s);
    QCOMPARE(text(), u""_s);
    chooseFromContextMenu(u"edit-redo"_s);
    QCOMPARE(text(), u"ABC"_s);
}

void KeyboardViewEditingTest::noTextIsKeyedTwiceWhateverIsTakenBack() {
    QRandomGenerator random(7);
    auto& engine = _station->engine();
    QByteArray keyed;
    for (int round = 0; round < 3000; ++round) {
        // The operator leaves alone what is sent already; taking back has to by itself.
        const auto from = static_cast<int>(engine.outputBufferIndex());
        const auto size = static_cast<int>(engine.keyboardBuffer().size());
        auto caret = _station->view.textCursor();
        caret.setPosition(from + random.bounded(size - from + 1));
        switch (random.bounded(8)) {
        case 0:
            _station->view.setTextCursor(caret);
            _station->keys(u"a b"_s.mid(random.bounded(3), 1));
            break;
        case 1:
            _station->view.moveCursor(QTextCursor::End);
            _station->keys(u"cd` "_s.mid(random.bounded(4), 1));
            break;
        case 2:
            _station->view.setTextCursor(caret);
            _station->key(Qt::Key_Delete);
            break;
        case 3:
            engine.appendMessage(u"tu ee"_s);
            break;
        case 4:
        case 5:
            _station->view.undoTyping();
            break;
        case 6:
            _station->view.redoTyping();
            break;
        default:
            _station->echo(random.bounded(4));
        }
        keyed += QByteArray::fromHex(_station->bench.written());
        QCOMPARE(QString::fromLatin1(keyed),
                 engine.keyboardBuffer().left(engine.outputBufferIndex()));
        QCOMPARE(_station->view.text(), engine.keyboardBuffer());
    }
    QVERIFY(keyed.size() > 500);
}

static const RegisteredTest<KeyboardViewEditingTest> registered;
#include "KeyboardViewEditingTest.moc"
