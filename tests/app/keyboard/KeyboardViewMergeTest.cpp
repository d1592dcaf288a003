#include "tests/app/keyboard/KeyboardStation.h"
#include "tests/support/RegisteredTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTextBlock>

#include <optional>

using namespace Qt::StringLiterals;

/// "{" and the two letters that it joins, typed into the keyboard view.
class KeyboardViewMergeTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void theThreeAreHandedOverTogether();
    void whatIsKeptBackIsShownUnderlined();
    void sendingGoesOnMeanwhile();
    void backspaceTakesBackOneByOne();
    void undoTakesItBack();
    void whatEndsTheEntryDropsIt_data();
    void whatEndsTheEntryDropsIt();
    void onlyLettersCount();
    void shiftAndTheFocusLeaveItAlone();
    void aMessageMeanwhileGoesAhead();
    void itGoesInsideTheText();
    void aPastedOneIsCompletedByTyping();
    void anInputMethodComposesBehindIt();
    void oneThatLosesALetterWaitsForIt_data();
    void oneThatLosesALetterWaitsForIt();
    void takingItApartIsUndone();
    void oneThatIsSentIsLeftAlone();
    void whatIsNoLetterTakesItApart_data();
    void whatIsNoLetterTakesItApart();
    void whatCannotBeTypedLeavesItWhole();
    void whatIsMadeAgainTakesItsPlace();

  private:
    [[nodiscard]] QString text() { return _station->engine().keyboardBuffer(); }
    [[nodiscard]] QByteArray written() { return _station->bench.written(); }
    [[nodiscard]] QString kept();

    std::optional<KeyboardStation> _station;
};

void KeyboardViewMergeTest::init() {
    _station.emplace();
    QVERIFY(_station->isReady);
}

/// What the view shows without having handed it over.
QString KeyboardViewMergeTest::kept() {
    QString found;
    const auto* document = _station->view.document();
    for (auto block = document->firstBlock(); block.isValid(); block = block.next()) {
        found += block.layout()->preeditAreaText();
    }
    return found;
}

void KeyboardViewMergeTest::theThreeAreHandedOverTogether() {
    _station->keys(u"{"_s);
    _station->keys(u"s"_s);
    QCOMPARE(text(), u""_s);
    QCOMPARE(written(), "");
    _station->keys(u"n"_s);
    QCOMPARE(text(), u"{SN"_s);
    QCOMPARE(_station->view.text(), u"{SN"_s);
    QCOMPARE(written(), "1b 53 4e");
    QCOMPARE(kept(), u""_s);
    // The sending goes on, which it would not had "{" come to the engine by itself.
    _station->echo(2);
    _station->keys(u"k"_s);
    QCOMPARE(written(), "4b");
    _station->echo();
    _station->keys(u"{ark"_s);
    QCOMPARE(written(), "1b 41 52 4b");
}

void KeyboardViewMergeTest::whatIsKeptBackIsShownUnderlined() {
    _station->pause();
    _station->keys(u"e{s"_s);
    QCOMPARE(kept(), u"{S"_s);
    QCOMPARE(_station->view.text(), u"E"_s);
    const auto formats = _station->view.document()->firstBlock().layout()->formats();
    QCOMPARE(formats.size(), 1);
    QCOMPARE(formats.constFirst().start, 1);
    QCOMPARE(formats.constFirst().length, 2);
    QVERIFY(formats.constFirst().format.fontUnderline());
}

void KeyboardViewMergeTest::sendingGoesOnMeanwhile() {
    _station->keys(u"cq{a"_s);
    QCOMPARE(written(), "43");
    _station->echo();
    QCOMPARE(written(), "51");
    _station->echo();
    QCOMPARE(kept(), u"{A"_s);
    _station->keys(u"r"_s);
    QCOMPARE(written(), "1b 41 52");
}

void KeyboardViewMergeTest::backspaceTakesBackOneByOne() {
    _station->pause();
    _station->keys(u"e{s"_s);
    _station->key(Qt::Key_Backspace);
    QCOMPARE(kept(), u"{"_s);
    _station->keys(u"a"_s);
    QCOMPARE(kept(), u"{A"_s);
    _station->key(Qt::Key_Backspace);
    _station->key(Qt::Key_Backspace);
    QCOMPARE(kept(), u""_s);
    QCOMPARE(text(), u"E"_s);
    _station->key(Qt::Key_Backspace);
    QCOMPARE(text(), u""_s);
}

void KeyboardViewMergeTest::undoTakesItBack() {
    _station->pause();
    _station->keys(u"e{s"_s);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(kept(), u""_s);
    QCOMPARE(text(), u"E"_s);
    _station->keys(u"{sn"_s);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u"E"_s);
}

