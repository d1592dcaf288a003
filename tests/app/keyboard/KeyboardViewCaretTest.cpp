#include "tests/app/keyboard/KeyboardStation.h"
#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>

#include <optional>

using namespace Qt::StringLiterals;

/// The caret where typing would have the keyer send again what it has been given.
class KeyboardViewCaretTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void itIsToldAndLooksDifferent();
    void behindWhatIsSentItIsAsEver();
    void sendingThatPassesTheCaretIsNoticed();
    void aSelectionThatReachesIntoSentTextCounts();
    void emptyingTheTextEndsIt();
    void endLeadsToTheVeryEnd();
    void inWaitingTextEndLeadsToTheEndOfTheLine();
    void withoutTheKeyboardItDoesNotMatter();

  private:
    [[nodiscard]] bool isInSentText() { return _station->view.isCaretInSentText(); }

    std::optional<KeyboardStation> _station;
};

void KeyboardViewCaretTest::init() {
    _station.emplace();
    QVERIFY(_station->isReady);
    QTRY_VERIFY(_station->view.hasFocus());
}

void KeyboardViewCaretTest::itIsToldAndLooksDifferent() {
    _station->keys(u"test"_s);
    const auto width = _station->view.cursorWidth();
    const QSignalSpy changes(&_station->view, &KeyboardView::caretInSentTextChanged);
    QVERIFY(!isInSentText());
    _station->key(Qt::Key_Home);
    QVERIFY(isInSentText());
    QCOMPARE(changes.size(), 1);
    QVERIFY(_station->view.cursorWidth() >= 2 * width);
    _station->key(Qt::Key_End);
    QVERIFY(!isInSentText());
    QCOMPARE(changes.size(), 2);
    QCOMPARE(_station->view.cursorWidth(), width);
}

void KeyboardViewCaretTest::behindWhatIsSentItIsAsEver() {
    _station->keys(u"test"_s);
    _station->key(Qt::Key_Home);
    _station->key(Qt::Key_Right);
    // "T" is on its way, and what is typed now is next.
    QVERIFY(!isInSentText());
    _station->keys(u"a"_s);
    _station->echo();
    QCOMPARE(_station->bench.written(), "54 41");
}

void KeyboardViewCaretTest::sendingThatPassesTheCaretIsNoticed() {
    _station->keys(u"test"_s);
    _station->key(Qt::Key_Left);
    _station->key(Qt::Key_Left);
    _station->echo();
    QVERIFY(!isInSentText());
    _station->echo();
    QVERIFY(isInSentText());
}

void KeyboardViewCaretTest::aSelectionThatReachesIntoSentTextCounts() {
    _station->keys(u"test"_s);
    _station->key(Qt::Key_Home, Qt::ShiftModifier);
    QVERIFY(isInSentText());
    _station->key(Qt::Key_End);
    QVERIFY(!isInSentText());
}

void KeyboardViewCaretTest::emptyingTheTextEndsIt() {
    _station->keys(u"test"_s);
    _station->key(Qt::Key_Home);
    _station->engine().stopMessageSending(nullptr);
    QVERIFY(!isInSentText());
}

void KeyboardViewCaretTest::endLeadsToTheVeryEnd() {
    const auto words = u"PARIS "_s.repeated(40);
    _station->engine().appendMessage(words);
    _station->key(Qt::Key_Home, Qt::ControlModifier);
    QVERIFY(isInSentText());
    _station->key(Qt::Key_End);
    QCOMPARE(_station->view.textCursor().position(), words.size());
}

void KeyboardViewCaretTest::inWaitingTextEndLeadsToTheEndOfTheLine() {
    const auto words = u"PARIS "_s.repeated(40);
    _station->engine().appendMessage(words);
    _station->key(Qt::Key_Home, Qt::ControlModifier);
    _station->key(Qt::Key_Right);
    QVERIFY(!isInSentText());
    _station->key(Qt::Key_End);
    QVERIFY(_station->view.textCursor().position() < words.size());
}

void KeyboardViewCaretTest::withoutTheKeyboardItDoesNotMatter() {
    _station->keys(u"test"_s);
    _station->key(Qt::Key_Home);
    QWidget other;
    other.show();
    other.activateWindow();
    QTRY_VERIFY(!isInSentText());
    _station->view.activateWindow();
    QTRY_VERIFY(isInSentText());
}

static const RegisteredTest<KeyboardViewCaretTest> registered;
#include "KeyboardViewCaretTest.moc"
