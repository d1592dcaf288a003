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
    void textWithoutSpacesIsBrokenAtLetters();
    void aLetterThatEndsAParagraphCanBeDeleted();
    void textWithFewSpacesIsBrokenAtLettersToo();
    void noCursorMovesWhenAParagraphBreaks_data();
    void noCursorMovesWhenAParagraphBreaks();
    void aParagraphEndCanBeDeletedLikeASpace();
    void theCaretStaysWithTheTextAroundAChange_data();
    void theCaretStaysWithTheTextAroundAChange();
    void lineEndsFromElsewhereBecomeSpaces_data();
    void lineEndsFromElsewhereBecomeSpaces();
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

void KeyboardTextTest::textWithoutSpacesIsBrokenAtLetters() {
    const auto text = u"PARIS"_s.repeated(1000) + u' ';
    _text->apply({0, {}, text});
    QCOMPARE(_text->text(), text);
    QCOMPARE_LE(longestParagraph(), KeyboardText::longestParagraph);
    const auto first = _document->firstBlock();
    const auto end = first.length() - 1;
    QCOMPARE(KeyboardText::hiddenLetter(first), text.at(end));
    QCOMPARE(_text->characterAt(end), text.at(end));
    QCOMPARE(_text->characterAt(end + 1), text.at(end + 1));
    QCOMPARE(KeyboardText::hiddenLetter(_document->lastBlock()), QChar());
}

void KeyboardTextTest::aLetterThatEndsAParagraphCanBeDeleted() {
    const auto text = u"PARIS"_s.repeated(1000);
    _text->apply({0, {}, text});
    const auto second = _document->firstBlock().next();
    const auto end = second.position() - 1;
    QTextCursor(second).deletePreviousChar();
    QCOMPARE(_text->text(), QString(text).remove(end, 1));
    _text->breakParagraphs();
    QCOMPARE(_text->text(), QString(text).remove(end, 1));
}

void KeyboardTextTest::textWithFewSpacesIsBrokenAtLettersToo() {
    const auto text = u"E"_s.repeated(3000) + u' ' + u"T"_s.repeated(3000) + u' ' + u"A"_s;
    _text->apply({0, {}, text});
    QCOMPARE(_text->text(), text);
    QCOMPARE_LE(longestParagraph(), KeyboardText::longestParagraph);
    QCOMPARE(_document->blockCount(), 8);
}

void KeyboardTextTest::noCursorMovesWhenAParagraphBreaks_data() {
    QTest::addColumn<QString>("word");
    QTest::addRow("at spaces") << u"PARIS "_s;
    QTest::addRow("at letters") << u"PARIS"_s;
}

void KeyboardTextTest::noCursorMovesWhenAParagraphBreaks() {
    QFETCH(const QString, word);
    const auto text = word.repeated(2000);
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

void KeyboardTextTest::lineEndsFromElsewhereBecomeSpaces_data() {
    QTest::addColumn<QString>("given");
    QTest::addColumn<QChar>("before");
    QTest::addColumn<QChar>("after");
    QTest::addColumn<QString>("line");
    const QChar none;
    QTest::addRow("each kind of line end") << u"a\r\nb\nc\rd\u2028e\u2029f\vg\fh\u0085i\ufdd0j"_s
                                           << none << none << u"a b c d e f g h i j"_s;
    QTest::addRow("a tab") << u"a\tb"_s << none << none << u"a b"_s;
    QTest::addRow("with spaces and empty lines around")
        << u"a \n\n\t b"_s << none << none << u"a b"_s;
    QTest::addRow("spaces alone stay") << u" a  b "_s << none << none << u" a  b "_s;
    QTest::addRow("at the very start") << u"\n a"_s << none << none << u"a"_s;
    QTest::addRow("behind a word") << u"\na"_s << QChar(u'x') << none << u" a"_s;
    QTest::addRow("behind a space") << u"\na"_s << QChar(u' ') << none << u"a"_s;
    QTest::addRow("at the end") << u"a\n"_s << none << none << u"a "_s;
    QTest::addRow("in front of a word") << u"a\n"_s << none << QChar(u'x') << u"a "_s;
    QTest::addRow("in front of a space") << u"a\n"_s << none << QChar(u' ') << u"a"_s;
    QTest::addRow("alone behind a word") << u"\n"_s << QChar(u'x') << none << u" "_s;
    QTest::addRow("alone behind a space") << u"\n"_s << QChar(u' ') << none << u""_s;
    QTest::addRow("alone in an empty text") << u"\n"_s << none << none << u""_s;
    QTest::addRow("nothing") << u""_s << none << none << u""_s;
}

void KeyboardTextTest::lineEndsFromElsewhereBecomeSpaces() {
    QFETCH(const QString, given);
    QFETCH(const QChar, before);
    QFETCH(const QChar, after);
    const auto line = KeyboardText::inOneLine(given, before, after);
    QTEST(line, "line");
    QTextCursor(&*_document).insertText(line);
    QCOMPARE(_document->blockCount(), 1);
}

void KeyboardTextTest::anySequenceOfChangesKeepsTheText() {
    QRandomGenerator random(5);
    QString expected;
    for (int round = 0; round < 2000; ++round) {
        const auto position = random.bounded(expected.size() + 1);
        const auto most = std::min<qsizetype>(expected.size() - position, 900);
        const auto removed = random.bounded(3) == 0 ? random.bounded(most + 1) : 0;
        const auto word = random.bounded(2) == 0 ? u"PARIS "_s : u"TEST"_s;
        const auto longest = random.bounded(20) == 0 ? 3000 : 600;
        const auto inserted = word.repeated(longest).left(random.bounded(longest));
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