void KeyboardViewMergeTest::whatEndsTheEntryDropsIt_data() {
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("result");
    QTest::addRow("an arrow") << u"an arrow"_s << u"NE"_s;
    QTest::addRow("a click") << u"a click"_s << u"EN"_s;
    QTest::addRow("Escape") << u"Escape"_s << u"EN"_s;
    QTest::addRow("a stop") << u"a stop"_s << u"N"_s;
    QTest::addRow("break-in") << u"break-in"_s << u"N"_s;
}

void KeyboardViewMergeTest::whatEndsTheEntryDropsIt() {
    QFETCH(const QString, way);
    _station->keys(u"e{s"_s);
    if (way == u"an arrow") {
        _station->key(Qt::Key_Left);
    } else if (way == u"a click") {
        QTest::mouseClick(_station->view.viewport(), Qt::LeftButton);
    } else if (way == u"Escape") {
        _station->key(Qt::Key_Escape);
    } else if (way == u"a stop") {
        _station->engine().stopMessageSending(nullptr);
    } else {
        _station->bench.receive({0xC6});
        _station->bench.receive({0xC0});
    }
    QCOMPARE(kept(), u""_s);
    _station->keys(u"n"_s);
    QTEST(text(), "result");
    QCOMPARE(_station->view.text(), text());
}

void KeyboardViewMergeTest::onlyLettersCount() {
    _station->keys(u"{{ !~`#|s"_s);
    QCOMPARE(kept(), u"{S"_s);
    _station->key(Qt::Key_Return);
    QCOMPARE(kept(), u"{S"_s);
    _station->keys(u"?"_s);
    QCOMPARE(text(), u"{S?"_s);
}

void KeyboardViewMergeTest::shiftAndTheFocusLeaveItAlone() {
    QWidget other;
    _station->keys(u"{s"_s);
    _station->key(Qt::Key_Shift, Qt::ShiftModifier);
    other.show();
    other.activateWindow();
    QTRY_VERIFY(!_station->view.hasFocus());
    _station->view.activateWindow();
    QTRY_VERIFY(_station->view.hasFocus());
    QCOMPARE(kept(), u"{S"_s);
    _station->keys(u"n"_s);
    QCOMPARE(text(), u"{SN"_s);
}

void KeyboardViewMergeTest::aMessageMeanwhileGoesAhead() {
    _station->pause();
    _station->keys(u"{s"_s);
    _station->engine().appendMessage(u"test"_s);
    QCOMPARE(kept(), u"{S"_s);
    _station->keys(u"n"_s);
    QCOMPARE(text(), u"TEST {SN"_s);
}

void KeyboardViewMergeTest::itGoesInsideTheText() {
    _station->pause();
    _station->keys(u"abcd"_s);
    _station->key(Qt::Key_Left);
    _station->key(Qt::Key_Left);
    _station->keys(u"{sn"_s);
    QCOMPARE(text(), u"AB{SNCD"_s);
    QCOMPARE(_station->view.text(), text());
    QCOMPARE(_station->view.textCursor().position(), 5);
}

void KeyboardViewMergeTest::aPastedOneIsCompletedByTyping() {
    _station->pause();
    QGuiApplication::clipboard()->setText(u"cq {sn de {a"_s);
    _station->keys(QKeySequence::Paste);
    QCOMPARE(text(), u"CQ {SN DE "_s);
    QCOMPARE(kept(), u"{A"_s);
    _station->keys(u"r"_s);
    QCOMPARE(text(), u"CQ {SN DE {AR"_s);
}

void KeyboardViewMergeTest::anInputMethodComposesBehindIt() {
    _station->keys(u"{"_s);
    QInputMethodEvent composing(u"k"_s, {});
    QApplication::sendEvent(&_station->view, &composing);
    QCOMPARE(kept(), u"{k"_s);
    QInputMethodEvent done;
    done.setCommitString(u"s"_s);
    QApplication::sendEvent(&_station->view, &done);
    QCOMPARE(kept(), u"{S"_s);
    _station->keys(u"n"_s);
    QCOMPARE(text(), u"{SN"_s);
}

void KeyboardViewMergeTest::oneThatLosesALetterWaitsForIt_data() {
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("waiting");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("result");
    QTest::addRow("Backspace") << u"Backspace"_s << u"{S"_s << u"k"_s << u"E {SK"_s;
    QTest::addRow("Backspace twice") << u"twice"_s << u"{"_s << u"ar"_s << u"E {AR"_s;
    QTest::addRow("Delete") << u"Delete"_s << u"{N"_s << u"k"_s << u"E {NK"_s;
    QTest::addRow("cut") << u"cut"_s << u"{"_s << u"ar"_s << u"E {AR"_s;
    QTest::addRow("typed over") << u"typed over"_s << u"{A"_s << u"r"_s << u"E {AR"_s;
    QTest::addRow("a screen reader") << u"reader"_s << u"{S"_s << u"k"_s << u"E {SK"_s;
}

