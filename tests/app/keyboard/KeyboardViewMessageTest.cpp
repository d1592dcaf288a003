#include "tests/app/keyboard/KeyboardStation.h"
#include "tests/support/RegisteredTest.h"

#include <QRandomGenerator>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

/// The space between a message and what is typed behind it, wherever edits move them.
class KeyboardViewMessageTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void anEditAheadMovesIt_data();
    void anEditAheadMovesIt();
    void takingBackMovesIt();
    void wordsThatAreTakenOutLeaveItApart_data();
    void wordsThatAreTakenOutLeaveItApart();
    void aMessageThatIsTakenBackHasNoEnd();
    void aCorrectedMessageIsGoneOnWith();
    void itIsThereWhateverIsDone();

  private:
    [[nodiscard]] QString text() { return _station->engine().keyboardBuffer(); }

    std::optional<KeyboardStation> _station;
};

void KeyboardViewMessageTest::init() {
    _station.emplace();
    QVERIFY(_station->isReady);
    _station->pause();
}

void KeyboardViewMessageTest::anEditAheadMovesIt_data() {
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("result");
    QTest::addRow("typed") << u"typed"_s << u"XUR TT1 TU"_s;
    QTest::addRow("deleted") << u"deleted"_s << u"R TT1 TU"_s;
    QTest::addRow("deleted and taken back") << u"taken back"_s << u"UR TT1 TU"_s;
    QTest::addRow("deleted, taken back and made again") << u"made again"_s << u"R TT1 TU"_s;
}

void KeyboardViewMessageTest::anEditAheadMovesIt() {
    QFETCH(const QString, way);
    _station->engine().appendMessage(u"ur tt1"_s);
    _station->key(Qt::Key_Home);
    if (way == u"typed") {
        _station->keys(u"x"_s);
    } else {
        _station->key(Qt::Key_Delete);
    }
    if (way == u"taken back" || way == u"made again") {
        _station->keys(QKeySequence::Undo);
    }
    if (way == u"made again") {
        _station->keys(QKeySequence::Redo);
    }
    _station->key(Qt::Key_End);
    _station->keys(u"tu"_s);
    QTEST(text(), "result");
}

void KeyboardViewMessageTest::takingBackMovesIt() {
    _station->engine().appendMessage(u"tt1"_s);
    _station->key(Qt::Key_Backspace);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u"TT1"_s);
    _station->keys(u"tu"_s);
    QCOMPARE(text(), u"TT1 TU"_s);
    _station->key(Qt::Key_Backspace);
    _station->key(Qt::Key_Backspace);
    _station->key(Qt::Key_Backspace);
    _station->keys(QKeySequence::Undo);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u"TT1"_s);
    _station->keys(u"k"_s);
    QCOMPARE(text(), u"TT1 K"_s);
}

void KeyboardViewMessageTest::wordsThatAreTakenOutLeaveItApart_data() {
    QTest::addColumn<int>("letters");
    QTest::addColumn<QString>("result");
    QTest::addRow("what was typed") << 3 << u"UR TT1 K"_s;
    QTest::addRow("a word of the message's own, too") << 7 << u"UR K"_s;
}

void KeyboardViewMessageTest::wordsThatAreTakenOutLeaveItApart() {
    QFETCH(const int, letters);
    _station->engine().appendMessage(u"ur tt1"_s);
    _station->keys(u"tu"_s);
    for (int i = 0; i < letters; ++i) {
        _station->key(Qt::Key_Left, Qt::ShiftModifier);
    }
    _station->key(Qt::Key_Delete);
    _station->keys(u"k"_s);
    QTEST(text(), "result");
}

void KeyboardViewMessageTest::aMessageThatIsTakenBackHasNoEnd() {
    _station->keys(u"e"_s);
    _station->engine().appendMessage(u"tt1"_s);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u"E"_s);
    _station->keys(u"abcdefg"_s);
    QCOMPARE(text(), u"EABCDEFG"_s);
    _station->keys(QKeySequence::Undo);
    _station->engine().appendMessage(u"tt1"_s);
    _station->engine().appendMessage(u"nh"_s);
    _station->keys(QKeySequence::Undo);
    _station->keys(u"k"_s);
    QVERIFY2(text().endsWith(u" TT1 K"), qPrintable(text()));
}

void KeyboardViewMessageTest::aCorrectedMessageIsGoneOnWith() {
    _station->engine().appendMessage(u"tt1"_s);
    _station->key(Qt::Key_Backspace);
    _station->keys(u"2"_s);
    QCOMPARE(text(), u"TT2"_s);
}

/// A letter typed at the end, right behind a message, is never a letter of its last word.
void KeyboardViewMessageTest::itIsThereWhateverIsDone() {
    QRandomGenerator random(11);
    for (int round = 0; round < 400; ++round) {
        _station->engine().clearSending();
        _station->keys(u"ab "_s.left(random.bounded(4)));
        _station->engine().appendMessage(u"tt nn"_s);
        for (int edits = random.bounded(5); edits > 0; --edits) {
            auto caret = _station->view.textCursor();
            caret.setPosition(random.bounded(std::max(1, static_cast<int>(text().size()) - 5)));
            _station->view.setTextCursor(caret);
            switch (random.bounded(4)) {
            case 0:
                _station->keys(u"x"_s);
                break;
            case 1:
                _station->key(Qt::Key_Delete);
                break;
            case 2:
                _station->keys(u" y"_s);
                break;
            default:
                if (!text().endsWith(u"NN")) {
                    break;
                }
                _station->keys(QKeySequence::Undo);
                if (!text().endsWith(u"NN")) {
                    _station->keys(QKeySequence::Redo); // the message itself was taken back
                }
            }
            if (text().size() < 6) {
                break;
            }
        }
        if (!text().endsWith(u"NN")) {
            continue;
        }
        _station->key(Qt::Key_End);
        _station->keys(u"tu"_s);
        QVERIFY2(text().endsWith(u"NN TU"), qPrintable(text()));
    }
}

static const RegisteredTest<KeyboardViewMessageTest> registered;
#include "KeyboardViewMessageTest.moc"
