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

} // namespace

QString KeyboardText::text() const {
    return withSpaces(_document.toRawText());
}

QString KeyboardText::withSpaces(QString text) {
    return text.replace(QChar::ParagraphSeparator, u' ');
}

QString KeyboardText::withoutLineEnds(QString text) {
    constexpr auto lineEnds = std::to_array<char16_t>(
        {u'\n', u'\r', u'\v', u'\f', u'\u0085', u'\u2028', u'\u2029', u'\ufdd0', u'\ufdd1'});
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\t"));
    for (auto& character : text) {
        if (std::ranges::find(lineEnds, character.unicode()) != lineEnds.end()) {
            character = u'\t';
        }
    }
    return text;
}

void KeyboardText::apply(const TextChange& change) {
    const auto begin = static_cast<int>(change.position);
    const auto end = static_cast<int>(change.position + change.removed.size());
    QTextCursor cursor(&_document);
    cursor.beginEditBlock();
    // First in, then out: so a caret at either end stays at that end.
    cursor.setPosition(end);
    cursor.insertText(change.inserted);
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
