#include "app/keyboard/KeyboardText.h"

#include <QAbstractTextDocumentLayout>
#include <QList>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>

#include <algorithm>

namespace {

/// Paragraphs are broken to less than the longest, so that typing does not break one each time.
constexpr qsizetype wantedParagraph = KeyboardText::longestParagraph * 3 / 4;

/// Of the format of a paragraph's end: the letter that it stands for, where it is not a space.
constexpr int letterProperty = QTextFormat::UserProperty + 1;

/// A paragraph longer than this is laid out only after it is broken.
constexpr qsizetype longestLaidOut = KeyboardText::longestParagraph * 5 / 4;

/// The last space by which a line on the screen ends, where the paragraph is best broken; -1 when
/// there is none. Broken there, the paragraph looks as it did.
qsizetype wrappingSpace(const QTextBlock& paragraph, const QString& text) {
    if (text.size() > longestLaidOut) {
        return -1;
    }
    static_cast<void>(paragraph.document()->documentLayout()->blockBoundingRect(paragraph));
    const auto* layout = paragraph.layout();
    qsizetype found = -1;
    for (int i = 0; i + 1 < layout->lineCount(); ++i) {
        const auto line = layout->lineAt(i);
        const qsizetype last = line.textStart() + line.textLength() - 1;
        if (last > wantedParagraph / 2 && last <= wantedParagraph && text.at(last) == u' ') {
            found = last;
        }
    }
    return found;
}

/// Where the paragraph that begins at `start` and is too long is best broken. A sign whose call may
/// have to be shown is the last choice: an end has no place for it.
qsizetype breakAfter(const QString& text, qsizetype start) {
    // Not the whole text's: that would be looked through anew for each paragraph.
    const auto space = QStringView(text).mid(start, wantedParagraph + 1).lastIndexOf(u' ');
    if (space > 0) {
        return start + space;
    }
    auto letter = start + wantedParagraph;
    while (letter > start && text.at(letter) == u'~') {
        --letter;
    }
    return letter > start ? letter : start + wantedParagraph;
}

/// Where `text` is to be broken, in rising order. A space at the very end stays.
QList<qsizetype> breaksIn(const QString& text) {
    QList<qsizetype> breaks;
    qsizetype start = 0;
    while (text.size() - start > KeyboardText::longestParagraph) {
        const auto end = breakAfter(text, start);
        breaks.append(end);
        start = end + 1;
    }
    return breaks;
}

/// The format of a paragraph's end that stands for a letter.
QTextCharFormat formatFor(QChar letter) {
    QTextCharFormat format;
    if (letter != u' ') {
        format.setProperty(letterProperty, letter);
    }
    return format;
}

/// What the end of the paragraph before this one stands for.
QChar endBefore(const QTextBlock& paragraph) {
    const auto letter = paragraph.charFormat().property(letterProperty);
    return letter.isNull() ? QChar(u' ') : letter.toChar();
}

/// What a document takes for a line end, and the tab.
bool isLineEnd(QChar character) {
    switch (character.unicode()) {
    case u'\t':
    case u'\n':
    case u'\r':
    case u'\v':
    case u'\f':
    case u'\u0085':
    case u'\u2028':
    case u'\u2029':
    case u'\ufdd0':
    case u'\ufdd1':
        return true;
    default:
        return false;
    }
}

/// Where the white space that begins at `start` ends.
qsizetype endOfGap(const QString& text, qsizetype start) {
    while (start < text.size() && (text.at(start) == u' ' || isLineEnd(text.at(start)))) {
        ++start;
    }
    return start;
}

bool endsLine(const QString& text, qsizetype start, qsizetype end) {
    return std::any_of(text.begin() + start, text.begin() + end, isLineEnd);
}

} // namespace

QString KeyboardText::text() const {
    auto text = _document.toRawText();
    text.replace(QChar::ParagraphSeparator, u' ');
    for (auto paragraph = _document.begin().next(); paragraph.isValid();
         paragraph = paragraph.next()) {
        if (const auto end = endBefore(paragraph); end != u' ') {
            text[paragraph.position() - 1] = end;
        }
    }
    return text;
}

QChar KeyboardText::characterAt(int position) const {
    // Behind the text the document has an end of a paragraph yet.
    if (position < 0 || position >= _document.characterCount() - 1) {
        return {};
    }
    const auto character = _document.characterAt(position);
    return character == QChar::ParagraphSeparator ? endBefore(_document.findBlock(position + 1))
                                                  : character;
}

QChar KeyboardText::hiddenLetter(const QTextBlock& paragraph) {
    const auto next = paragraph.next();
    const auto end = next.isValid() ? endBefore(next) : QChar(u' ');
    return end == u' ' ? QChar() : end;
}

QString KeyboardText::inOneLine(const QString& text, QChar before, QChar after) {
    if (!endsLine(text, 0, text.size())) {
        return text;
    }
    QString line;
    line.reserve(text.size());
    for (qsizetype start = 0; start < text.size();) {
        const auto end = endOfGap(text, start);
        if (!endsLine(text, start, end)) {
            const auto next = std::max(end, start + 1);
            line += QStringView(text).mid(start, next - start);
            start = next;
            continue;
        }
        const auto left = line.isEmpty() ? before : line.back();
        const auto right = end < text.size() ? text.at(end) : after;
        if (!left.isNull() && left != u' ' && right != u' ') {
            line += u' ';
        }
        start = end;
    }
    return line;
}

void KeyboardText::apply(const TextChange& change) {
    const auto begin = static_cast<int>(change.position);
    const auto end = static_cast<int>(change.position + change.removed.size());
    QTextCursor cursor(&_document);
    cursor.beginEditBlock();
    // First in, then out: so a caret at either end stays at that end.
    cursor.setPosition(end);
    insert(cursor, change.inserted);
    cursor.setPosition(begin);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    cursor.endEditBlock();
    breakParagraphs();
}

/// In paragraphs from the beginning: text of any length costs what its characters do.
void KeyboardText::insert(QTextCursor& cursor, const QString& text) {
    qsizetype start = 0;
    for (const auto end : breaksIn(text)) {
        cursor.insertText(text.mid(start, end - start), QTextCharFormat());
        cursor.insertBlock(QTextBlockFormat(), formatFor(text.at(end)));
        start = end + 1;
    }
    cursor.insertText(text.mid(start), QTextCharFormat());
}

void KeyboardText::breakParagraphs() {
    // From the last one on, so that a break moves none of those still to come.
    for (auto paragraph = _document.lastBlock(); paragraph.isValid();) {
        const auto before = paragraph.previous();
        if (paragraph.length() - 1 > longestParagraph) {
            breakParagraph(paragraph);
        }
        paragraph = before;
    }
}

void KeyboardText::breakParagraph(const QTextBlock& paragraph) {
    const auto text = paragraph.text();
    const auto wrapping = wrappingSpace(paragraph, text);
    const auto breaks = wrapping < 0 ? breaksIn(text) : QList<qsizetype>{wrapping};
    const auto start = paragraph.position();
    QTextCursor cursor(&_document);
    cursor.beginEditBlock();
    std::for_each(breaks.crbegin(), breaks.crend(), [&](qsizetype index) {
        // The end goes in behind the character before that goes, so that no cursor moves. To
        // delete what is behind the cursor would have all that follows analysed each time.
        const auto position = start + static_cast<int>(index);
        cursor.setPosition(position + 1);
        cursor.insertBlock(QTextBlockFormat(), formatFor(text.at(index)));
        cursor.setPosition(position);
        cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
    });
    cursor.endEditBlock();
}
