#include "app/keyboard/KeyboardText.h"

#include <QAbstractTextDocumentLayout>
#include <QList>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>

#include <algorithm>
#include <array>

namespace {

/// Paragraphs are broken to less than the longest, so that typing does not break one each time.
constexpr qsizetype wantedParagraph = KeyboardText::longestParagraph * 3 / 4;

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

/// Where `text` is to be broken, in rising order. Spaces at either end stay.
QList<qsizetype> breaksIn(const QString& text) {
    QList<qsizetype> breaks;
    qsizetype start = 0;
    while (text.size() - start > KeyboardText::longestParagraph) {
        auto space = text.lastIndexOf(u' ', start + wantedParagraph);
        if (space <= start) {
            space = text.indexOf(u' ', start + wantedParagraph);
        }
        if (space < 0 || space + 1 >= text.size()) {
            break;
        }
        breaks.append(space);
        start = space + 1;
    }
    return breaks;
}

/// What a document takes for a line end, and the tab.
bool isLineEnd(QChar character) {
    constexpr auto lineEnds = std::to_array<char16_t>(
        {u'\t', u'\n', u'\r', u'\v', u'\f', u'\u0085', u'\u2028', u'\u2029', u'\ufdd0', u'\ufdd1'});
    return std::ranges::find(lineEnds, character.unicode()) != lineEnds.end();
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
    return withSpaces(_document.toRawText());
}

QChar KeyboardText::characterAt(int position) const {
    // Behind the text the document has an end of a paragraph yet.
    if (position < 0 || position >= _document.characterCount() - 1) {
        return {};
    }
    const auto character = _document.characterAt(position);
    return character == QChar::ParagraphSeparator ? QChar(u' ') : character;
}

QString KeyboardText::withSpaces(QString text) {
    return text.replace(QChar::ParagraphSeparator, u' ');
}

QString KeyboardText::inOneLine(const QString& text, QChar before, QChar after) {
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
    cursor.insertText(change.inserted, QTextCharFormat());
    cursor.setPosition(begin);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    cursor.endEditBlock();
    breakParagraphs();
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
    std::for_each(breaks.crbegin(), breaks.crend(), [&](qsizetype space) {
        // The end goes in behind the space before the space goes, so that no cursor moves.
        cursor.setPosition(start + static_cast<int>(space) + 1);
        cursor.insertBlock();
        cursor.setPosition(start + static_cast<int>(space));
        cursor.deleteChar();
    });
    cursor.endEditBlock();
}
