#include "app/keyboard/KeyboardText.h"

#include "tests/support/RegisteredTest.h"

#include <QPlainTextDocumentLayout>
#include <QRandomGenerator>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

class KeyboardTextTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();

    void longTextIsBrokenAtSpaces();
    void textWithoutSpacesStaysInOnePiece();
    void textWithFewSpacesIsBrokenAtThem();
    void noCursorMovesWhenAParagraphBreaks();
    void aParagraphEndCanBeDeletedLikeASpace();
    void theCaretStaysWithTheTextAroundAChange_data();
    void theCaretStaysWithTheTextAroundAChange();
    void lineEndsFromElsewhereBecomeTabs();
    void anySequenceOfChangesKeepsTheText();

  private:
    [[nodiscard]] int longestParagraph() const;

    std::optional<QTextDocument> _document;
    std::optional<KeyboardText> _text;
};

void KeyboardTextTest::init() {
    _text.reset();
    _document.emplace();
    _document->setDocumentLayout(new QPlainTextDocumentLayout(&*_document));
    _document->setUndoRedoEnabled(false);
    _text.emplace(*_document);
}

int KeyboardTextTest::longestParagraph() const {
    int longest = 0;
    for (auto block = _document->firstBlock(); block.isValid(); block = block.next()) {
        longest = std::max(longest, block.length() - 1);
    }
    return longest;
}

void KeyboardTextTest::longTextIsBrokenAtSpaces() {
    const auto text = u"PARIS "_s.repeated(2000);
    _text->apply({0, {}, text});
    QCOMPARE(_text->text(), text);
    QCOMPARE_LE(longestParagraph(), KeyboardText::longestParagraph);
    QCOMPARE_GE(longestParagraph(), KeyboardText::longestParagraph / 2);
}

void KeyboardTextTest::textWithoutSpacesStaysInOnePiece() {
    const auto text = u"E"_s.repeated(5000) + u' ';
    _text->apply({0, {}, text});
    QCOMPARE(_text->text(), text);
    QCOMPARE(_document->blockCount(), 1);
}

void KeyboardTextTest::textWithFewSpacesIsBrokenAtThem() {
    const auto text = u"E"_s.repeated(3000) + u' ' + u"T"_s.repeated(3000) + u' ' + u"A"_s;
    _text->apply({0, {}, text});
    QCOMPARE(_text->text(), text);
    QCOMPARE(_document->blockCount(), 3);
}

void KeyboardTextTest::noCursorMovesWhenAParagraphBreaks() {
    const auto text = u"PARIS "_s.repeated(2000);
    QTextCursor(&*_document).insertText(text);
    QList<QTextCursor> cursors;
    for (int i = 0; i < text.size(); ++i) {
        cursors.append(QTextCursor(&*_document));
        cursors.last().setPosition(i);
    }
    _text->breakParagraphs();
    QVERIFY(_document->blockCount() > 5);
    for (int i = 0; i < text.size(); ++i) {
        QCOMPARE(cursors.at(i).position(), i);
    }
}

void KeyboardTextTest::aParagraphEndCanBeDeletedLikeASpace() {
    _text->apply({0, {}, u"PARIS "_s.repeated(2000)});
    const auto second = _document->firstBlock().next();
    QTextCursor cursor(second);
    cursor.deletePreviousChar();
    QCOMPARE(_text->text().size(), 11999);
    _text->breakParagraphs();
    QCOMPARE(_text->text().size(), 11999);
    QCOMPARE(_text->text().count(u' '), 1999);
}

void KeyboardTextTest::theCaretStaysWithTheTextAroundAChange_data() {
    QTest::addColumn<TextChange>("change");
    QTest::addColumn<int>("caret");
    QTest::addColumn<int>("moved");
    const TextChange replacement{1, u"BC"_s, u"XYZ"_s};
    QTest::addRow("before it") << replacement << 0 << 0;
    QTest::addRow("at its beginning") << replacement << 1 << 1;
    QTest::addRow("at its end") << replacement << 3 << 4;
    QTest::addRow("behind it") << replacement << 4 << 5;
    QTest::addRow("at the end of a text that is added to") << TextChange{4, {}, u" K"_s} << 4 << 6;
}

void KeyboardTextTest::theCaretStaysWithTheTextAroundAChange() {
    QFETCH(const TextChange, change);
    QFETCH(const int, caret);
    _text->apply({0, {}, u"ABCD"_s});
    QTextCursor cursor(&*_document);
    cursor.setPosition(caret);
    _text->apply(change);
    QTEST(cursor.position(), "moved");
}

void KeyboardTextTest::lineEndsFromElsewhereBecomeTabs() {
    QCOMPARE(KeyboardText::withoutLineEnds(u"a\r\nb\nc\rd\u2028e\u2029f\vg\fh\u0085i j"_s),
             u"a\tb\tc\td\te\tf\tg\th\ti j"_s);
    QTextCursor(&*_document).insertText(KeyboardText::withoutLineEnds(u"a\r\nb\u2029c\ufdd0d"_s));
    QCOMPARE(_document->blockCount(), 1);
}

void KeyboardTextTest::anySequenceOfChangesKeepsTheText() {
    QRandomGenerator random(5);
    QString expected;
    for (int round = 0; round < 2000; ++round) {
        const auto position = random.bounded(expected.size() + 1);
        const auto most = std::min<qsizetype>(expected.size() - position, 900);
        const auto removed = random.bounded(3) == 0 ? random.bounded(most + 1) : 0;
        const auto inserted = u"PARIS "_s.repeated(random.bounded(100)).left(random.bounded(600));
        const TextChange change{position, expected.mid(position, removed), inserted};
        expected = change.appliedTo(expected);
        _text->apply(change);
        QCOMPARE(_text->text(), expected);
        QCOMPARE_LE(longestParagraph(), KeyboardText::longestParagraph);
        if (expected.size() > 20000) {
            _text->apply({0, expected, {}});
            expected.clear();
        }
    }
}

static const RegisteredTest<KeyboardTextTest> registered;
#include "KeyboardTextTest.moc"
