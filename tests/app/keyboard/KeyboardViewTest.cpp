#include "app/keyboard/KeyboardView.h"

#include "keyer/GeneralSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

class KeyboardViewTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void typedKeysReachTheEngineAndTheKeyer();
    void whatCannotBeKeyedDoesNotStay();
    void ownCallIsSubstitutedAtOnceWithTheCaretBehindIt();
    void pastedTextIsFiltered();
    void whatTheEngineAddsShows();
    void theCaretStaysWhileTheEngineAdds();
    void theSelectionStaysWhileTheEngineAdds();
    void aClearedTextShowsEmpty();
    void deletingEverythingStartsOver();
    void theEnginesTextShowsFromTheStart();
    void nothingIsSentAgainByUndo();

  private:
    std::optional<EngineBench> _bench;
    std::optional<KeyboardView> _view;
};

void KeyboardViewTest::init() {
    _bench.emplace();
    _bench->settings().setObject(u"N0CALL"_s, MyCall);
    QVERIFY(_bench->connect());
    _view.emplace(_bench->engine());
    _view->show();
    _view->setFocus();
}

void KeyboardViewTest::cleanup() {
    _view.reset();
    _bench.reset();
}

void KeyboardViewTest::typedKeysReachTheEngineAndTheKeyer() {
    QTest::keyClicks(&*_view, u"cq"_s);
    QCOMPARE(_view->toPlainText(), u"CQ"_s);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"CQ"_s);
    QCOMPARE(_bench->written(), "43");
    _bench->receive({'C'});
    QCOMPARE(_bench->written(), "51");
}

void KeyboardViewTest::whatCannotBeKeyedDoesNotStay() {
    QTest::keyClicks(&*_view, u"a!b_"_s);
    QTest::keyClicks(&*_view, u"c"_s);
    QCOMPARE(_view->toPlainText(), u"ABC"_s);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"ABC"_s);
}

void KeyboardViewTest::ownCallIsSubstitutedAtOnceWithTheCaretBehindIt() {
    QTest::keyClicks(&*_view, u"de `"_s);
    QCOMPARE(_view->toPlainText(), u"DE N0CALL"_s);
    QTest::keyClicks(&*_view, u"k"_s);
    QCOMPARE(_view->toPlainText(), u"DE N0CALLK"_s);
}

void KeyboardViewTest::pastedTextIsFiltered() {
    QGuiApplication::clipboard()->setText(u"a!!b"_s);
    _view->paste();
    QCOMPARE(_view->toPlainText(), u"A!B"_s);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"A!B"_s);
}

void KeyboardViewTest::whatTheEngineAddsShows() {
    _bench->engine().appendMessage(u"test"_s);
    QCOMPARE(_view->toPlainText(), u"TEST"_s);
    QTest::keyClicks(&*_view, u" e"_s);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"TEST E"_s);
}

void KeyboardViewTest::theCaretStaysWhileTheEngineAdds() {
    QTest::keyClicks(&*_view, u"abc"_s);
    QTest::keyClick(&*_view, Qt::Key_Left);
    _bench->engine().appendMessage(u"test"_s);
    QCOMPARE(_view->textCursor().position(), 2);
    QTest::keyClicks(&*_view, u"x"_s);
    QCOMPARE(_view->toPlainText(), u"ABXC TEST"_s);
}

void KeyboardViewTest::theSelectionStaysWhileTheEngineAdds() {
    QTest::keyClicks(&*_view, u"abc"_s);
    QTest::keyClick(&*_view, Qt::Key_Home);
    QTest::keyClick(&*_view, Qt::Key_Right, Qt::ShiftModifier);
    _bench->engine().appendMessage(u"test"_s);
    QCOMPARE(_view->textCursor().selectedText(), u"A"_s);
}

void KeyboardViewTest::aClearedTextShowsEmpty() {
    QTest::keyClicks(&*_view, u"abc"_s);
    _bench->engine().stopMessageSending(nullptr);
    QCOMPARE(_view->toPlainText(), u""_s);
}

void KeyboardViewTest::deletingEverythingStartsOver() {
    QTest::keyClicks(&*_view, u"a"_s);
    _bench->receive({'A'});
    QTest::keyClick(&*_view, Qt::Key_Backspace);
    QCOMPARE(_bench->engine().outputBufferIndex(), 0);
    QTest::keyClicks(&*_view, u"b"_s);
    QCOMPARE(_bench->written(), "41 42");
}

void KeyboardViewTest::theEnginesTextShowsFromTheStart() {
    _bench->engine().appendMessage(u"test"_s);
    const KeyboardView second(_bench->engine());
    QCOMPARE(second.toPlainText(), u"TEST"_s);
}

void KeyboardViewTest::nothingIsSentAgainByUndo() {
    QTest::keyClicks(&*_view, u"e"_s);
    _bench->receive({'E'});
    _bench->receive({0xC2});
    QCOMPARE(_bench->written(), "45");
    QTest::keySequence(&*_view, QKeySequence::Undo);
    QCOMPARE(_view->toPlainText(), u""_s);
    QCOMPARE(_bench->written(), "");
}

static const RegisteredTest<KeyboardViewTest> registered;
#include "KeyboardViewTest.moc"