void KeyboardViewMergeTest::oneThatLosesALetterWaitsForIt() {
    QFETCH(const QString, way);
    _station->pause();
    _station->keys(u"e {sn"_s);
    if (way == u"Delete") {
        _station->key(Qt::Key_Left);
        _station->key(Qt::Key_Left);
        _station->key(Qt::Key_Delete);
    } else if (way == u"cut" || way == u"typed over") {
        _station->key(Qt::Key_Left, Qt::ShiftModifier);
        _station->key(Qt::Key_Left, Qt::ShiftModifier);
        if (way == u"cut") {
            _station->keys(QKeySequence::Cut);
        } else {
            _station->keys(u"a"_s);
        }
    } else if (way == u"reader") {
        _station->view.replaceText(4, 5, {});
    } else {
        _station->key(Qt::Key_Backspace);
        if (way == u"twice") {
            _station->key(Qt::Key_Backspace);
        }
    }
    QTEST(kept(), "waiting");
    QCOMPARE(text(), u"E "_s);
    QCOMPARE(_station->view.text(), text());
    QFETCH(const QString, typed);
    _station->keys(typed);
    QTEST(text(), "result");
    QCOMPARE(kept(), u""_s);
    QCOMPARE(_station->view.text(), text());
}

void KeyboardViewMergeTest::takingItApartIsUndone() {
    _station->pause();
    _station->keys(u"e {sn"_s);
    _station->key(Qt::Key_Backspace);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(kept(), u""_s);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u"E {SN"_s);
    _station->key(Qt::Key_Backspace);
    _station->key(Qt::Key_Backspace);
    _station->key(Qt::Key_Backspace);
    _station->key(Qt::Key_Backspace);
    QCOMPARE(text(), u"E"_s);
    QCOMPARE(kept(), u""_s);
    _station->resume();
    _station->echo();
    _station->keys(u"k"_s);
    QCOMPARE(_station->bench.written(), "06 00 45 4b");
}

/// The keyer has it, and nothing of it is to be sent again.
void KeyboardViewMergeTest::oneThatIsSentIsLeftAlone() {
    _station->keys(u"{sn"_s);
    _station->echo(2);
    _station->key(Qt::Key_Backspace);
    QCOMPARE(text(), u"{S"_s);
    QCOMPARE(kept(), u""_s);
    static_cast<void>(written());
    _station->keys(u"k"_s);
    QCOMPARE(written(), "4b");
}

void KeyboardViewMergeTest::whatIsNoLetterTakesItApart_data() {
    QTest::addColumn<QString>("way");
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("waiting");
    QTest::addColumn<QString>("rest");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("result");
    QTest::addRow("a space between its letters")
        << u" "_s << 4 << u"{A"_s << u"E  RT"_s << u"n"_s << u"E {AN RT"_s;
    QTest::addRow("a space ahead of them")
        << u" "_s << 3 << u"{"_s << u"E  ART"_s << u"sn"_s << u"E {SN ART"_s;
    QTest::addRow("a token") << u"~"_s << 4 << u"{A"_s << u"E ~RT"_s << u"n"_s << u"E {AN~RT"_s;
    QTest::addRow("my call") << u"`"_s << 4 << u"{A"_s << u"E N0CALLRT"_s << u"n"_s
                             << u"E {ANN0CALLRT"_s;
    QTest::addRow("another merge")
        << u"{sn"_s << 4 << u"{A"_s << u"E {SNRT"_s << u"n"_s << u"E {AN{SNRT"_s;
}

void KeyboardViewMergeTest::whatIsNoLetterTakesItApart() {
    QFETCH(const QString, way);
    QFETCH(const int, place);
    QFETCH(const QString, typed);
    _station->pause();
    _station->keys(u"e {art"_s);
    auto caret = _station->view.textCursor();
    caret.setPosition(place);
    _station->view.setTextCursor(caret);
    _station->keys(way);
    QTEST(text(), "rest");
    QTEST(kept(), "waiting");
    QCOMPARE(_station->view.text(), text());
    _station->keys(typed);
    QTEST(text(), "result");
    QCOMPARE(kept(), u""_s);
    QCOMPARE(_station->view.text(), text());
}

void KeyboardViewMergeTest::whatCannotBeTypedLeavesItWhole() {
    _station->pause();
    _station->keys(u"{ar"_s);
    _station->key(Qt::Key_Left);
    _station->keys(u"!"_s);
    QCOMPARE(text(), u"{AR"_s);
    QCOMPARE(kept(), u""_s);
    _station->keys(u"s"_s);
    QCOMPARE(text(), u"{ASR"_s);
}

void KeyboardViewMergeTest::whatIsMadeAgainTakesItsPlace() {
    _station->pause();
    _station->keys(u"ab"_s);
    _station->keys(QKeySequence::Undo);
    _station->keys(u"{s"_s);
    _station->keys(QKeySequence::Redo);
    QCOMPARE(text(), u"AB"_s);
    QCOMPARE(kept(), u""_s);
}

static const RegisteredTest<KeyboardViewMergeTest> registered;
#include "KeyboardViewMergeTest.moc"
