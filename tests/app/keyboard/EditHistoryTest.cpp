#include "app/keyboard/EditHistory.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// A text with its history, of which the first `handedOver` characters are sent.
struct EditedText {
    QString text;
    qsizetype handedOver = 0;
    EditHistory history;

    void become(const QString& next, EditHistory::Kind kind = EditHistory::Kind::Whole) {
        history.record(TextChange::between(text, next), handedOver, kind);
        text = next;
    }

    void type(const QString& characters) {
        for (const auto& character : characters) {
            become(text + character, EditHistory::Kind::Typed);
        }
    }

    void backspace(int count) {
        for (int i = 0; i < count; ++i) {
            become(text.chopped(1), EditHistory::Kind::Typed);
        }
    }

    void send(qsizetype count) {
        handedOver += count;
        history.handOver(handedOver);
    }

    [[nodiscard]] bool undo() { return apply(history.undo()); }
    [[nodiscard]] bool redo() { return apply(history.redo()); }

  private:
    [[nodiscard]] bool apply(const std::optional<EditHistory::Step>& step) {
        if (!step) {
            return false;
        }
        text = step->change.appliedTo(text);
        return true;
    }
};

class EditHistoryTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void anEditIsTakenBackAndMadeAgain();
    void typedWordsAreOneStepEach();
    void backspacesAreOneStep();
    void deletesForwardAreOneStep();
    void aWholeEditIsAStepOfItsOwn();
    void typingElsewhereBeginsAStep();
    void typingAfterUndoBeginsAStep();
    void anEditForgetsWhatWasTakenBack();
    void handedOverTextIsNotTakenBack();
    void whatStillWaitsIsTakenBackDownToTheHandedOver();
    void whatWasTakenBackIsNotMadeAgainAmongHandedOverText();
    void aChangeOfHandedOverTextEndsTheHistory();
    void clearingForgetsAll();
};

void EditHistoryTest::anEditIsTakenBackAndMadeAgain() {
    EditedText edited;
    QVERIFY(!edited.undo());
    QVERIFY(!edited.redo());
    edited.become(u"CQ"_s);
    edited.become(u"CQ TEST"_s);
    QVERIFY(edited.undo());
    QCOMPARE(edited.text, u"CQ"_s);
    QVERIFY(edited.undo());
    QCOMPARE(edited.text, u""_s);
    QVERIFY(!edited.undo());
    QVERIFY(edited.redo());
    QVERIFY(edited.redo());
    QCOMPARE(edited.text, u"CQ TEST"_s);
    QVERIFY(!edited.redo());
}

void EditHistoryTest::typedWordsAreOneStepEach() {
    EditedText edited;
    edited.type(u"CQ  TEST"_s);
    QVERIFY(edited.undo());
    QCOMPARE(edited.text, u"CQ  "_s);
    QVERIFY(edited.undo());
    QCOMPARE(edited.text, u""_s);
}

void EditHistoryTest::backspacesAreOneStep() {
    EditedText edited;
    edited.become(u"ABCD"_s);
    edited.backspace(3);
    QVERIFY(edited.undo());
    QCOMPARE(edited.text, u"ABCD"_s);
    QVERIFY(edited.redo());
    QCOMPARE(edited.text, u"A"_s);
}

void EditHistoryTest::deletesForwardAreOneStep() {
    EditedText edited;
    edited.become(u"ABCD"_s);
    edited.become(u"ACD"_s, EditHistory::Kind::Typed);
    edited.become(u"AD"_s, EditHistory::Kind::Typed);
    QVERIFY(edited.undo());
    QCOMPARE(edited.text, u"ABCD"_s);
}

void EditHistoryTest::aWholeEditIsAStepOfItsOwn() {
    EditedText edited;
    edited.type(u"A"_s);
    edited.become(u"AB"_s);
    edited.type(u"C"_s);
    QVERIFY(edited.undo());
    QCOMPARE(edited.text, u"AB"_s);
    QVERIFY(edited.undo());
    QCOMPARE(edited.text, u"A"_s);
}

void EditHistoryTest::typingElsewhereBeginsAStep() {
    EditedText edited;
    edited.type(u"AB"_s);
    edited.become(u"XAB"_s, EditHistory::Kind::Typed);
    QVERIFY(edited.undo());
    QCOMPARE(edited.text, u"AB"_s);
}

void EditHistoryTest::typingAfterUndoBeginsAStep() {
    EditedText edited;
    edited.type(u"A B"_s);
    QVERIFY(edited.undo());
    QVERIFY(edited.redo());
    edited.type(u"C"_s);
    QVERIFY(edited.undo());
    QCOMPARE(edited.text, u"A B"_s);
}

void EditHistoryTest::anEditForgetsWhatWasTakenBack() {
    EditedText edited;
    edited.become(u"A"_s);
    QVERIFY(edited.undo());
    edited.become(u"B"_s);
    QVERIFY(!edited.redo());
}

void EditHistoryTest::handedOverTextIsNotTakenBack() {
    EditedText edited;
    edited.become(u"CQ"_s);
    edited.send(1);
    QVERIFY(!edited.history.canUndo());
    QVERIFY(!edited.undo());
    QCOMPARE(edited.text, u"CQ"_s);
}

void EditHistoryTest::whatStillWaitsIsTakenBackDownToTheHandedOver() {
    EditedText edited;
    edited.type(u"CQ DE "_s);
    edited.send(1);
    edited.type(u"K"_s);
    QVERIFY(edited.undo());
    QVERIFY(edited.undo());
    QCOMPARE(edited.text, u"CQ "_s);
    QVERIFY(!edited.undo());
}

void EditHistoryTest::whatWasTakenBackIsNotMadeAgainAmongHandedOverText() {
    EditedText edited;
    edited.become(u"AB CD"_s);
    edited.become(u"XAB CD"_s);
    QVERIFY(edited.undo());
    edited.send(1);
    QVERIFY(!edited.history.canRedo());
    QVERIFY(!edited.redo());
}

void EditHistoryTest::aChangeOfHandedOverTextEndsTheHistory() {
    EditedText edited;
    edited.become(u"AB"_s);
    edited.become(u"ABCD"_s);
    edited.send(2);
    edited.become(u"A"_s);
    edited.handedOver = 0;
    QVERIFY(!edited.undo());
    edited.become(u"AB"_s);
    QVERIFY(edited.undo());
    QVERIFY(!edited.undo());
}

void EditHistoryTest::clearingForgetsAll() {
    EditedText edited;
    edited.become(u"A"_s);
    edited.become(u"AB"_s);
    QVERIFY(edited.undo());
    edited.history.clear();
    QVERIFY(!edited.history.canUndo());
    QVERIFY(!edited.history.canRedo());
}

static const RegisteredTest<EditHistoryTest> registered;
#include "EditHistoryTest.moc"
